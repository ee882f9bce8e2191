// The band that tells how a search stands: a text at rest, a figure with a line beside it, or a problem.
// Knows no search.
#pragma once

#include <variant>

#include <QString>

#include "desktop/kit/painted_text.h"

namespace lorvane::desktop {

class PushButton;

/// A quiet text, which wraps.
struct BandText {
    QString text;
    bool operator==(const BandText&) const = default;
};

/// A result: words such as "Cost = " in light type, the number after them, and a note at their right, which
/// wraps. A way back from it is a button at the right end; without its words there is none.
struct BandFigure {
    QString words;
    QString number;
    QString note;
    QString back = {};
    bool operator==(const BandFigure&) const = default;
};

/// A problem: the title beside the warning sign and the text below, which both wrap.
struct BandProblem {
    QString title;
    QString text;
    bool operator==(const BandProblem&) const = default;
};

/// What a band shows: one of the three.
using BandContent = std::variant<BandText, BandFigure, BandProblem>;

/// The layout gives the band its width; it fixes its own height, as its texts need it.
class ResultBand : public PaintedText {
    Q_OBJECT

public:
    explicit ResultBand(QWidget* parent = nullptr);

    /// The content, an empty text at first. The tone of the band follows from it.
    void setContent(const BandContent& content);
    const BandContent& content() const { return content_; }

signals:
    /// The user presses the button of a figure.
    void backRequested();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    double heightOf(const BandText& text) const;
    double heightOf(const BandFigure& figure) const;
    double heightOf(const BandProblem& problem) const;
    void paint(QPainter& painter, const BandText& text) const;
    void paint(QPainter& painter, const BandFigure& figure) const;
    void paint(QPainter& painter, const BandProblem& problem) const;
    QRectF noteArea(const BandFigure& figure) const;
    void fit();
    void placeBack();

    BandContent content_;
    PushButton* back_;
};

}  // namespace lorvane::desktop
