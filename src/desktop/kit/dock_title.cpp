// The row over a docked panel.
#include "desktop/kit/dock_title.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>
#include <QToolButton>

#include "desktop/kit/elided_label.h"
#include "desktop/kit/icons.h"
#include "desktop/kit/theme.h"
#include "desktop/kit/zoom.h"

namespace lorvane::desktop {

namespace {

constexpr int Height = 34;
constexpr int Inset = 18;
constexpr int RightInset = 8;
constexpr int SignPlate = 26;
constexpr int Sign = 16;

QToolButton* signButton(Icon sign, const QString& words) {
    auto* button = new QToolButton;
    button->setIcon(icon(sign));
    button->setToolTip(words);
    button->setAccessibleName(words);
    button->setProperty("sign", true);
    button->setFocusPolicy(Qt::NoFocus);
    return button;
}

}  // namespace

DockTitle::DockTitle(QWidget* parent) : QWidget(parent), name_(new ElidedLabel) {
    auto* close = signButton(Icon::Close, tr("Close"));
    auto* floats = signButton(Icon::Float, tr("Float or dock"));
    float_ = floats;
    close_ = close;
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(Inset, 0, RightInset, 0);
    row->setSpacing(2);
    row->addWidget(name_, 1);
    row->addWidget(floats);
    row->addWidget(close);
    setTextStyle(*name_, TextStyle::BodyStrong);
    // The label leaves the pointer to the row, by which the dock is dragged.
    name_->setAttribute(Qt::WA_TransparentForMouseEvents);
    connect(floats, &QToolButton::clicked, this, &DockTitle::floatRequested);
    connect(close, &QToolButton::clicked, this, &DockTitle::closeRequested);
    placeAtZoom();
}

void DockTitle::setName(const QString& name) {
    name_->setText(name);
    setToolTip(name);
}

void DockTitle::setInUse(bool inUse) {
    QPalette palette;
    if (inUse)
        palette.setColor(QPalette::WindowText, colour(Role::Accent));
    name_->setPalette(palette);
}

QSize DockTitle::sizeHint() const { return {zoomed(*this, 200), zoomed(*this, Height)}; }

QSize DockTitle::minimumSizeHint() const { return {zoomed(*this, 100), zoomed(*this, Height)}; }

void DockTitle::placeAtZoom() {
    for (QAbstractButton* button : {float_, close_}) {
        const int plate = zoomed(*this, SignPlate);
        const int sign = zoomed(*this, Sign);
        if (button->size() != QSize(plate, plate) || button->iconSize() != QSize(sign, sign)) {
            button->setFixedSize(plate, plate);
            button->setIconSize({sign, sign});
        }
    }
}

void DockTitle::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::StyleChange)
        placeAtZoom();
}

void DockTitle::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), colour(Role::Card));
}

}  // namespace lorvane::desktop
