// Where copied texts and pictures go.
#pragma once

#include <string>

namespace lorvane {

/// The same thing in the forms that other programs may ask for.
struct ClipboardContent {
    std::string text = {};  ///< plain text
    std::string html = {};  ///< empty: it has no form of its own
    std::string png = {};   ///< bytes of a picture; empty: there is none
};

class Clipboard {
public:
    virtual ~Clipboard() = default;
    virtual void put(const ClipboardContent& content) = 0;
};

/// A clipboard for scripts, which can be read.
class MemoryClipboard final : public Clipboard {
public:
    void put(const ClipboardContent& content) override { content_ = content; }

    const ClipboardContent& content() const noexcept { return content_; }

private:
    ClipboardContent content_;
};

}  // namespace lorvane
