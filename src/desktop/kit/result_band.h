// The band that tells how a search stands: a text at rest, a figure with a line beside it, or a problem.
// Knows no search.
#pragma once

#include <variant>

#include <QString>

#include "desktop/kit/painted_text.h"

namespace lorvane::desktop {

struct BandText {
    QString text;
    bool operator==(const BandText&) const = default;
};

/// "Cost = " in light words, the number after it, and a line beside.
struct BandFigure {
    QString words;
    QString number;
    QString note;
    bool operator==(const BandFigure&) const = default;
};

struct BandProblem {
    QString title;
    QString text;
    bool operator==(const BandProblem&) const = default;
};

using BandContent = std::variant<BandText, BandFigure, BandProblem>;

/// As high as its texts at the width it is given.
class ResultBand : public PaintedText {
    Q_OBJECT

public:
    explicit ResultBand(QWidget* parent = nullptr);

    void setContent(const BandContent& content);
    const BandContent& content() const { return content_; }

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

    BandContent content_;
};

}  // namespace lorvane::desktop
