// The card of a result: in large figures, as a bar, or as a problem. Knows no power and no cost.
#pragma once

#include <optional>
#include <variant>

#include <QString>

#include "desktop/kit/painted_text.h"

namespace lorvane::desktop {

/// A result in large figures: words such as "Power = " in light type, the number after them, and a quiet line
/// below.
struct Figure {
    QString words;
    QString number;
    QString note;          ///< the line below
    bool checked = false;  ///< a check sign stands before the line
    bool operator==(const Figure&) const = default;
};

/// A mark on a bar.
struct FigureTick {
    double share = 0;  ///< its place, as a share of the length of the bar, 0 to 1
    QString text;      ///< below it, shifted where it would meet the text of an end
    bool operator==(const FigureTick&) const = default;
};

/// A result as a bar, its name and value above, and the texts of both ends below.
struct FigureBar {
    QString name;
    QString value;
    double share = 0;  ///< how far the bar is filled; below 0 shows as 0, above 1 as 1
    QString lowText;
    QString highText;
    std::optional<FigureTick> tick = {};
    bool operator==(const FigureBar&) const = default;
};

/// A message in the place of the figure, the reason below it in two lines at most, and a quiet line. The
/// quiet line goes first where the height does not do.
struct FigureTrouble {
    QString message;
    QString reason;
    QString note = {};
    QString tip = {};  ///< the reason in full, with advice
    bool operator==(const FigureTrouble&) const = default;
};

/// What a card shows: one of the three.
using FigureContent = std::variant<Figure, FigureBar, FigureTrouble>;

/// The card takes the tone of its content. A figure that is too long for its width gets smaller type. A tall
/// card has room for a widget below the figure or the bar.
class FigureCard : public PaintedText {
    Q_OBJECT

public:
    /// How far the widget below stands out of the texts of the card on both sides, for the ring of its focus.
    static constexpr double RingRoom = 8;

    explicit FigureCard(QWidget* parent = nullptr);

    /// The content, an empty figure at first. Equal content repaints nothing.
    void setContent(const FigureContent& content);
    const FigureContent& content() const { return content_; }

    /// Puts a widget into the lower part of the card, which is shown while the card is tall. Only once.
    void setBelow(QWidget* below);

    /// From 260 high and 420 wide, unless it tells of a problem.
    bool isTall() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// The widget below has come into sight.
    void belowShown();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void paint(QPainter& painter, const Figure& figure) const;
    void paint(QPainter& painter, const FigureBar& bar) const;
    void paint(QPainter& painter, const FigureTrouble& trouble) const;
    void paintBarTexts(QPainter& painter, const FigureBar& bar, const QRectF& track) const;
    QRectF inner() const;
    double middle() const;
    double figureSize() const;
    void placeBelow();

    FigureContent content_;
    QWidget* below_ = nullptr;
};

}  // namespace lorvane::desktop
