// A file of the POSIX system that closes itself.
#pragma once

#include <unistd.h>

#include <utility>

namespace lorvane {

/// Owns a descriptor, or none. It cannot be copied or moved; take() gives it another one.
class OpenFile {
public:
    /// Takes over what open() returned, so a number below 0 is no file.
    explicit OpenFile(int descriptor = -1) : descriptor_(descriptor) {}
    ~OpenFile() { closeNow(); }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    /// The descriptor still belongs to this object; below 0 there is none.
    bool isOpen() const { return descriptor_ >= 0; }
    int descriptor() const { return descriptor_; }

    /// Takes over another descriptor and closes the one before.
    void take(int descriptor) {
        closeNow();
        descriptor_ = descriptor;
    }

    /// Closes the file, if there is one, before the end of this object. Its locks fall with it.
    void closeNow() {
        if (const int descriptor = std::exchange(descriptor_, -1); descriptor >= 0)
            ::close(descriptor);
    }

private:
    int descriptor_;
};

}  // namespace lorvane
