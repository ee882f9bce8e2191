// The picture of a study that is not saved yet, kept aside for the case that the program ends without being
// asked to.
#pragma once

#include <optional>
#include <string>

namespace lorvane {

struct UnsavedStudy {
    std::string file;   ///< path of the study file that it belongs to; empty for a new study
    std::string table;  ///< the study with its scenarios, as a study file has it

    bool operator==(const UnsavedStudy&) const = default;
};

/// Never fails: without a place to keep a picture the program works without one.
class UnsavedStore {
public:
    virtual ~UnsavedStore() = default;

    /// Keeps the picture in the place of the one before.
    virtual void keep(const UnsavedStudy& study) = 0;

    /// Forgets the picture that this run has kept or taken over.
    virtual void drop() = 0;

    /// Takes over the latest picture that a run which is no more has left behind; nothing when there is none.
    /// It stays until it is dropped or another one is kept.
    virtual std::optional<UnsavedStudy> takeLeftBehind() = 0;
};

}  // namespace lorvane
