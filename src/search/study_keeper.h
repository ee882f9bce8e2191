// Puts a study back after a search, however the search ends.
#pragma once

#include "engine/study.h"

namespace lorvane {

/// Keeps the study as it is now and puts it back at the end of its scope, unless it is told to let it go.
class StudyKeeper {
public:
    explicit StudyKeeper(Study& study) : study_(study), kept_(study) {}
    ~StudyKeeper();
    StudyKeeper(const StudyKeeper&) = delete;
    StudyKeeper& operator=(const StudyKeeper&) = delete;

    const Study& kept() const noexcept { return kept_; }
    void letGo() noexcept { putBack_ = false; }

private:
    Study& study_;
    Study kept_;
    bool putBack_ = true;
};

}  // namespace lorvane
