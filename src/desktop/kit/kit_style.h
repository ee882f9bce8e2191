// The application style: Fusion, with radio and check signs that keep their outline in the dark set.
#pragma once

#include <QProxyStyle>

namespace lorvane::desktop {

class KitStyle : public QProxyStyle {
    Q_OBJECT

public:
    KitStyle();

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};

}  // namespace lorvane::desktop
