// A file of the POSIX system that closes itself.
#pragma once

#include <unistd.h>

#include <utility>

namespace lorvane {

class OpenFile {
public:
    explicit OpenFile(int descriptor = -1) : descriptor_(descriptor) {}
    ~OpenFile() { closeNow(); }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    bool isOpen() const { return descriptor_ >= 0; }
    int descriptor() const { return descriptor_; }

    void take(int descriptor) {
        closeNow();
        descriptor_ = descriptor;
    }

    void closeNow() {
        if (const int descriptor = std::exchange(descriptor_, -1); descriptor >= 0)
            ::close(descriptor);
    }

private:
    int descriptor_;
};

}  // namespace lorvane
