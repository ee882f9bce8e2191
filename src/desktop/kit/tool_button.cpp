// Sizes of the tool button; the style sheet draws it.
#include "desktop/kit/tool_button.h"

#include <QAction>
#include <QStyleOptionToolButton>

namespace lorvane::desktop {

namespace {

/// Sizes of the drawing. Beside a word the size is wider than the drawing, which stands at its left; the rest
/// is the gap before the word.
constexpr QSize AloneSize(20, 20);
constexpr QSize WithWordSize(26, 20);
constexpr int AloneWidth = 38;

}  // namespace

ToolButton::ToolButton(QAction* action, Words words, QWidget* parent) : QToolButton(parent) {
    setDefaultAction(action);
    setAccessibleName(action->statusTip().isEmpty() ? action->toolTip() : action->statusTip());
    setWords(words);
}

void ToolButton::setWords(Words words) {
    const bool beside = words == Words::Beside;
    setToolButtonStyle(beside ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonIconOnly);
    setMinimumWidth(beside ? 0 : AloneWidth);
    setMaximumWidth(beside ? QWIDGETSIZE_MAX : AloneWidth);
    updateGeometry();
}

/// A tool bar gives all its buttons one size of drawings; here it depends on the word.
void ToolButton::initStyleOption(QStyleOptionToolButton* option) const {
    QToolButton::initStyleOption(option);
    option->iconSize = toolButtonStyle() == Qt::ToolButtonIconOnly ? AloneSize : WithWordSize;
}

}  // namespace lorvane::desktop
