// The page of all keys.
#include "guidance/keyboard_page.h"

#include <algorithm>
#include <set>
#include <stdexcept>

namespace lorvane {

namespace {

// Keys that are no commands.
const KeySection& keysOfValues() {
    static const KeySection keys{"A value",
                                 false,
                                 {{"0 to 9", "Type a new value"},
                                  {"Enter", "Open it for typing"},
                                  {"↑ ↓", "One step"},
                                  {"PgUp PgDn", "Ten steps"},
                                  {"Space", "Open a choice"},
                                  {"L", "Link or unlink the two groups"},
                                  {"Shift+F10", "Menu of the value"},
                                  {"F1", "Details of the value"}}};
    return keys;
}

const KeySection& keysOfMoving() {
    static const KeySection keys{
        "Moving", false, {{"Tab Shift+Tab", "Next or previous value"}, {"← →", "Neighbour in the row"}}};
    return keys;
}

const KeySection& keysOfWindows() {
    static const KeySection keys{"Windows",
                                 true,
                                 {{"F6 Shift+F6", "Round the main window and panels"},
                                  {"Esc", "Close the panel, back to the value"},
                                  {"Alt+F4", "Close the window in front"},
                                  {"Alt", "Menu bar"}}};
    return keys;
}

// The commands of a screen that have keys, in the order of its menus and its tool bar; those of a value stand
// with its keys.
KeySection keysOfCommands(const CommandBook& book, const std::string& heading, bool atRight,
                          const std::string& screen) {
    KeySection section{heading, atRight, {}};
    std::set<std::string> seen;
    for (const Band& band : book.bands()) {
        if (band.screen != screen || band.kind == BandKind::popup)
            continue;
        for (const BandEntry& entry : band.entries) {
            const Command* command = book.row(entry.name);
            const bool hasKeys = command != nullptr && command->run && !command->tool.shortcut.empty() &&
                                 command->tool.keyOfCell.empty();
            if (hasKeys && seen.insert(entry.name).second)
                section.rows.push_back({command->tool.shortcut, command->tool.ToolTipText});
        }
    }
    return section;
}

PageSetup pageFor(PaperSizes paper) {
    PageSetup page;
    if (paper == PaperSizes::a4) {
        page.width = 8.27;
        page.height = 11.69;
    }
    return page;
}

void addSection(Document& document, const KeySection& section) {
    static const std::vector<double> widths = {2, 4};
    DocumentTable table{"100|100", "1|2", widths, {}};
    for (const KeyRow& row : section.rows)
        table.rows.push_back({{row.keys}, {row.words}});
    document.steps.push_back(step::FontSize{12});
    document.steps.push_back(step::FontBold{true});
    document.steps.push_back(step::Paragraph{section.heading});
    document.steps.push_back(step::FontSize{9.5});
    document.steps.push_back(step::FontBold{false});
    document.steps.push_back(std::move(table));
    document.steps.push_back(step::Text{"\n"});
}

}  // namespace

KeyboardPage::KeyboardPage(Design& design, DocumentPress* press) : design_(design), press_(press) {
    cmdPrint_.Enabled = press != nullptr;
}

void KeyboardPage::fill(const CommandBook& book) {
    sections_ = {keysOfValues(),
                 keysOfMoving(),
                 keysOfCommands(book, "Report", false, "frmPrint"),
                 keysOfWindows(),
                 keysOfCommands(book, "Study", true, ""),
                 keysOfCommands(book, "Graph", true, "xPlot")};
}

void KeyboardPage::registerNames(ControlRegistry& registry) const {
    registry.add("frmKeyboard.Visible", &isOpen_);
    registry.addGrid("frmKeyboard.vsKeys", [this] { return grid(); });
}

void KeyboardPage::registerEvents(EventRegistry& events) {
    const auto close = [this] { isOpen_ = false; };
    events.onClick("frmKeyboard.cmdPrint", [this] { print(); });
    events.onClick("frmKeyboard.cmdClose", close);
    events.onClose("frmKeyboard", close);
}

Grid KeyboardPage::grid() const {
    Grid grid{{{"", "Keys", "Words"}}};
    for (const KeySection& section : sections_) {
        for (const KeyRow& row : section.rows)
            grid.rows.push_back({section.heading, row.keys, row.words});
    }
    return grid;
}

Document KeyboardPage::document() const {
    Document document{pageFor(design_.settings().ReportPaper), {}};
    document.page.title = pnlTitle_.Caption;
    document.steps = {step::FontSize{partPoints}, step::FontBold{true}, step::Paragraph{pnlHeading_.Caption}};
    for (const KeySection& section : sections_)
        addSection(document, section);
    document.steps.push_back(step::EndDoc{});
    return document;
}

void KeyboardPage::print() {
    if (press_ == nullptr)
        return;
    try {
        if (press_->print(document(), std::nullopt))
            design_.tellStatus("The page of the keys has been printed.");
    } catch (const std::runtime_error& problem) {
        design_.ask(failureMessage("Print", problem.what()));
    }
}

}  // namespace lorvane
