// Paragraphs to be read: selectable, with air between the lines, and scrolled where they do not fit. Knows
// nothing of what they say.
#pragma once

#include <QList>
#include <QTextEdit>

namespace lorvane::desktop {

/// Letters of one look.
struct ShownRun {
    QString text;
    bool strong = false;

    friend bool operator==(const ShownRun&, const ShownRun&) = default;
};
using ShownParagraph = QList<ShownRun>;

/// Takes any size. Tab leaves it; the text is plain whatever it looks like.
class ParagraphView : public QTextEdit {
    Q_OBJECT

public:
    explicit ParagraphView(QWidget* parent = nullptr);

    /// Shows the paragraphs with their strong parts. The same ones again keep selection and place.
    void setParagraphs(const QList<ShownParagraph>& paragraphs);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    /// Nothing is read from outside, whatever the text names.
    QVariant loadResource(int, const QUrl&) override { return {}; }
    void changeEvent(QEvent* event) override;

private:
    void setDistances();

    QList<ShownParagraph> paragraphs_;
};

}  // namespace lorvane::desktop
