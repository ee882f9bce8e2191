// The drawing of ranges on a common scale: a fading bar for each row about a dashed middle. All numbers and
// texts are given; it computes no range.
#pragma once

#include <QList>
#include <QString>

#include "desktop/kit/painted_text.h"

namespace lorvane::desktop {

/// A row: its name, its range on the scale, and the texts of both ends.
struct SpanRow {
    QString label;
    double low = 0;
    double high = 0;
    bool isScores = false;  ///< a range of single scores, drawn in grey; other ranges have a colour
    QString lowText;
    QString highText;
    bool operator==(const SpanRow&) const = default;
};

/// A mark of the scale: a line and the text below it.
struct SpanMark {
    double at = 0;
    QString text;
    bool isOrigin = false;  ///< its line is stronger, and its text bold
    bool operator==(const SpanMark&) const = default;
};

/// The scale from left to right, its marks, and the dashed middle with its text.
struct SpanScale {
    double low = 0;
    double high = 1;
    QList<SpanMark> marks;
    double centre = 0;
    QString centreText;
    bool operator==(const SpanScale&) const = default;
};

/// A range that leaves the scale is cut at its end, without a stroke there. It takes any width: names are cut
/// first, and a tip has their rest. Screen readers get the text of the middle as name, and the rows as
/// description.
class SpanPlot : public PaintedText {
    Q_OBJECT

public:
    explicit SpanPlot(QWidget* parent = nullptr);

    /// The rows from the top down, and their scale. The height follows from the number of rows.
    void setContent(const QList<SpanRow>& rows, const SpanScale& scale);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// The name of a row as there is room for it.
    QString shownLabel(const SpanRow& row) const;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    /// Where the texts of both ends begin.
    struct Ends {
        double low;
        double high;
    };
    double at(double value) const;
    bool isOnScale(double value) const;
    double bottom() const;
    Ends endsOf(const SpanRow& row) const;
    void paintLines(QPainter& painter) const;
    void paintMarks(QPainter& painter) const;
    void paintLabel(QPainter& painter, const SpanRow& row, double middle) const;
    void paintBar(QPainter& painter, const SpanRow& row, double middle) const;
    void paintEnds(QPainter& painter, const SpanRow& row, double middle) const;
    void paintCentre(QPainter& painter) const;

    QList<SpanRow> rows_;
    SpanScale scale_;
};

}  // namespace lorvane::desktop
