// The editor that lies over a cell while a number is typed.
#include "desktop/kit/entry_cell.h"

#include <QKeyEvent>
#include <QLineEdit>

#include "desktop/kit/text_style.h"

namespace lorvane::desktop {

EntryCell::EntryCell(QWidget* parent) : ValueCell(Kind::Spin, parent), editor_(new QLineEdit(this)) {
    editor_->hide();
    editor_->setAlignment(Qt::AlignRight);
    editor_->setStyleSheet(QStringLiteral("QLineEdit { min-height: 0; }"));
    editor_->installEventFilter(this);
    connect(this, &ValueCell::activated, this, [this] {
        open(text());
        editor_->selectAll();
    });
}

void EntryCell::open(const QString& text) {
    editor_->setFont(textFont(TextStyle::Value));
    editor_->setAccessibleName(accessibleName());
    editor_->setGeometry(rect());
    editor_->setText(text);
    editor_->show();
    editor_->setFocus();
}

/// Hides the editor first. Otherwise its loss of the keyboard would take the text a second time.
void EntryCell::close(bool take) {
    const bool hadFocus = editor_->hasFocus();
    editor_->hide();
    if (hadFocus)
        setFocus();
    if (take && editor_->text() != text())
        emit entered(editor_->text());
}

void EntryCell::keyPressEvent(QKeyEvent* event) {
    const bool plain = !(event->modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier));
    if (plain && !event->text().isEmpty() && event->text().front().isDigit())
        open(event->text());
    else
        ValueCell::keyPressEvent(event);
}

bool EntryCell::editKey(const QKeyEvent& event) {
    const bool enter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    if (enter || event.key() == Qt::Key_Escape)
        close(enter);
    return editor_->isHidden();
}

bool EntryCell::eventFilter(QObject* watched, QEvent* event) {
    const bool isEscape =
        event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
    if (isEscape)
        event->accept();
    if (event->type() == QEvent::KeyPress)
        return editKey(static_cast<QKeyEvent&>(*event));
    if (event->type() == QEvent::FocusOut && editor_->isVisible())
        close(true);
    return isEscape || ValueCell::eventFilter(watched, event);
}

}  // namespace lorvane::desktop
