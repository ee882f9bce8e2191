// Puts a study back after a search.
#include "search/study_keeper.h"

#include <utility>

namespace lorvane {

StudyKeeper::~StudyKeeper() {
    if (putBack_)
        study_ = std::move(kept_);
}

}  // namespace lorvane
