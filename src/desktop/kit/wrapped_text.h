// A text over as many lines as its width takes. Knows no content.
#pragma once

#include <QString>

#include "desktop/kit/painted_text.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"

class QTextLayout;

namespace lorvane::desktop {

/// Lays lines of a width under each other, broken between words and inside a word that is longer than a line,
/// and tells how high they are. A line height of 0 is the font's own.
double layOutLines(QTextLayout& layout, double width, double lineHeight = 0);

/// A text for one layout: its line ends are ends of lines, not of paragraphs.
QString inLines(QString text);

/// Breaks between words, and inside a word that is longer than a line, as paths are. Letter by letter:
/// nothing in it is markup. Its layout gives it the height that the text takes at its width.
class WrappedText : public PaintedText {
    Q_OBJECT

public:
    explicit WrappedText(TextStyle style, Role role = Role::Text, QWidget* parent = nullptr);

    /// The text, whose line ends stay; screen readers get it.
    void setText(const QString& text);
    const QString& text() const { return text_; }

    /// The height of a line at 100 %; at first the font's own.
    void setLineHeight(double height);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    TextStyle style_;
    Role role_;
    double lineHeight_ = 0;
    QString text_;
};

}  // namespace lorvane::desktop
