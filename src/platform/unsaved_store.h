// The picture of a study that is not saved yet, kept aside for the case that the program ends without being
// asked to.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace lorvane {

struct UnsavedStudy {
    std::string file;               ///< path of the study file that it belongs to; empty for a new study
    std::string table;              ///< the study with its scenarios, as a study file has it
    std::uint64_t fileContent = 0;  ///< hash of what its file held; 0: not known

    bool operator==(const UnsavedStudy&) const = default;
};

/// A picture that an earlier run has left.
struct LeftBehind {
    UnsavedStudy study;
    std::string place;    ///< path of the picture
    std::string aside;    ///< path that it gets when it is set aside
    std::string problem;  ///< why it cannot be read, as a sentence; empty when it can
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
    /// It stays until it is dropped or another one is kept in its place.
    virtual std::optional<LeftBehind> takeLeftBehind() = 0;

    /// Lets go of the picture that this run has kept or taken over: it stays, and the next run finds it.
    virtual void leave() = 0;

    /// The same under the name for pictures that no run takes over any more.
    virtual void setAside() = 0;
};

}  // namespace lorvane
