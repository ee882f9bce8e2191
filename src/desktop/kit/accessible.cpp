// Accessible interfaces of cells and painted text.
#include "desktop/kit/accessible.h"

#include <QAccessibleWidget>

#include "desktop/kit/painted_text.h"
#include "desktop/kit/value_cell.h"

namespace lorvane::desktop {

namespace {

/// A cell as a field whose text is read, stepped and opened, but not edited in place.
class CellInterface : public QAccessibleWidget, public QAccessibleTextInterface {
public:
    explicit CellInterface(ValueCell* cell) : QAccessibleWidget(cell, cell->accessibleRole()) {}

    QAccessible::Role role() const override { return cell()->accessibleRole(); }

    QAccessible::State state() const override {
        QAccessible::State result = QAccessibleWidget::state();
        result.readOnly = !cell()->isChangeable();
        result.invalid = cell()->problem() != ValueCell::Problem::None;
        return result;
    }

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? cell()->text() : QAccessibleWidget::text(kind);
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::TextInterface)
            return static_cast<QAccessibleTextInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QStringList actionNames() const override {
        QStringList names = {pressAction()};
        if (cell()->isChangeable())
            names << increaseAction() << decreaseAction();
        return names + QAccessibleWidget::actionNames();
    }

    void doAction(const QString& name) override {
        if (name == pressAction())
            cell()->activate();
        else if (name == increaseAction())
            cell()->step(1);
        else if (name == decreaseAction())
            cell()->step(-1);
        else
            QAccessibleWidget::doAction(name);
    }

    void selection(int, int* start, int* end) const override { *start = *end = 0; }
    int selectionCount() const override { return 0; }
    void addSelection(int, int) override {}
    void removeSelection(int) override {}
    void setSelection(int, int, int) override {}
    int cursorPosition() const override { return 0; }
    void setCursorPosition(int) override {}
    QString text(int start, int end) const override { return cell()->text().mid(start, end - start); }
    int characterCount() const override { return static_cast<int>(cell()->text().size()); }
    QRect characterRect(int) const override { return rect(); }
    int offsetAtPoint(const QPoint&) const override { return 0; }
    void scrollToSubstring(int, int) override {}
    QString attributes(int, int* start, int* end) const override {
        *start = 0;
        *end = characterCount();
        return {};
    }

private:
    ValueCell* cell() const { return static_cast<ValueCell*>(widget()); }
};

QAccessibleInterface* createInterface(const QString&, QObject* object) {
    if (auto* cell = qobject_cast<ValueCell*>(object))
        return new CellInterface(cell);
    if (auto* text = qobject_cast<PaintedText*>(object))
        return new QAccessibleWidget(text, QAccessible::StaticText);
    return nullptr;
}

}  // namespace

void installAccessibility() { QAccessible::installFactory(createInterface); }

}  // namespace lorvane::desktop
