// The text of the style sheet, with the roles put in by name. Sets nothing.
#include "desktop/kit/style_sheet.h"

#include "desktop/kit/theme.h"

namespace lorvane::desktop {

namespace {

constexpr const char* Sheet = R"(
QMenuBar { background: @bar; border: none; padding: 3px 8px 0 8px; spacing: 0; menubar-separator: 1; }
QMenuBar::item { background: transparent; color: @text; padding: 5px 12px; border-radius: 6px; }
QMenuBar[narrow="true"] { padding: 3px 7px 0 7px; spacing: 6px; }
QMenuBar[narrow="true"]::item { padding: 5px 7px; }
QMenuBar::item:selected, QMenuBar::item:pressed { background: @field; }
QMenuBar::item:disabled { color: @quiet; }

QToolTip { background: @card; color: @text; border: 1px solid @strongLine; padding: 4px 7px; }

QToolBar { background: @bar; border: none; border-bottom: 1px solid @line; spacing: 0; padding: 0; }
QToolBar::separator { width: 1px; background: @line; margin: 11px 7px; }

QToolButton { background: transparent; color: @text; border: none; border-radius: 6px; padding: 0 8px; }
QToolButton:hover, QToolButton:pressed { background: @field; }
QToolButton:checked { background: @accentTint; color: @accent; }
QToolButton:focus { border: 2px solid @accent; padding: 0 6px; }
QToolButton:disabled { color: @quiet; background: transparent; }
QToolButton::menu-indicator { image: none; }
QToolBar QToolButton { margin: 5px 0; min-height: 34px; }
QToolBar QToolButton:focus { min-height: 30px; }

QPushButton { background: @card; color: @text; border: 1px solid @strongLine; border-radius: 6px;
              padding: 0 15px; min-height: 30px; min-width: 52px; font-weight: 500; }
QPushButton:hover, QPushButton:pressed { background: @field; }
QPushButton:focus { background: @card; border: 2px solid @accent; padding: 0 14px; min-height: 28px; }
QPushButton:disabled { background: @card; color: @quiet; border: 1px solid @line; }
QPushButton[primary="true"] { background: @accentFill; color: @onAccent; border: 1px solid @accentFill; }
QPushButton[primary="true"]:hover, QPushButton[primary="true"]:pressed { background: @accentFillHover;
              border-color: @accentFillHover; }
QPushButton[primary="true"]:focus { border: 2px solid @accentFill; }
QPushButton[primary="true"]:disabled { background: @field; color: @quiet; border: 1px solid @line; }
QPushButton[flat="true"] { background: transparent; border: none; padding: 0; min-height: 0; min-width: 0; }

QLabel[second="true"] { color: @secondText; }
QLabel[problem="true"] { color: @problemText; font-weight: 500; }

QLineEdit { background: @card; color: @text; border: 1px solid @strongLine; border-radius: 6px;
            padding: 0 10px; min-height: 30px; selection-background-color: @textSelection;
            selection-color: @text; }
QLineEdit:focus { border: 2px solid @accent; padding: 0 9px; min-height: 28px; }
QLineEdit:disabled { color: @quiet; border-color: @line; }
QLineEdit[problem="true"] { background: @problemTint; border: 2px solid @problemOutline; padding: 0 9px;
            min-height: 28px; }

QLineEdit[large="true"] { min-height: 36px; }
QLineEdit[large="true"]:focus, QLineEdit[large="true"][problem="true"] { min-height: 34px; }

QLineEdit[plain="true"] { background: transparent; color: @secondText; border: 1px solid transparent; }
QLineEdit[plain="true"]:hover { border-color: @line; }
QLineEdit[plain="true"]:focus { background: @card; border: 2px solid @accent; }

QScrollBar { background: transparent; border: none; }
QScrollBar:vertical { width: 14px; }
QScrollBar:horizontal { height: 14px; }
QScrollBar::handle { background: @strongLine; border-radius: 4px; margin: 3px; }
QScrollBar::handle:vertical { min-height: 24px; }
QScrollBar::handle:horizontal { min-width: 24px; }
QScrollBar::handle:hover { background: @quiet; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QAbstractScrollArea::corner { background: transparent; border: none; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }

QTabWidget::pane { border: none; border-top: 1px solid @line; }
QTabBar { qproperty-drawBase: 0; }
QTabBar::tab { background: transparent; color: @secondText; border: none; border-bottom: 2px solid transparent;
               padding: 8px 2px; margin-right: 20px; font-weight: 500; }
QTabBar::tab:hover { color: @text; }
QTabBar::tab:selected { color: @accent; border-bottom-color: @accent; }
QTabBar::tab:disabled { color: @quiet; }

QMainWindow::separator { background: @line; width: 1px; height: 1px; }
QTabBar[docks="true"] { background: @card; }
QTabBar[docks="true"]::tab { padding: 0 2px; margin: 0 0 0 18px; height: 30px; }
QToolButton[sign="true"] { padding: 0; margin: 0; border-radius: 6px; }

QWidget[guidePaper="true"] { background: @guidePaper; }
QWidget[guidePaper="true"] QLabel { color: @guideText; }
QWidget[guideRule="true"] { background: @guideLine; }
QWidget[guidePaper="true"] QRadioButton { color: @guideText; background: transparent; }
QWidget[guidePaper="true"] QPushButton { background: transparent; color: @guideText; min-width: 40px;
              border: 1px solid @guideLine; padding: 0 8px; }
QWidget[guidePaper="true"] QPushButton:hover, QWidget[guidePaper="true"] QPushButton:pressed {
              background: @guideLine; }
QWidget[guidePaper="true"] QPushButton:focus { border: 2px solid @guideText; padding: 0 7px; }
QWidget[guidePaper="true"] QPushButton:disabled { color: @guideQuiet; }
QWidget[guidePaper="true"] QPushButton[primary="true"] { background: @guideText; color: @guidePaper;
              border: 1px solid @guideText; }
QWidget[guidePaper="true"] QPushButton[primary="true"]:disabled { background: @guideLine; color: @guideQuiet;
              border-color: @guideLine; }

QHeaderView, QTableCornerButton::section { background: @card; border: none; }
QHeaderView::section { background: transparent; color: @secondText; border: none;
                       border-bottom: 1px solid @line; padding: 6px 10px; font-size: 9pt; font-weight: 500; }

QStatusBar { background: @page; color: @secondText; border-top: 1px solid @line; min-height: 27px;
             font-size: 9pt; }
QStatusBar::item { border: none; }
QStatusBar QLabel { color: @secondText; font-size: 9pt; padding: 0 14px 0 18px; }
)";

/// The names by which the sheet calls the roles. They are replaced in this order, so a longer name such as
/// @accentFill stands before @accent, with which it begins.
struct Name {
    const char* name;
    Role role;
};

constexpr Name Names[] = {
    {"@accentFillHover", Role::AccentFillHover},
    {"@accentFill", Role::AccentFill},
    {"@accentTint", Role::AccentTint},
    {"@accent", Role::Accent},
    {"@bar", Role::Bar},
    {"@card", Role::Card},
    {"@field", Role::Field},
    {"@guideLine", Role::GuideLine},
    {"@guidePaper", Role::GuidePaper},
    {"@guideQuiet", Role::GuideQuiet},
    {"@guideText", Role::GuideText},
    {"@line", Role::Line},
    {"@onAccent", Role::OnAccent},
    {"@page", Role::Page},
    {"@problemOutline", Role::ProblemOutline},
    {"@problemText", Role::ProblemText},
    {"@problemTint", Role::ProblemTint},
    {"@quiet", Role::Quiet},
    {"@secondText", Role::SecondText},
    {"@strongLine", Role::StrongLine},
    {"@textSelection", Role::TextSelection},
    {"@text", Role::Text},
};

}  // namespace

QString styleSheet(const Theme& theme) {
    QString sheet = QString::fromLatin1(Sheet);
    for (const Name& name : Names)
        sheet.replace(QLatin1String(name.name), theme.colour(name.role).name());
    return sheet;
}

}  // namespace lorvane::desktop
