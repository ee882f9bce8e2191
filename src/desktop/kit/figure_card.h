// The card of a result: in large figures, as a bar, or as a problem. Knows no power and no cost.
#pragma once

#include <optional>
#include <variant>

#include <QString>

#include "desktop/kit/painted_text.h"

namespace lorvane::desktop {

/// "Power = " in light words and the number after it, and a quiet line below, with a check sign or without.
struct Figure {
    QString words;
    QString number;
    QString note;
    bool checked = false;
    bool operator==(const Figure&) const = default;
};

/// A mark on a bar, at a share of its length, with the text below.
struct FigureTick {
    double share = 0;
    QString text;
    bool operator==(const FigureTick&) const = default;
};

/// Name and value over a bar filled to a share from 0 to 1, the texts of both ends below.
struct FigureBar {
    QString name;
    QString value;
    double share = 0;
    QString lowText;
    QString highText;
    std::optional<FigureTick> tick = {};
    bool operator==(const FigureBar&) const = default;
};

/// A message in the place of the figure, and a quiet line below.
struct FigureTrouble {
    QString message;
    QString note;
    bool operator==(const FigureTrouble&) const = default;
};

using FigureContent = std::variant<Figure, FigureBar, FigureTrouble>;

class FigureCard : public PaintedText {
    Q_OBJECT

public:
    explicit FigureCard(QWidget* parent = nullptr);

    void setContent(const FigureContent& content);
    const FigureContent& content() const { return content_; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paint(QPainter& painter, const Figure& figure) const;
    void paint(QPainter& painter, const FigureBar& bar) const;
    void paint(QPainter& painter, const FigureTrouble& trouble) const;
    void paintBarTexts(QPainter& painter, const FigureBar& bar, const QRectF& track) const;
    QRectF inner() const;

    FigureContent content_;
};

}  // namespace lorvane::desktop
