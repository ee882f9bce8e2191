// Ties a cell on the screen to its model.
#include "desktop/cell_binding.h"

#include "base/names.h"
#include "desktop/menus.h"
#include "session/field_words.h"

namespace lorvane::desktop {

namespace {

std::string nameOf(std::string_view stem, FieldRef field) {
    return field->index == FieldIndex::none ? std::string(stem) : indexedName(stem, field.index);
}

// The band of a right click; a pattern has the level in it.
std::string menuOf(FieldRef field) {
    std::string menu(field->cell.menu);
    const std::size_t level = menu.find("{}");
    return level == std::string::npos ? menu : menu.replace(level, 2, std::to_string(field.index));
}

// The look of a state. A choice of words stands at the left.
ValueCell::Kind kindOf(FieldRef field, CellState state) {
    const bool choice = field->cell.form == CellForm::model;
    switch (state) {
    case CellState::changeable:
        return choice ? ValueCell::Kind::Choice : ValueCell::Kind::Spin;
    case CellState::linked:
        return ValueCell::Kind::Linked;
    case CellState::fixed:
        break;
    }
    return choice ? ValueCell::Kind::FixedChoice : ValueCell::Kind::ReadOnly;
}

}  // namespace

CellBinding::CellBinding(Desk& desk, Menus& menus, FieldRef field, const Cell& model, ValueCell* widget)
    : desk_(desk), field_(field), panel_(nameOf(field->cell.stem, field)), model_(model), widget_(widget) {
    connectEvents(menus);
}

void CellBinding::sync() {
    widget_->setVisible(model_.Visible);
    if (!model_.Visible)
        return;
    widget_->setKind(kindOf(field_, model_.state));
    widget_->setText(shownText(model_.number));
    widget_->setLinkWords(linkWords());
    if (widget_->window()->focusWidget() == widget_)
        widget_->setAccessibleDescription(desk_.hintOf(field_));
    const QString rest = shownText(model_.rest);
    if (widget_->toolTip() != rest)
        widget_->setToolTip(rest);
    const QString words = shownText(model_.words);
    if (widget_->accessibleName() != words)
        widget_->setAccessibleName(words);
}

QString CellBinding::linkWords() const {
    if (field_->isLinked == nullptr)
        return {};
    return shownText(lorvane::linkWords(desk_.study(), field_)) + QStringLiteral("  L");
}

void CellBinding::connectEvents(Menus& menus) {
    const std::string spin = nameOf(field_->spin, field_);
    QObject::connect(widget_, &ValueCell::stepped, &desk_, [this, spin](int direction, int steps) {
        desk_.spin(spin, direction, ArrowHold::tick, steps);
    });
    QObject::connect(widget_, &ValueCell::stepFinished, &desk_, [this] { desk_.spinReleased(); });
    QObject::connect(widget_, &ValueCell::activated, &desk_, [this] { desk_.openValue(field_.name()); });
    QObject::connect(widget_, &ValueCell::typed, &desk_,
                     [this](const QString& text) { desk_.openValue(field_.name(), text.toStdString()); });
    QObject::connect(widget_, &ValueCell::linkToggled, &desk_, [this] { desk_.toggleLink(field_); });
    QObject::connect(widget_, &ValueCell::clicked, &desk_, [this] { desk_.click(panel_); });
    QObject::connect(widget_, &ValueCell::contextMenuRequested, &desk_,
                     [&menus, menu = menuOf(field_)](const QPoint& place) { menus.popup(menu, place); });
    QObject::connect(widget_, &ValueCell::focused, &desk_, [this] {
        widget_->setAccessibleDescription(desk_.hintOf(field_));
        desk_.focus(field_);
    });
}

}  // namespace lorvane::desktop
