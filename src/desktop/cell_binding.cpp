// Ties a cell on the screen to its model.
#include "desktop/cell_binding.h"

#include <utility>

#include "desktop/menus.h"
#include "screen/field_words.h"

namespace lorvane::desktop {

CellBinding::CellBinding(Desk& desk, Menus& menus, CellNames names, const Cell& model,
                         ValueCell::Kind changeable, ValueCell* widget)
    : desk_(desk), names_(std::move(names)), model_(model), changeable_(changeable), widget_(widget) {
    connectEvents(menus);
}

// A cell without arrows is the second of a linked pair where it belongs to an arm, and fixed otherwise.
ValueCell::Kind CellBinding::kind() const {
    if (model_.spinVisible)
        return changeable_;
    if (changeable_ == ValueCell::Kind::Choice)
        return ValueCell::Kind::FixedChoice;
    return model_.arm.empty() ? ValueCell::Kind::ReadOnly : ValueCell::Kind::Linked;
}

void CellBinding::sync() {
    widget_->setVisible(model_.Visible);
    if (!model_.Visible)
        return;
    widget_->setKind(kind());
    widget_->setText(shownText(model_.number));
    const QString words = shownText(fieldWords(desk_.study(), names_.field));
    if (widget_->accessibleName() != words)
        widget_->setAccessibleName(words);
}

void CellBinding::connectEvents(Menus& menus) {
    QObject::connect(widget_, &ValueCell::stepped, &desk_,
                     [this](int direction) { desk_.spin(names_.spin, direction, Design::SpinMode::tick); });
    QObject::connect(widget_, &ValueCell::stepFinished, &desk_, [this] { desk_.spinReleased(); });
    QObject::connect(widget_, &ValueCell::activated, &desk_, [this] { activate(); });
    QObject::connect(widget_, &ValueCell::contextMenuRequested, &desk_,
                     [this, &menus](const QPoint& place) { menus.popup(names_.popup, place); });
    QObject::connect(widget_, &ValueCell::focused, &desk_, [this] {
        const QString hint = desk_.hintOf(names_.field);
        widget_->setAccessibleDescription(hint);
        emit desk_.hinted(hint);
        desk_.click(names_.panel);
    });
}

// A choice of two goes over to the other one; a number opens for typing.
void CellBinding::activate() {
    if (changeable_ == ValueCell::Kind::Choice)
        desk_.spin(names_.spin, model_.number == "Fixed" ? -1 : 1);
    else
        desk_.openValue(names_.field);
}

}  // namespace lorvane::desktop
