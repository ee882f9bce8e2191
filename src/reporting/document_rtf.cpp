// The head of a rich text file, its paragraphs, and the space between them.
#include "reporting/document_rtf.h"

#include <algorithm>
#include <string_view>

#include "base/rtf_text.h"
#include "base/utf8.h"
#include "reporting/document_blocks.h"
#include "reporting/rtf_table.h"
#include "reporting/rtf_words.h"

namespace lorvane {

namespace {

// Lines of paragraphs are that many times as high as their letters.
constexpr double lineHeight = 1.3;

struct Font {
    std::string_view name;
    std::string_view family;
    std::string_view alike;  // has letters of the same widths
};

constexpr Font fonts[] = {{"Calibri", "swiss", "Carlito"},
                          {"Arial", "swiss", "Liberation Sans"},
                          {"Times New Roman", "roman", "Liberation Serif"}};

std::string fontTable(const std::string& name) {
    std::string family = "nil";
    std::string alike;
    for (const Font& font : fonts) {
        if (font.name == name) {
            family = font.family;
            alike.append("{\\*\\falt ").append(font.alike).append("}");
        }
    }
    return "{\\fonttbl{\\f0\\f" + family + "\\fcharset0 " + rtfText(name) + alike + ";}}\n";
}

std::string headOf(const PageSetup& page, const RtfColours& colours) {
    std::string rtf = "{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1\n" + fontTable(page.font) + colours.table();
    rtf += "{\\stylesheet{\\s0 Normal;}{\\s1\\outlinelevel0 heading 1;}{\\s2\\outlinelevel1 heading 2;}}\n";
    rtf += "{\\info{\\title " + rtfText(printable(page.title)) + "}}\n";
    rtf += rtfWord("paperw", twipsOfInches(page.width)) + rtfWord("paperh", twipsOfInches(page.height));
    for (const char* side : {"margl", "margr"})
        rtf += rtfWord(side, twipsOfInches(page.leftMargin));
    for (const char* side : {"margt", "margb"})
        rtf += rtfWord(side, twipsOfInches(page.topMargin));
    // Programs count the pages anew when they open the file.
    return rtf + "\\widowctrl\n{\\footer\\pard\\plain\\qc\\f0\\fs18 Page \\chpgn  of "
                 "{\\field{\\*\\fldinst NUMPAGES}{\\fldrslt 1}}\\par}\n";
}

// A line without text: tables need one between them, and a page cannot begin with a table itself.
std::string thinLine(double points, bool beginsPage) {
    const std::string height = rtfWord("sl", -std::max(twipsOfPoints(points), 20L));
    return std::string("\\pard\\plain").append(beginsPage ? "\\pagebb" : "").append(height) +
           "\\slmult0\\fs2\\par\n";
}

std::string paragraph(const DocumentBlock& block, double spaceAbove, double spaceBelow) {
    constexpr const char* outlines[] = {"", "\\s1\\outlinelevel0\\keepn", "\\s2\\outlinelevel1\\keepn"};
    std::string rtf = "\\pard\\plain";
    rtf += outlines[static_cast<int>(block.kind)];
    rtf += block.pageBreak == PageBreaks::forced ? "\\pagebb" : "";
    rtf += rtfWord("sb", twipsOfPoints(spaceAbove)) + rtfWord("sa", twipsOfPoints(spaceBelow));
    rtf += rtfWord("sl", twipsOfPoints(block.points * lineHeight)) + "\\slmult0\\widctlpar\\f0";
    return rtf + rtfSize(block.points) + (block.bold ? "\\b " : " ") + rtfText(block.text) + "\\par\n";
}

// The space between two blocks belongs to the upper one, where a page may end; a table can have none.
std::string bodyOf(const std::vector<DocumentBlock>& blocks, RtfColours& colours) {
    std::string rtf;
    for (std::size_t i = 0; i < blocks.size(); ++i) {
        const DocumentBlock& block = blocks[i];
        const bool followsText = i > 0 && !blocks[i - 1].table;
        const bool isForced = block.pageBreak == PageBreaks::forced;
        if (!block.table) {
            const double below = i + 1 < blocks.size() ? blocks[i + 1].above : 0;
            rtf += paragraph(block, followsText ? 0 : block.above, below);
            continue;
        }
        if (!followsText || isForced)
            rtf += thinLine(block.above, isForced);
        rtf += rtfTable(block, colours);
    }
    return rtf + (!blocks.empty() && blocks.back().table ? thinLine(0, false) : "");
}

}  // namespace

std::string rtfOf(const Document& document) {
    RtfColours colours;
    const std::string body = bodyOf(blocksOf(document.steps), colours);
    return headOf(document.page, colours) + body + "}\n";
}

}  // namespace lorvane
