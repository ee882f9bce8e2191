// The style sheet draws the buttons; this adds what a sheet cannot say.
#include "desktop/kit/push_button.h"

#include <QPainter>
#include <QStyle>

#include "desktop/kit/painting.h"
#include "desktop/kit/theme.h"

namespace lorvane::desktop {

namespace {

void setPrimaryProperty(PushButton& button, bool primary) { button.setProperty("primary", primary); }

}  // namespace

PushButton::PushButton(const QString& text, Rank rank, QWidget* parent)
    : QPushButton(text, parent), rank_(rank) {
    setPrimaryProperty(*this, rank == Rank::Primary);
}

void PushButton::setRank(Rank rank) {
    if (rank == rank_)
        return;
    rank_ = rank;
    setPrimaryProperty(*this, rank == Rank::Primary);
    style()->unpolish(this);
    style()->polish(this);
    updateGeometry();
}

/// The ring of a focused primary button lies inside its fill, since fill and ring have the same colour.
void PushButton::paintEvent(QPaintEvent* event) {
    QPushButton::paintEvent(event);
    if (rank_ != Rank::Primary || !hasFocus() || Theme::current().isHighContrast())
        return;
    QPainter painter(this);
    const QRectF ring = QRectF(rect()).adjusted(2, 2, -2, -2);
    strokePlate(painter, ring, FieldRadius - 2, colour(Role::OnAccent), 1.5);
}

PushButton* plainButton(const QString& text, QWidget* parent) {
    return new PushButton(text, PushButton::Rank::Plain, parent);
}

PushButton* primaryButton(const QString& text, QWidget* parent) {
    return new PushButton(text, PushButton::Rank::Primary, parent);
}

}  // namespace lorvane::desktop
