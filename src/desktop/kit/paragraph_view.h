// Paragraphs to be read: selectable, with air between the lines, and scrolled where they do not fit. Knows
// nothing of what they say.
#pragma once

#include <QTextEdit>

namespace lorvane::desktop {

/// Takes any size. Tab leaves it; the text is plain whatever it looks like.
class ParagraphView : public QTextEdit {
    Q_OBJECT

public:
    explicit ParagraphView(QWidget* parent = nullptr);

    /// The paragraphs, with an empty line between two. The same text again keeps selection and place.
    void setParagraphs(const QString& text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    /// Nothing is read from outside, whatever the text names.
    QVariant loadResource(int, const QUrl&) override { return {}; }
    void changeEvent(QEvent* event) override;

private:
    void setDistances();

    QString text_;
};

}  // namespace lorvane::desktop
