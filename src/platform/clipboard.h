// Where copied text goes.
#pragma once

#include <string>

namespace lorvane {

/// The same thing as plain text and, where it has a form of its own, as HTML.
struct ClipboardText {
    std::string text;
    std::string html;  ///< empty: there is none
};

class Clipboard {
public:
    virtual ~Clipboard() = default;

    virtual void put(const ClipboardText& content) = 0;
};

/// A clipboard for scripts, which can be read.
class MemoryClipboard final : public Clipboard {
public:
    void put(const ClipboardText& content) override { content_ = content; }
    const ClipboardText& content() const noexcept { return content_; }

private:
    ClipboardText content_;
};

}  // namespace lorvane
