// Display models of menus and tool bars: a tool is one command, a band is a menu, a popup or a bar.
#pragma once

#include <string>
#include <vector>

namespace lorvane {

/// What a tool is: display ones show their caption and cannot be pressed.
enum class ToolCategory { command, choice, increment, window, file, help, display };

/// The sign that a command carries; a view draws it.
enum class Sign {
    none,
    open,
    fresh,
    save,
    powerDigits,
    powerBar,
    costDigits,
    costBar,
    maximumCost,
    requiredPower,
    optimal,
    mdes,
    scenarios,
    addScenario,
    report,
    graph,
    guide,
    details,
    undo,
    redo,
    copy,
    axis,
    series,
    coin,
    table,
    saveGraph,
    left,
    right,
    up,
    down,
    close,
    edit,
    link,
    print,
    first,
    last,
    pageWidth,
    fitPage
};

/// One command as it stands. It may stand in several bands.
struct Tool {
    std::string Name;
    std::string Caption;  ///< with "&" before the letter that reaches it by keyboard
    std::string ToolTipText;
    ToolCategory Category = ToolCategory::command;
    Sign sign = Sign::none;
    bool withWord = false;  ///< the tool bar shows its caption beside the sign
    std::string word;       ///< a shorter caption for the tool bar; empty: the caption
    std::string shortcut;   ///< keys, "Ctrl+Z"; several are parted by blanks
    std::string
        keyOfCell;  ///< key of the value with the focus, "Enter"; the value takes it where it is no shortcut
    bool opensDialog = false;
    std::string Shown = {};   ///< the caption as menus show it, with its dots
    std::string Reason = {};  ///< why it is not on offer; empty while it is
    bool Checked = false;
    bool Visible = true;
    bool Enabled = true;
};

enum class BandKind { menu, submenu, popup, toolbar };

/// A place on a band: a tool, a line between groups, another band that opens from here, or the gap after
/// which the entries stand at the right end.
struct BandEntry {
    enum class Kind { tool, line, band, stretch };
    Kind kind = Kind::tool;
    std::string name;
};

struct Band {
    std::string Name;
    std::string Caption;
    BandKind kind = BandKind::menu;
    std::vector<BandEntry> entries;
    bool toggles = false;     ///< its entries close what is open
    std::string screen = {};  ///< window that it belongs to, "xPlot"; empty: the main one
    Sign sign = Sign::none;   ///< of the button on a tool bar that opens it
    std::string word = {};    ///< caption of that button
};

}  // namespace lorvane
