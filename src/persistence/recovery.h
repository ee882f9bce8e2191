// The question whether work that an earlier run has left unsaved shall come back. A picture goes only when
// the user discards it or saves the study that came from it.
#pragma once

#include "persistence/study_files.h"
#include "platform/unsaved_store.h"
#include "screen/design.h"

namespace lorvane {

class Recovery {
public:
    /// Without a store there is nothing to bring back.
    Recovery(Design& design, StudyFiles& studies, UnsavedStore* store)
        : design_(design), studies_(studies), store_(store) {}

    /// Asks about the pictures that are there, the latest first, until one is brought back or the user puts
    /// it off; true when one is on the screen.
    bool offer();

private:
    enum class Choice { done, next, later };
    Choice ask(const LeftBehind& picture);
    Choice askAboutDamaged(const LeftBehind& picture, const std::string& why);
    std::string problemOf(const LeftBehind& picture) const;

    Design& design_;
    StudyFiles& studies_;
    UnsavedStore* store_;
};

}  // namespace lorvane
