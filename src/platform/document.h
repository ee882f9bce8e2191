// A document as plain data: what is written in which order, and what lays it out on pages.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "platform/controls.h"

namespace lorvane {

enum class TextSides { left, centre, right };

/// A cell of a table. A cell that lies under another one is there, and empty.
struct TableCell {
    std::string text = {};  ///< lines parted by "\n"
    TextSides side = TextSides::left;
    std::optional<Colour> shade = {};  ///< none: the paper
    std::optional<Colour> ink = {};    ///< none: black
    bool firstLineBold = false;
    int columns = 1;  ///< how many it covers, its own included
    int rows = 1;
};

/// A table with lines around its cells. It is kept on one page. Text is broken inside its column.
struct DocumentTable {
    std::string widths;                ///< "100|100|100": placeholders, the real ones follow
    std::string headers;               ///< "1|2|3": the numbers of the columns
    std::vector<double> columnWidths;  ///< inches; a column of 0 is hidden, and its cells are empty
    std::vector<std::vector<TableCell>> rows;
    std::size_t headRows = 0;  ///< how many of the rows are heads
};

/// A picture that stays on one page with its caption.
struct DocumentPicture {
    std::string png;           ///< the bytes of a picture file
    double width = 0;          ///< inches; it gets smaller where text or page have no room for it
    std::string caption = {};  ///< stands below
};

/// A stretch of a paragraph that differs from the rest.
struct TextSpan {
    std::size_t from = 0;  ///< bytes from the start of the text
    std::size_t length = 0;
    bool bold = false;
    bool equalWidth = false;  ///< its letters are equally wide
    std::string link = {};    ///< a web address, or "#" and the number of a heading, the first being 0
};

/// One thing that is sent to a document.
namespace step {

/// Holds for what follows, tables too.
struct FontSize {
    double points = 11;
};
struct FontBold {
    bool on = false;
};
/// Lines of text parted by "\n"; the next thing begins below it. A bold one is a heading.
struct Paragraph {
    std::string text;
    double indent = 0;        ///< inches from the left margin
    std::string mark = {};    ///< of an item, as "1."; it hangs at the left of the text
    bool equalWidth = false;  ///< its letters are equally wide
    std::vector<TextSpan> spans = {};
};
/// Text without a paragraph. Documents have "\n" here, an empty line of the size that holds; it is as high as
/// the letters after a text, and half of that below a heading.
struct Text {
    std::string text;
};
struct NewPage {};
struct EndDoc {};

}  // namespace step

/// A heading of this size or more heads a part of the document; the others head sections of a part.
inline constexpr double partPoints = 14;

/// Inches by which the mark of an item stands left of its text.
inline constexpr double markWidth = 0.25;

/// Points between a table and a text that follows it without an empty line.
inline constexpr double noteGap = 4;

using DocumentStep = std::variant<step::FontSize, step::FontBold, step::Paragraph, step::Text, DocumentTable,
                                  DocumentPicture, step::NewPage, step::EndDoc>;

/// Lengths are in inches. The right margin equals the left one.
struct PageSetup {
    double width = 8.5;
    double height = 11;
    double leftMargin = 1;
    double topMargin = 1;  ///< the bottom margin is the same
    std::string font = "Calibri";
    std::string title = {};  ///< for the properties of a file

    double textWidth() const { return width - 2 * leftMargin; }
};

struct Document {
    PageSetup page;
    std::vector<DocumentStep> steps;
};

/// A stretch of the text of a document: of a paragraph, or of a cell of a table.
struct TextPlace {
    std::size_t step = 0;
    std::size_t row = 0;  ///< of the cell, counted from 0
    std::size_t column = 0;
    std::size_t from = 0;  ///< bytes from the start of the text
    std::size_t length = 0;

    bool operator==(const TextPlace&) const = default;
};

/// Takes the steps of a document as they come and measures them. Lengths are in inches.
class DocumentSurface {
public:
    virtual ~DocumentSurface() = default;

    virtual void send(const DocumentStep& step) = 0;

    /// Where a line of text would stand now, from the upper edge of its page.
    virtual double Y1() = 0;

    /// The height of a table in the font that holds now.
    virtual double heightOf(const DocumentTable& table) = 0;

    /// Pages begun so far, at least 1.
    virtual int pages() = 0;
};

/// Turns documents into pages. Where something cannot be made, std::runtime_error tells it in a sentence.
class DocumentPress {
public:
    virtual ~DocumentPress() = default;

    virtual std::unique_ptr<DocumentSurface> start(const PageSetup& page) = 0;

    /// The bytes of a PDF file with the fonts in it and a bookmark for every heading; its links can be
    /// followed.
    virtual std::string pdf(const Document& document) = 0;

    /// A page, counted from 1, as the bytes of a PNG picture.
    virtual std::string picture(const Document& document, int page) = 0;

    /// Asks the user for a printer and prints a page or, without one, all; false when the user cancelled.
    virtual bool print(const Document& document, std::optional<int> page) = 0;
};

}  // namespace lorvane
