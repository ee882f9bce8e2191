// Pictures of a chart with its header and footer.
#pragma once

#include "platform/chart.h"
#include "qt/offscreen_application.h"

namespace lorvane {

/// Works in programs with and without windows.
class QtChart final : public Chart {
public:
    std::string picture(const ChartContent& content, PictureFormats format, PictureSizes size) override;

private:
    OffscreenApplication application_;
};

}  // namespace lorvane
