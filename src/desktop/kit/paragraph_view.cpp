// Distances of lines and paragraphs. All lengths are those of 100 %.
#include "desktop/kit/paragraph_view.h"

#include <QEvent>
#include <QTextCursor>
#include <cmath>
#include <memory>

#include "desktop/kit/text_style.h"
#include "desktop/kit/zoom.h"

namespace lorvane::desktop {

namespace {

constexpr double LineHeight = 142;  ///< percent of the line of the font
constexpr double Gap = 12;          ///< between two paragraphs
constexpr int PreferredHeight = 180;
constexpr int PreferredWidth = 364;
constexpr int FittedWidth = 296;
constexpr int LeastHeight = 60;

}  // namespace

ParagraphView::ParagraphView(QWidget* parent) : QTextEdit(parent) {
    setFrameShape(QFrame::NoFrame);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    setAcceptRichText(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    document()->setDocumentMargin(0);
    viewport()->setAutoFillBackground(false);
    setTextStyle(*this, TextStyle::Body);
}

void ParagraphView::setParagraphs(const QList<ShownParagraph>& paragraphs) {
    if (paragraphs == paragraphs_)
        return;
    paragraphs_ = paragraphs;
    clear();
    QTextCursor cursor(document());
    for (const ShownParagraph& paragraph : paragraphs_) {
        if (cursor.position() > 0)
            cursor.insertBlock();
        for (const ShownRun& run : paragraph) {
            QTextCharFormat look;
            look.setFontWeight(run.strong ? QFont::DemiBold : QFont::Normal);
            cursor.insertText(run.text, look);
        }
    }
    setDistances();
    moveCursor(QTextCursor::Start);
    updateGeometry();
    chooseBar();
}

void ParagraphView::setDistances() {
    QTextCursor all(document());
    all.select(QTextCursor::Document);
    QTextBlockFormat format;
    format.setLineHeight(LineHeight, QTextBlockFormat::ProportionalHeight);
    format.setBottomMargin(zoomed(*this, Gap));
    all.mergeBlockFormat(format);
}

void ParagraphView::setFitted() {
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

// A bar that is there while the text has room takes so much width that the text needs it.
void ParagraphView::chooseBar() {
    if (sizePolicy().hasHeightForWidth())
        setVerticalScrollBarPolicy(height() >= heightForWidth(width()) ? Qt::ScrollBarAlwaysOff
                                                                       : Qt::ScrollBarAsNeeded);
}

void ParagraphView::resizeEvent(QResizeEvent* event) {
    chooseBar();
    QTextEdit::resizeEvent(event);
}

// Measured on a copy, since the document on the screen has the width of the screen.
int ParagraphView::heightForWidth(int width) const {
    const std::unique_ptr<QTextDocument> copy(document()->clone());
    copy->setTextWidth(width);
    return static_cast<int>(std::ceil(copy->size().height()));
}

QSize ParagraphView::sizeHint() const {
    if (sizePolicy().hasHeightForWidth())
        return {zoomed(*this, FittedWidth), heightForWidth(zoomed(*this, FittedWidth))};
    return {zoomed(*this, PreferredWidth), zoomed(*this, PreferredHeight)};
}

QSize ParagraphView::minimumSizeHint() const { return {0, zoomed(*this, LeastHeight)}; }

void ParagraphView::changeEvent(QEvent* event) {
    QTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        setDistances();
}

}  // namespace lorvane::desktop
