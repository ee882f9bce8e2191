// The hourglass of the desktop.
#pragma once

#include "platform/hourglass.h"

namespace lorvane {

class QtHourglass final : public Hourglass {
public:
    void begin() override;
    void end() override;
};

}  // namespace lorvane
