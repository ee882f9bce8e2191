// The main window: bars, title, effect strip, table of levels, power and cost, status line.
#pragma once

#include <vector>

#include <QMainWindow>

#include "desktop/desk.h"
#include "desktop/page_sizes.h"

class QLabel;
class QScrollArea;
class QVBoxLayout;

namespace lorvane::desktop {

class EffectStrip;
class LevelTable;
class Menus;
class NoticeCard;
class ResultCards;

/// The window with the study. It closes only when the program has asked about unsaved work. It opens within
/// the free area of the screen, and its middle is laid out anew for every size.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit MainWindow(Desk& desk);
    ~MainWindow() override;

    /// Copies what has changed from the models.
    void sync();

    /// The cell of a panel's name, for panels and tests; null when there is none.
    QWidget* cell(const std::string& panel) const;

    /// What stands on the screen under the name of a control, with its caption; cells and the windows that
    /// accompany this one included. Empty when there is nothing.
    QList<QWidget*> control(const std::string& name) const;

    /// Scrolls the first of these cells into sight.
    void reveal(const std::vector<std::string>& cells);

    /// How many times larger than at 100 % the middle is shown.
    double zoom() const { return zoom_; }

    /// The widths of the middle in which the whole table fits: with its wide columns, and with the narrow
    /// ones.
    int roomyMiddle() const;
    int smallestMiddle() const;

    /// The menus, for the popups of the floating windows.
    Menus& menus() { return *menus_; }

signals:
    /// The window has become so large, or so small, that middle and docks are shown at another size.
    void zoomChanged(double zoom);

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    /// What the places in the middle depend on.
    struct Laid {
        PageSizes sizes;
        bool narrow = false;
        double zoom = 1;
        bool operator==(const Laid&) const = default;
    };

    void addBars();
    QWidget* makeContent();
    void addTitle(QVBoxLayout* column);
    QWidget* makeUpper();
    void addStatus();
    void openInScreen();
    void syncStatus();
    void focusFirstValue();
    void syncNotice();
    void chooseZoom();
    void keepFocus(QWidget* former);
    void chooseSize();
    void place(const Laid& laid);
    void keepInSight(QWidget* focused);

    Desk& desk_;
    Menus* menus_;
    QWidget* titles_ = nullptr;
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
    QWidget* sheet_ = nullptr;
    QVBoxLayout* page_ = nullptr;
    QVBoxLayout* upper_ = nullptr;
    double zoom_ = 1;
    Laid laid_;
};

}  // namespace lorvane::desktop
