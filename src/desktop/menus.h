// Menus, popups and tool bar made from the bands; every entry is one tool and follows it.
#pragma once

#include <map>
#include <string>
#include <vector>

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QPoint>

#include "desktop/desk.h"

class QMenuBar;
class QToolBar;
class QVBoxLayout;

namespace lorvane::desktop {

class MenuButton;
class MenuOverflow;
class StressedLabel;
class ToolButton;

/// Heights of the two bars, with their lines.
inline constexpr int menuBarHeight = 29;
inline constexpr int toolBarHeight = 46;

/// One action a command, however often it stands in menus and bars. The window owns them all.
class Menus : public QObject {
    Q_OBJECT

public:
    /// The menus of a screen, "xPlot"; of the main one where it is empty.
    explicit Menus(Desk& desk, QWidget* window, std::string screen = {});

    /// Fills the menu bar from the bands that are menus.
    void fill(QMenuBar* bar);

    /// Fills the tool bar: signs with words where the eye needs them, guide and details at the right end.
    void fill(QToolBar* bar);

    /// A window of its own: puts its menu bar and its tool bar into a column.
    void addTo(QVBoxLayout* column);

    /// Opens the popup of a band; nothing for a band without tools.
    void popup(const std::string& band, const QPoint& place);

    /// The menu of a band, made once.
    QMenu* menu(const std::string& band);

    /// The action of a tool, made once, and a button for it, which the parent owns.
    QAction* action(const std::string& tool);
    ToolButton* button(const std::string& tool, QWidget* parent);

    /// Leaves the words of the tool bar out and sets the menus closer, where the window is narrow.
    void setNarrow(bool narrow);

    /// Copies what has changed from the tools.
    void sync();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QAction* ownActionOf(const QKeySequence& key) const;
    QAction* ownMenuOf(const QKeySequence& key) const;
    void sync(QAction* action, const Tool& tool);
    void show(QAction* action, const Tool& tool);
    QAction* form(const std::string& tool);
    void syncForm(QAction* action, const Tool& tool);
    void addEntries(QMenu* menu, const Band& band);
    void addPowerButton(QToolBar* bar);
    const Band& toolBar() const;
    void addMenuButton(QToolBar* bar, const std::string& band);
    void addButton(QToolBar* bar, const std::string& tool);
    void addLabel(QToolBar* bar, const std::string& tool);
    void addTool(QToolBar* bar, const std::string& tool);

    Desk& desk_;
    QWidget* window_;
    std::string screen_;
    std::map<std::string, QAction*> actions_;
    std::map<std::string, QAction*> forms_;  ///< entries that close what is open
    std::map<std::string, QMenu*> menus_;
    QMenuBar* menuBar_ = nullptr;
    MenuOverflow* overflow_ = nullptr;
    MenuButton* power_ = nullptr;
    std::vector<ToolButton*> words_;
    std::map<std::string, StressedLabel*> labels_;
};

}  // namespace lorvane::desktop
