// The steps that can be undone and redone.
#include "session/history.h"

#include <utility>

namespace lorvane {

void History::add(std::string name, Moment before) {
    future_.clear();
    past_.push_back({std::move(name), std::move(before)});
    if (past_.size() > mostSteps)
        past_.pop_front();
}

Moment History::undo(Moment present) {
    Step step = std::move(past_.back());
    past_.pop_back();
    future_.push_back({step.name, std::move(present)});
    return std::move(step.moment);
}

Moment History::redo(Moment present) {
    Step step = std::move(future_.back());
    future_.pop_back();
    past_.push_back({step.name, std::move(present)});
    return std::move(step.moment);
}

std::optional<std::size_t> History::stepsTo(std::size_t revision) const {
    for (const std::deque<Step>* steps : {&past_, &future_}) {
        for (std::size_t i = 0; i < steps->size(); ++i) {
            if ((*steps)[i].moment.revision == revision)
                return steps->size() - i;
        }
    }
    return std::nullopt;
}

void History::clear() {
    past_.clear();
    future_.clear();
}

}  // namespace lorvane
