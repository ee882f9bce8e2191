// The application style: Fusion, with radio and check signs that keep their outline in the dark set, with
// menus of our own, and with labels that are plain.
#pragma once

#include <QProxyStyle>

namespace lorvane::desktop {

/// The signs, 16 wide and high, take the colours of the theme in use. In high contrast they are those of
/// Fusion.
class KitStyle : public QProxyStyle {
    Q_OBJECT

public:
    KitStyle();

    /// Makes labels plain and the corners of menus round.
    using QProxyStyle::polish;
    void polish(QWidget* widget) override;

    /// The order of buttons is that of the desktop; where there is no desktop, the primary one stands last,
    /// as in the program's own dialogs.
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* result) const override;

    /// The size of the signs and their distance from the words, and their painting.
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;

    /// The entries of menus: how large they are, and their painting.
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

}  // namespace lorvane::desktop
