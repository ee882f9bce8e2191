// Painting of radio and check signs, in menus too. Everything else is left to Fusion; in high contrast the
// signs are too.
#include "desktop/kit/kit_style.h"

#include <QDialogButtonBox>
#include <QMenu>
#include <QPainter>
#include <QStyleOption>

#include "desktop/kit/icons.h"
#include "desktop/kit/menu_painting.h"
#include "desktop/kit/painting.h"
#include "desktop/kit/plain_text.h"
#include "desktop/kit/theme.h"

namespace lorvane::desktop {

namespace {

constexpr int SignSize = 16;
constexpr int SignSpace = 8;
constexpr double CheckRadius = 4;
constexpr double RadioDot = 6;

/// The plate of a sign in its states, round or nearly square.
void paintSign(QPainter& painter, const QRectF& bounds, double radius, const QStyleOption& option) {
    const bool enabled = option.state & QStyle::State_Enabled;
    const bool on = option.state & QStyle::State_On;
    const bool hovered = option.state & QStyle::State_MouseOver;
    const Role rest = hovered && enabled ? Role::Field : Role::Card;
    const Role fill = !on ? rest : enabled ? Role::AccentFill : Role::Quiet;
    const bool focused = option.state & QStyle::State_HasFocus;
    const Role line = focused ? Role::Accent : on ? fill : enabled ? Role::StrongLine : Role::Line;
    drawPlate(painter, bounds, radius, colour(fill), colour(line));
    if (focused && !on)
        strokePlate(painter, bounds, radius, colour(Role::Accent), RingWidth);
}

QRectF signArea(const QStyleOption& option) {
    QRectF area(0, 0, SignSize, SignSize);
    area.moveCenter(QRectF(option.rect).center());
    return area;
}

void paintRadio(QPainter& painter, const QStyleOption& option) {
    const QRectF area = signArea(option);
    paintSign(painter, area, SignSize / 2.0, option);
    if (option.state & QStyle::State_On)
        drawDot(painter, area.center(), RadioDot, colour(Role::OnAccent));
}

void paintCheck(QPainter& painter, const QStyleOption& option) {
    const QRectF area = signArea(option);
    paintSign(painter, area, CheckRadius, option);
    if (option.state & QStyle::State_On)
        drawIcon(painter, Icon::Check, area.adjusted(1, 1, -1, -1), colour(Role::OnAccent));
}

void paintSheet(QPainter& painter, const QStyleOption& option) { paintMenuSheet(painter, option.rect); }

void paintNothing(QPainter&, const QStyleOption&) {}

struct SignPainter {
    QStyle::PrimitiveElement element;
    void (*paint)(QPainter&, const QStyleOption&);
};

constexpr SignPainter SignPainters[] = {
    {QStyle::PE_IndicatorRadioButton, paintRadio},
    {QStyle::PE_IndicatorCheckBox, paintCheck},
    {QStyle::PE_PanelMenu, paintSheet},
    {QStyle::PE_FrameMenu, paintNothing},
};

struct Metric {
    QStyle::PixelMetric metric;
    int value;
};

constexpr Metric Metrics[] = {
    {QStyle::PM_ExclusiveIndicatorWidth, SignSize}, {QStyle::PM_ExclusiveIndicatorHeight, SignSize},
    {QStyle::PM_IndicatorWidth, SignSize},          {QStyle::PM_IndicatorHeight, SignSize},
    {QStyle::PM_MenuPanelWidth, MenuFrame},         {QStyle::PM_MenuHMargin, 0},
    {QStyle::PM_MenuVMargin, MenuPadding},          {QStyle::PM_RadioButtonLabelSpacing, SignSpace},
    {QStyle::PM_CheckBoxLabelSpacing, SignSpace},
};

}  // namespace

KitStyle::KitStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void KitStyle::polish(QWidget* widget) {
    keepPlain(*widget);
    if (auto* menu = qobject_cast<QMenu*>(widget))
        menu->setAttribute(Qt::WA_TranslucentBackground);
    QProxyStyle::polish(widget);
}

int KitStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                        QStyleHintReturn* result) const {
    // A long menu scrolls in one column instead of covering the screen with several.
    if (hint == SH_Menu_Scrollable)
        return 1;
    const int answer = QProxyStyle::styleHint(hint, option, widget, result);
#ifndef Q_OS_WIN
    if (hint == SH_DialogButtonLayout && answer == QDialogButtonBox::WinLayout)
        return QDialogButtonBox::GnomeLayout;
#endif
    return answer;
}

int KitStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    for (const Metric& own : Metrics)
        if (own.metric == metric)
            return own.value;
    return QProxyStyle::pixelMetric(metric, option, widget);
}

void KitStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const {
    if (!Theme::current().isHighContrast())
        for (const SignPainter& own : SignPainters)
            if (own.element == element) {
                painter->save();
                own.paint(*painter, *option);
                return painter->restore();
            }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

QSize KitStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                 const QWidget* widget) const {
    const auto* entry = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (type != CT_MenuItem || entry == nullptr || Theme::current().isHighContrast())
        return QProxyStyle::sizeFromContents(type, option, contents, widget);
    return menuEntrySize(*entry, contents.width());
}

void KitStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                           const QWidget* widget) const {
    const auto* entry = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (Theme::current().isHighContrast() || (element != CE_MenuItem && element != CE_MenuEmptyArea))
        return QProxyStyle::drawControl(element, option, painter, widget);
    if (element == CE_MenuEmptyArea || entry == nullptr)
        return;
    painter->save();
    paintMenuEntry(*painter, *entry, styleHint(SH_UnderlineShortcut, option, widget, nullptr));
    painter->restore();
}

}  // namespace lorvane::desktop
