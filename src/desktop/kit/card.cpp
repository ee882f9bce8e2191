// Painting of a card in its tones.
#include "desktop/kit/card.h"

#include <QPainter>

#include "desktop/kit/painting.h"
#include "desktop/kit/theme.h"
#include "desktop/kit/zoom.h"

namespace lorvane::desktop {

namespace {

struct ToneRoles {
    Role fill;
    Role line;
};

/// In the order of CardTone.
constexpr ToneRoles Tones[] = {
    {Role::Card, Role::Line},
    {Role::ProblemCard, Role::ProblemCardLine},
    {Role::AccentTint, Role::AccentTint},
    {Role::Field, Role::Field},
};

}  // namespace

void paintCard(QPainter& painter, const QRectF& bounds, CardTone tone) {
    const ToneRoles& roles = Tones[static_cast<int>(tone)];
    drawPlate(painter, bounds, CardRadius, colour(roles.fill), colour(roles.line));
}

Card::Card(CardTone tone, QWidget* parent) : QWidget(parent), tone_(tone) {}

void Card::setTone(CardTone tone) {
    if (tone == tone_)
        return;
    tone_ = tone;
    update();
}

void Card::paintEvent(QPaintEvent*) {
    ZoomedPainter painter(*this);
    paintCard(painter, figureRect(*this), tone_);
}

}  // namespace lorvane::desktop
