// Quiet lines of text that wrap at words, and inside a word where one is too long. Knows nothing of what it
// tells.
#pragma once

#include <QString>

#include "desktop/kit/painted_text.h"

namespace lorvane::desktop {

/// The line below a field, or a sentence of a dialog. Lengths are in pixels at 100 %.
class FieldNote : public PaintedText {
    Q_OBJECT

public:
    enum class Tone {
        Quiet,    ///< in second text
        Problem,  ///< behind the warning sign, in the colours of a problem
    };

    /// Never lower than so much.
    explicit FieldNote(double lowest = 0, QWidget* parent = nullptr);

    /// The text; screen readers get it, and are told at once of a problem.
    void setText(const QString& text, Tone tone = Tone::Quiet);
    const QString& text() const { return text_; }
    Tone tone() const { return tone_; }

    /// Keeps room for another quiet text, so that nothing moves while a problem stands in its place.
    void keepRoomFor(const QString& text);

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    double heightOf(const QString& text, Tone tone, double width) const;

    double lowest_;
    QString text_;
    QString kept_;
    Tone tone_ = Tone::Quiet;
};

}  // namespace lorvane::desktop
