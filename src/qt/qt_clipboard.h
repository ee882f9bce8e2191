// The clipboard of the system.
#pragma once

#include "platform/clipboard.h"

namespace lorvane {

class QtClipboard final : public Clipboard {
public:
    void put(const ClipboardContent& content) override;
};

}  // namespace lorvane
