// Text of a document, broken into lines. Lengths are in twips, 1/20 point: letters are measured and drawn at
// a size where a dot is that small, so they stand alike on a screen, in a file and on paper.
#pragma once

#include <QFont>
#include <QRectF>
#include <QString>
#include <QTextLayout>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/document.h"

class QPainter;

namespace lorvane {

constexpr double twipsPerPoint = 20;
constexpr double twipsPerInch = 1440;

/// The letters that a document is set in.
class DocumentFonts {
public:
    /// A font that the system lacks is stood in for by one whose letters are as wide.
    explicit DocumentFonts(const std::string& name);

    const QFont& font(double points, bool bold, bool equalWidth = false) const;

    /// The height of capital letters beside the size of the font.
    double capitals() const { return capitals_; }

private:
    struct Kind {
        int twips;
        bool bold;
        bool equalWidth;

        auto operator<=>(const Kind&) const = default;
    };

    QStringList families_;
    QStringList equalWidthFamilies_;
    double capitals_;
    mutable std::map<Kind, QFont> made_;
};

/// How a text is set.
struct TextLook {
    double points = 11;
    double lineFactor = 1.295;  ///< the height of a line beside the size
    bool bold = false;
    bool firstLineBold = false;
    Qt::Alignment side = Qt::AlignLeft;
    bool equalWidth = false;

    double lineHeight() const { return points * twipsPerPoint * lineFactor; }
};

/// A text in lines that are no wider than told. What would steer a screen is written out.
class DocumentText {
public:
    DocumentText(const std::string& text, const DocumentFonts& fonts, const TextLook& look, double width,
                 const std::vector<TextSpan>& spans = {});

    int lines() const { return static_cast<int>(lines_.size()); }
    double lineHeight() const { return look_.lineHeight(); }
    double height() const { return lines() * lineHeight(); }

    const std::vector<TextSpan>& spans() const { return spans_; }

    /// The text as it is shown.
    QString shown() const;

    /// The first line from one on that holds anything; the number of lines where none does.
    int firstFilled(int line) const;

    /// Where a page ends that has room for so many lines from one on: before which line. It is the first one
    /// itself where fewer than the least would stand there. No line of three or more stands alone.
    int pageEnd(int from, int room, int least) const;

    /// Draws some lines in the painter's pen; the place is the left top of the first of them.
    void paint(QPainter& painter, QPointF place, int from, int end) const;

    /// Whether a word or a number is wider than the lines and goes on in the next one.
    bool breaksWord() const;

    /// Where a stretch of the text stands, told in its bytes; a place for each line that holds some of it.
    std::vector<QRectF> spots(std::size_t from, std::size_t length, int firstLine, int endLine) const;

private:
    struct Line {
        int piece;   ///< lines that the text itself parts are pieces
        int number;  ///< in its piece
        QTextLine text;
    };

    using Formats = QList<QTextLayout::FormatRange>;

    Formats formatsOf(const DocumentFonts& fonts) const;
    void breakPiece(const QString& piece, const QFont& font, const Formats& formats);
    bool mayBreakBefore(int line) const;

    std::string source_;
    std::vector<TextSpan> spans_;
    TextLook look_;
    double width_;
    double baseline_;
    bool reachesOut_ = false;  ///< letters may go beyond their line, as marks above marks do
    std::vector<std::unique_ptr<QTextLayout>> pieces_;
    std::vector<qsizetype> starts_;  ///< of the pieces in the shown text
    std::vector<Line> lines_;
};

}  // namespace lorvane
