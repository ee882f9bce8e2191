// The bar in which a text is looked for in the report.
#pragma once

#include <QWidget>

class QLabel;
class QToolButton;

namespace lorvane::desktop {

class Desk;
class Menus;
class TextField;

/// Shown while the program is finding. Enter goes to the next match, with Shift to the one before, Escape
/// ends it.
class ReportFind final : public QWidget {
    Q_OBJECT

public:
    ReportFind(Desk& desk, Menus& menus);

    /// Copies what has changed from the model.
    void sync();

    /// Gives the keyboard to the field, with its text selected.
    void takeFocus();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void addField();
    QToolButton* makeCloseButton();
    void end();

    Desk& desk_;
    TextField* field_;
    QLabel* found_;
};

}  // namespace lorvane::desktop
