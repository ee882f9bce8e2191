// A cell whose number can be typed in place. Judges nothing of what is typed.
#pragma once

#include "desktop/kit/value_cell.h"

class QLineEdit;

namespace lorvane::desktop {

/// A double click, Enter or a digit opens the cell for typing. Enter, or leaving the cell, takes the typed
/// text; Escape drops it.
class EntryCell : public ValueCell {
    Q_OBJECT

public:
    explicit EntryCell(QWidget* parent = nullptr);

signals:
    /// The user has typed another text than the cell shows. The cell itself goes on showing the old one until
    /// its owner sets a new one.
    void entered(const QString& text);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void open(const QString& text);
    void close(bool take);
    bool editKey(const QKeyEvent& event);

    QLineEdit* editor_;
};

}  // namespace lorvane::desktop
