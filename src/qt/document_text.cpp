// Fonts, lines and where they may be parted.
#include "qt/document_text.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPainter>
#include <QTextOption>
#include <algorithm>
#include <cmath>

#include "base/utf8.h"

namespace lorvane {

namespace {

struct StandIn {
    const char* name;
    const char* sameWidths;
};

constexpr StandIn standIns[] = {
    {"Calibri", "Carlito"}, {"Arial", "Liberation Sans"}, {"Times New Roman", "Liberation Serif"}};

const QColor linkColour(0x1F, 0x4E, 0x9E);
/// Letters of equal width look larger than others of their size.
constexpr double equalWidthShare = 0.86;

// Families that are there, the best first.
QStringList familiesFor(const QString& name, QFontDatabase::SystemFont otherwise) {
    QStringList found;
    const auto add = [&](const QString& family) {
        if (QFontDatabase::hasFamily(family))
            found << family;
    };
    add(name);
    for (const StandIn& row : standIns) {
        if (name == QLatin1String(row.name))
            add(QString::fromLatin1(row.sameWidths));
    }
    return found.isEmpty() ? QStringList(QFontDatabase::systemFont(otherwise).family()) : found;
}

// The place of a byte in the text as it is shown.
qsizetype placeOf(const std::string& text, std::size_t byte) {
    return QString::fromStdString(printable(text.substr(0, byte), LineEnds::kept)).size();
}

// What of the formats of a whole text belongs to a piece of it.
QList<QTextLayout::FormatRange> withinPiece(QList<QTextLayout::FormatRange> formats, qsizetype start,
                                            qsizetype length) {
    for (QTextLayout::FormatRange& range : formats) {
        const qsizetype from = std::max<qsizetype>(range.start - start, 0);
        range.length = static_cast<int>(std::min(range.start + range.length - start, length) - from);
        range.start = static_cast<int>(from);
    }
    formats.removeIf([](const QTextLayout::FormatRange& range) { return range.length <= 0; });
    return formats;
}

// The first letter that may stand above or below its line: marks, and whatever is not Latin.
constexpr char16_t firstTall = 0x300;
/// How far it may, in heights of a line.
constexpr double reach = 0.2;

}  // namespace

DocumentFonts::DocumentFonts(const std::string& name)
    : families_(familiesFor(QString::fromStdString(name), QFontDatabase::GeneralFont)),
      equalWidthFamilies_(familiesFor(QStringLiteral("DejaVu Sans Mono"), QFontDatabase::FixedFont)) {
    constexpr double points = 11;
    capitals_ = QFontMetricsF(font(points, false)).capHeight() / (points * twipsPerPoint);
}

const QFont& DocumentFonts::font(double points, bool bold, bool equalWidth) const {
    const double share = equalWidth ? equalWidthShare : 1;
    const int twips = std::max(1, static_cast<int>(std::lround(points * share * twipsPerPoint)));
    const auto [row, isNew] = made_.try_emplace({twips, bold, equalWidth});
    if (isNew) {
        QFont& font = row->second;
        font.setFamilies(equalWidth ? equalWidthFamilies_ : families_);
        font.setPixelSize(twips);
        font.setBold(bold);
        font.setHintingPreference(QFont::PreferNoHinting);
        // Any spacing keeps letters from melting into one sign, whose letters a reader of a file could not
        // find.
        font.setLetterSpacing(QFont::AbsoluteSpacing, 1.0 / 64);
    }
    return row->second;
}

DocumentText::DocumentText(const std::string& text, const DocumentFonts& fonts, const TextLook& look,
                           double width, const std::vector<TextSpan>& spans)
    : source_(text), spans_(spans), look_(look), width_(width),
      baseline_((look.lineHeight() + fonts.capitals() * look.points * twipsPerPoint) / 2) {
    const QString all = QString::fromStdString(printable(text, LineEnds::kept));
    reachesOut_ =
        std::any_of(all.begin(), all.end(), [](QChar letter) { return letter.unicode() >= firstTall; });
    const Formats formats = formatsOf(fonts);
    for (const QString& piece : all.split(QLatin1Char('\n'))) {
        const bool bold = look.bold || (look.firstLineBold && pieces_.empty());
        breakPiece(piece, fonts.font(look.points, bold, look.equalWidth), formats);
    }
}

DocumentText::Formats DocumentText::formatsOf(const DocumentFonts& fonts) const {
    Formats formats;
    for (const TextSpan& span : spans_) {
        const auto from = static_cast<int>(placeOf(source_, span.from));
        const auto end = static_cast<int>(placeOf(source_, span.from + span.length));
        QTextCharFormat format;
        format.setFont(
            fonts.font(look_.points, look_.bold || span.bold, look_.equalWidth || span.equalWidth));
        if (!span.link.empty())
            format.setForeground(linkColour);
        formats.append({from, end - from, format});
    }
    return formats;
}

void DocumentText::breakPiece(const QString& piece, const QFont& font, const Formats& formats) {
    starts_.push_back(pieces_.empty() ? 0 : starts_.back() + pieces_.back()->text().size() + 1);
    pieces_.push_back(std::make_unique<QTextLayout>(piece, font));
    QTextLayout& layout = *pieces_.back();
    layout.setFormats(withinPiece(formats, starts_.back(), piece.size()));
    QTextOption option(look_.side);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTextDirection(Qt::LeftToRight);
    layout.setTextOption(option);
    layout.setCacheEnabled(true);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width_);
        lines_.push_back({static_cast<int>(pieces_.size()) - 1, line.lineNumber(), line});
    }
    layout.endLayout();
}

QString DocumentText::shown() const { return QString::fromStdString(printable(source_, LineEnds::kept)); }

int DocumentText::firstFilled(int line) const {
    const auto from = lines_.begin() + line;
    const auto isFilled = [](const Line& each) { return each.text.textLength() > 0; };
    return static_cast<int>(std::find_if(from, lines_.end(), isFilled) - lines_.begin());
}

// A line below an empty one opens what follows, as "Notes." does, and stays with it.
bool DocumentText::mayBreakBefore(int line) const {
    const auto leavesOne = [](int before, int all) { return all > 2 && (before == 1 || before == all - 1); };
    const auto isEmpty = [this](int each) {
        return lines_[static_cast<std::size_t>(each)].text.textLength() == 0;
    };
    const Line& next = lines_[static_cast<std::size_t>(line)];
    const int lines = pieces_[static_cast<std::size_t>(next.piece)]->lineCount();
    const int filled = isEmpty(this->lines() - 1) ? this->lines() - 1 : this->lines();
    const bool opens = line > 1 && isEmpty(line - 2) && !isEmpty(line - 1);
    return !opens && !leavesOne(line, filled) && !leavesOne(next.number, lines);
}

int DocumentText::pageEnd(int from, int room, int least) const {
    if (lines() - from <= room)
        return lines();
    for (int line = from + room; line >= from + least; --line) {
        if (mayBreakBefore(line))
            return line;
    }
    return from;
}

bool DocumentText::breaksWord() const {
    return std::any_of(lines_.begin(), lines_.end(), [this](const Line& line) {
        const QString text = pieces_[static_cast<std::size_t>(line.piece)]->text();
        const int end = line.text.textStart() + line.text.textLength();
        if (line.text.textLength() == 0 || end == text.size())
            return false;
        const QChar last = text.at(end - 1);
        return !last.isSpace() && last != QLatin1Char('-') && last.unicode() < firstTall;
    });
}

void DocumentText::paint(QPainter& painter, QPointF place, int from, int end) const {
    for (int i = from; i < end; ++i) {
        const QTextLine& line = lines_[static_cast<std::size_t>(i)].text;
        const QPointF corner = place + QPointF(0, (i - from) * lineHeight());
        // Letters of another font may be higher, and must not move the line.
        const QPointF start = corner + QPointF(0, baseline_ - line.ascent());
        if (!reachesOut_) {
            line.draw(&painter, start);
            continue;
        }
        painter.save();
        const double beyond = lineHeight() * reach;
        painter.setClipRect(QRectF(corner, QSizeF(width_, lineHeight())).adjusted(0, -beyond, 0, beyond),
                            Qt::IntersectClip);
        line.draw(&painter, start);
        painter.restore();
    }
}

std::vector<QRectF> DocumentText::spots(std::size_t from, std::size_t length, int firstLine,
                                        int endLine) const {
    const qsizetype begin = placeOf(source_, from);
    const qsizetype end = placeOf(source_, from + length);
    std::vector<QRectF> found;
    for (int i = firstLine; i < endLine; ++i) {
        const auto& [piece, number, line] = lines_[static_cast<std::size_t>(i)];
        const qsizetype start = starts_[static_cast<std::size_t>(piece)];
        const int first = static_cast<int>(std::max<qsizetype>(begin - start, line.textStart()));
        const int last =
            static_cast<int>(std::min<qsizetype>(end - start, line.textStart() + line.textLength()));
        if (first >= last)
            continue;
        double left = line.cursorToX(first);
        double right = left;
        for (int place = first + 1; place <= last; ++place) {
            left = std::min(left, line.cursorToX(place));
            right = std::max(right, line.cursorToX(place));
        }
        found.emplace_back(left, (i - firstLine) * lineHeight(), right - left, lineHeight());
    }
    return found;
}

}  // namespace lorvane
