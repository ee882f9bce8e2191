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

    /// From now on it asks for the height of its text; less is scrolled.
    void setFitted();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

protected:
    /// Nothing is read from outside, whatever the text names.
    QVariant loadResource(int, const QUrl&) override { return {}; }
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void setDistances();
    void chooseBar();

    QList<ShownParagraph> paragraphs_;
};

}  // namespace lorvane::desktop
