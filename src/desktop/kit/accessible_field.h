// What screen readers see of a field that paints itself. Knows no widget; each class of widgets passes itself
// in.
#pragma once

#include <QAccessibleWidget>

namespace lorvane::desktop {

/// Shows a widget to screen readers as a field whose text can be read, stepped and opened, but not edited in
/// place. Field is the class of the widget. It must have accessibleRole(), text(), isChangeable(),
/// hasProblem(), step() and activate(); where its value can be linked, isLinkable() and toggleLink() too.
template <typename Field>
class FieldInterface : public QAccessibleWidget, public QAccessibleTextInterface {
public:
    explicit FieldInterface(Field* field) : QAccessibleWidget(field, field->accessibleRole()) {}

    QAccessible::Role role() const override { return field()->accessibleRole(); }

    QAccessible::State state() const override {
        QAccessible::State result = QAccessibleWidget::state();
        result.readOnly = !field()->isChangeable();
        result.invalid = field()->hasProblem();
        return result;
    }

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? field()->text() : QAccessibleWidget::text(kind);
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::TextInterface)
            return static_cast<QAccessibleTextInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QStringList actionNames() const override {
        QStringList names = {pressAction()};
        if (field()->isChangeable())
            names << increaseAction() << decreaseAction();
        if (isLinkable())
            names << toggleAction();
        return names + QAccessibleWidget::actionNames();
    }

    void doAction(const QString& name) override {
        if (name == pressAction())
            field()->activate();
        else if (name == increaseAction())
            field()->step(1);
        else if (name == decreaseAction())
            field()->step(-1);
        else if (name == toggleAction())
            toggleLink();
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
    QString text(int start, int end) const override { return field()->text().mid(start, end - start); }
    int characterCount() const override { return static_cast<int>(field()->text().size()); }
    QRect characterRect(int) const override { return rect(); }
    int offsetAtPoint(const QPoint&) const override { return 0; }
    void scrollToSubstring(int, int) override {}
    QString attributes(int, int* start, int* end) const override {
        *start = 0;
        *end = characterCount();
        return {};
    }

private:
    bool isLinkable() const {
        if constexpr (requires(Field & field) { field.isLinkable(); })
            return field()->isLinkable();
        return false;
    }
    void toggleLink() {
        if constexpr (requires(Field & field) { field.toggleLink(); })
            field()->toggleLink();
    }

    Field* field() const { return static_cast<Field*>(widget()); }
};

/// Makes all widgets of a class known as fields, also those made later. Once is enough; more does no harm.
template <typename Field>
void installAccessibleFields() {
    QAccessible::installFactory([](const QString&, QObject* object) -> QAccessibleInterface* {
        auto* field = qobject_cast<Field*>(object);
        return field ? new FieldInterface<Field>(field) : nullptr;
    });
}

}  // namespace lorvane::desktop
