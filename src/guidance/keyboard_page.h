// The page of all keys: those of the commands from the book of commands, and those of values and windows from
// a table.
#pragma once

#include <string>
#include <vector>

#include "platform/document.h"
#include "screen/command_book.h"
#include "screen/design.h"
#include "screen/part.h"

namespace lorvane {

/// What one or several keys do.
struct KeyRow {
    std::string keys;  ///< parted by blanks; "to" between two is a word
    std::string words;
};

/// Rows under a heading.
struct KeySection {
    std::string heading;
    bool atRight = false;  ///< in the second column
    std::vector<KeyRow> rows;
};

class KeyboardPage final : public Part {
public:
    /// Without a press nothing is printed.
    KeyboardPage(Design& design, DocumentPress* press);

    /// Reads the keys of the commands. The book must be complete.
    void fill(const CommandBook& book);

    void registerNames(ControlRegistry& registry) const override;
    void registerEvents(EventRegistry& events) override;

    void open() { isOpen_ = true; }
    bool isOpen() const noexcept { return isOpen_; }

    const Panel& pnlTitle() const noexcept { return pnlTitle_; }  ///< of the window
    const Panel& pnlHeading() const noexcept { return pnlHeading_; }
    const Panel& pnlSense() const noexcept { return pnlSense_; }
    const std::vector<KeySection>& sections() const noexcept { return sections_; }
    const Button& cmdPrint() const noexcept { return cmdPrint_; }
    const Button& cmdClose() const noexcept { return cmdClose_; }

private:
    Document document() const;
    Grid grid() const;
    void print();

    Design& design_;
    DocumentPress* press_;
    bool isOpen_ = false;
    Panel pnlTitle_{"Keyboard"};
    Panel pnlHeading_{"Everything without the mouse"};
    Panel pnlSense_{"The same keys stand in the menus and in the tips."};
    Button cmdPrint_{"Print"};
    Button cmdClose_{"Close"};
    std::vector<KeySection> sections_;
};

}  // namespace lorvane
