// Writing fonts, formats of numbers and XFs.
#include "sheets/biff8_looks.h"

#include <algorithm>
#include <set>
#include <string>
#include <utility>

#include "sheets/utf16.h"

namespace lorvane {

namespace {

// FONT: heights in twentieths of a point.
constexpr unsigned fontHeight = 220;
constexpr unsigned automaticColor = 0x7FFF;
constexpr unsigned regularWeight = 400;
constexpr unsigned boldWeight = 700;
constexpr unsigned swissFamily = 2;
constexpr std::u16string_view fontName = u"Calibri";
constexpr int defaultFonts = 4;
constexpr unsigned regularFont = 0;
constexpr unsigned boldFont = 5;  // the fifth record: no font has the number 4

// FORMAT: own formats have numbers from 164 on.
constexpr std::size_t generalFormat = 0;
constexpr std::size_t firstOwnFormat = 164;

// XF.
constexpr std::size_t styleXfs = 15;
constexpr unsigned styleXf = 0xFFF5;  // locked, a style, without a parent
constexpr unsigned cellXf = 0x0001;   // locked, a cell, its parent the style XF 0
constexpr unsigned wraps = 0x08;
constexpr unsigned atBottom = 0x20;
constexpr unsigned unusedInStyle = 0xF4;  // all groups but none of the default style
constexpr unsigned ownNumber = 0x04;
constexpr unsigned ownFont = 0x08;
constexpr unsigned ownAlignment = 0x10;
constexpr unsigned ownPattern = 0x40;
constexpr unsigned solidPattern = 1u << 26;
constexpr unsigned paleBlue = 0x1F;
constexpr unsigned windowText = 0x40;
constexpr unsigned windowGround = 0x41u << 7;

// STYLE: built in, of the XF 0, "Normal", at no level of an outline.
const WordRecord normalStyle = {RecordId::style, {0x8000, 0xFF00}};

using Formats = std::vector<std::string>;

Formats ownFormats(const std::vector<CellStyle>& styles) {
    std::set<std::string> formats;
    for (const CellStyle& style : styles) {
        if (style.isNumber)
            formats.insert(numberFormat(style));
    }
    return {formats.begin(), formats.end()};
}

std::size_t formatOf(const CellStyle& style, const Formats& formats) {
    if (!style.isNumber)
        return generalFormat;
    const auto found = std::lower_bound(formats.begin(), formats.end(), numberFormat(style));
    return firstOwnFormat + static_cast<std::size_t>(found - formats.begin());
}

void addFont(RecordStream& stream, unsigned weight) {
    LittleEndian body;
    body.word(fontHeight).word(0).word(automaticColor).word(weight);
    body.word(0).byte(0).byte(swissFamily).byte(0).byte(0);  // no script, no line, charset of Western letters
    body.byte(fontName.size()).byte(wideLetters).text(fontName);
    stream.add(RecordId::font, body);
}

void addFonts(RecordStream& stream) {
    for (int i = 0; i < defaultFonts; ++i)
        addFont(stream, regularWeight);
    addFont(stream, boldWeight);
}

void addFormats(RecordStream& stream, const Formats& formats) {
    for (std::size_t i = 0; i < formats.size(); ++i) {
        const std::u16string text = utf16(formats[i]);
        stream.add(RecordId::format,
                   LittleEndian().word(firstOwnFormat + i).word(text.size()).byte(wideLetters).text(text));
    }
}

struct Xf {
    unsigned font;
    std::size_t format;
    unsigned kind;
    unsigned alignment;
    unsigned groups;
    bool ground = false;
};

void addXf(RecordStream& stream, const Xf& xf) {
    LittleEndian body;
    body.word(xf.font).word(xf.format).word(xf.kind);
    body.byte(xf.alignment).byte(0).byte(0).byte(xf.groups);  // not turned, not indented
    body.dword(0);                                            // no lines at the edges
    body.dword(xf.ground ? solidPattern : 0);
    body.word((xf.ground ? paleBlue : windowText) | windowGround);
    stream.add(RecordId::xf, body);
}

Xf xfOfStyle(const CellStyle& style, const Formats& formats) {
    Xf xf{regularFont, formatOf(style, formats), cellXf, atBottom, 0};
    if (style.isNumber)
        xf.groups |= ownNumber;
    if (style.heading) {
        xf.font = boldFont;
        xf.ground = true;
        xf.groups |= ownFont | ownPattern;
    }
    if (style.wraps) {
        xf.alignment |= wraps;
        xf.groups |= ownAlignment;
    }
    return xf;
}

}  // namespace

std::size_t Biff8Looks::xfOf(const CellStyle& style) const {
    const auto found = std::lower_bound(styles_.begin(), styles_.end(), style);
    return defaultCellXf + 1 + static_cast<std::size_t>(found - styles_.begin());
}

void Biff8Looks::write(RecordStream& stream) const {
    const Formats formats = ownFormats(styles_);
    addFonts(stream);
    addFormats(stream, formats);
    for (std::size_t i = 0; i < styleXfs; ++i)
        addXf(stream, {regularFont, generalFormat, styleXf, atBottom, i == 0 ? 0 : unusedInStyle});
    addXf(stream, {regularFont, generalFormat, cellXf, atBottom, 0});
    for (const CellStyle& style : styles_)
        addXf(stream, xfOfStyle(style, formats));
    stream.add(normalStyle);
}

}  // namespace lorvane
