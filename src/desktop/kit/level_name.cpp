// Painting of a level's name and role about the middle of the row.
#include "desktop/kit/level_name.h"

#include <algorithm>
#include <cmath>

#include <QFontMetricsF>
#include <QPainter>

#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"
#include "desktop/kit/zoom.h"

namespace lorvane::desktop {

namespace {

/// Base lines, from the middle of the row.
constexpr double NameLine = -2;
constexpr double RoleLine = 15;
constexpr int Height = 42;

}  // namespace

LevelName::LevelName(QWidget* parent) : PaintedText(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void LevelName::setLevel(const QString& name, const QString& role, bool accented) {
    if (name == name_ && role == role_ && accented == accented_)
        return;
    name_ = name;
    role_ = role;
    accented_ = accented;
    setAccessibleName(name);
    setAccessibleDescription(role);
    tellRest();
    updateGeometry();
    update();
}

QSize LevelName::sizeHint() const {
    const double name = QFontMetricsF(textFont(TextStyle::LevelName)).horizontalAdvance(name_);
    const double role = QFontMetricsF(textFont(TextStyle::CaptionStrong)).horizontalAdvance(role_);
    return {zoomed(*this, std::ceil(std::max(name, role))), zoomed(*this, Height)};
}

QSize LevelName::minimumSizeHint() const { return {zoomed(*this, 60), zoomed(*this, Height)}; }

/// A name that is cut stands whole in the tip.
void LevelName::tellRest() { setToolTip(sizeHint().width() > width() ? name_ : QString()); }

void LevelName::resizeEvent(QResizeEvent*) { tellRest(); }

void LevelName::paintEvent(QPaintEvent*) {
    ZoomedPainter painter(*this);
    const QRectF bounds = figureRect(*this);
    const double middle = bounds.height() / 2;
    const auto line = [&](const QFont& font, const QColor& pen, double baseline, const QString& text) {
        painter.setFont(font);
        painter.setPen(pen);
        painter.drawText(QPointF(0, middle + baseline),
                         QFontMetricsF(font).elidedText(text, Qt::ElideRight, bounds.width()));
    };
    line(textFont(TextStyle::LevelName), colour(Role::Text), NameLine, name_);
    line(textFont(accented_ ? TextStyle::CaptionStrong : TextStyle::Caption),
         colour(accented_ ? Role::Accent : Role::SecondText), RoleLine, role_);
}

}  // namespace lorvane::desktop
