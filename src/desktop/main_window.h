// The main window: bars, title, effect strip, table of levels, power and cost, status line.
#pragma once

#include <vector>

#include <QMainWindow>

#include "desktop/desk.h"

class QLabel;
class QScrollArea;
class QVBoxLayout;

namespace lorvane::desktop {

class EffectStrip;
class LevelTable;
class Menus;
class NoticeCard;
class ResultCards;

/// The window with the study. It closes only when the program has asked about unsaved work.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit MainWindow(Desk& desk);

    /// Copies what has changed from the models.
    void sync();

    /// The cell of a panel's name, for panels and tests; null when there is none.
    QWidget* cell(const std::string& panel) const;

    /// The menus, for the popups of the floating windows.
    Menus& menus() { return *menus_; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void addBars();
    QWidget* makeContent();
    void addTitle(QVBoxLayout* column);
    void syncStatus();
    void focusFirstValue();
    void syncNotice();
    void chooseSize();

    Desk& desk_;
    Menus* menus_;
    QLabel* title_ = nullptr;
    QLabel* sense_ = nullptr;
    QLabel* hint_ = nullptr;
    QLabel* saved_ = nullptr;
    int studyNumber_ = -1;
    NoticeCard* notice_ = nullptr;
    QScrollArea* scroll_ = nullptr;
    EffectStrip* strip_ = nullptr;
    LevelTable* table_ = nullptr;
    ResultCards* results_ = nullptr;
    QVBoxLayout* page_ = nullptr;
    QVBoxLayout* upper_ = nullptr;
};

}  // namespace lorvane::desktop
