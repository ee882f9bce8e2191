// The form of the tables of commands and menus: what a row holds, and how rows become commands and bands.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "app/program.h"
#include "screen/command_book.h"

namespace lorvane {

/// How a command looks and is reached beside its caption.
struct Looks {
    Sign sign = Sign::none;
    bool withWord = false;
    const char* shortcut = "";
    const char* word = "";     ///< a shorter caption for the tool bar
    bool opensDialog = false;  ///< its caption in menus ends in three dots
    const char* keyOfCell =
        "";  ///< key of the value with the focus, which takes it by itself where it is no shortcut
};

struct CommandRow {
    const char* key;
    const char* caption;
    const char* tip;
    ToolCategory category;
    void (*run)(const Program&) = nullptr;         ///< none: the program has no subject for it
    ToolState (*state)(const Program&) = nullptr;  ///< none: always on offer
    Looks looks = {};
};

/// A menu as a list of keys: "-" is a line, ">" the gap before the right end, "+" leads to another menu.
struct MenuRow {
    std::string name;
    const char* caption;
    BandKind kind;
    std::vector<std::string> keys;
};

inline ToolState checkedIf(bool checked) { return {.checked = checked}; }
inline ToolState visibleIf(bool visible) { return {.visible = visible}; }

/// On offer or not, and why not.
inline ToolState enabledIf(bool enabled, const char* reason) {
    return {.enabled = enabled, .reason = reason};
}

/// A name that a user gave as a caption: an "&" in it is shown, not taken for a mnemonic.
std::string plainCaption(std::string name);

Tool toolOf(std::string key, std::string caption, const char* tip, ToolCategory category,
            const Looks& looks = {});

/// Adds a command for every row; the program must outlive them.
void addCommands(std::vector<Command>& commands, const Program& program, std::span<const CommandRow> rows);

Band bandOf(const MenuRow& row);

}  // namespace lorvane
