// Veil, sheet, place and keyboard of the notes.
#include "desktop/kit/notes_overlay.h"

#include <algorithm>
#include <cmath>

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QScrollArea>
#include <QVBoxLayout>

#include "desktop/kit/icons.h"
#include "desktop/kit/painting.h"
#include "desktop/kit/push_button.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"

namespace lorvane::desktop {

namespace {

constexpr int SheetWidth = 520;
constexpr int Padding = 20;
constexpr int TextWidth = SheetWidth - 2 * Padding;
constexpr int SignSize = 36;
constexpr int SpaceAround = 20;  ///< between the sheet and the ends of what it covers
constexpr double SheetRadius = 10;
constexpr float VeilShare = 0.72F;
constexpr int LineGap = 8;    ///< above and below the line between two notes
constexpr int ButtonGap = 8;  ///< between a note and its button

constexpr QRgb Shadow = qRgb(10, 16, 40);
constexpr double ShadowShare = 0.32;
constexpr double ShadowDown = 8;
constexpr int ShadowReach = 18;  ///< half the blur, to both sides of the edge
constexpr int ShadowStep = 2;

/// The close sign in the corner of the sheet.
class CloseSign : public QAbstractButton {
public:
    explicit CloseSign(const QString& name) {
        setFixedSize(SignSize, SignSize);
        setAccessibleName(name);
        setToolTip(name);
        setAttribute(Qt::WA_Hover);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const QRectF plate = QRectF(rect()).adjusted(4, 4, -4, -4);
        if (underMouse())
            fillPlate(painter, plate, FieldRadius, colour(Role::FieldHover));
        if (hasFocus())
            strokePlate(painter, plate, FieldRadius, colour(Role::Accent), RingWidth);
        drawIcon(painter, Icon::Close, QRectF(rect()).adjusted(10, 10, -10, -10), colour(Role::SecondText));
    }
};

/// On a dark ground a shadow is hardly seen, so the sheet is lighter than what it covers.
Role sheetRole() { return Theme::current().isDark() ? Role::Field : Role::Card; }

/// Paints faint sheets over each other, each smaller than the one below. Those about the size of the real
/// sheet are the strongest. Together they are a soft shadow.
void paintShadow(QPainter& painter, const QRectF& sheet) {
    constexpr double Spread = ShadowReach / 2.0;
    constexpr double Peak = ShadowShare * ShadowStep * 0.3989 / Spread;
    QColor faint(Shadow);
    for (int by = ShadowReach; by >= -ShadowReach; by -= ShadowStep) {
        faint.setAlphaF(static_cast<float>(Peak * std::exp(-by * by / (2 * Spread * Spread))));
        fillPlate(painter, sheet.translated(0, ShadowDown).adjusted(-by, -by, by, by),
                  std::max(1.0, SheetRadius + by), faint);
    }
}

class Sheet : public QWidget {
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        drawPlate(painter, QRectF(rect()), SheetRadius, colour(sheetRole()), colour(Role::StrongLine));
    }
};

QLabel* paragraph(const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setFont(textFont(TextStyle::Body));
    label->setWordWrap(true);
    label->setFixedSize(TextWidth, label->heightForWidth(TextWidth));
    label->show();
    return label;
}

/// A line between two notes.
class NoteLine : public QWidget {
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(rect(), colour(Role::Line)); }
};

}  // namespace

NotesOverlay::NotesOverlay(QWidget* covered)
    : QWidget(covered), title_(new QLabel), text_(new QWidget), scroll_(new QScrollArea),
      button_(primaryButton(tr("Close notes"))), sign_(nullptr), sheet_(makeSheet()) {
    hide();
    setAttribute(Qt::WA_NoSystemBackground);
    covered->installEventFilter(this);
    connect(button_, &PushButton::clicked, this, &NotesOverlay::closeRequested);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { keepFocus(now); });
}

// The buttons are destroyed after the overlay's own part. A button with the keyboard then reports a change of
// focus, which must not reach keepFocus any more.
NotesOverlay::~NotesOverlay() { disconnect(qApp, nullptr, this, nullptr); }

QWidget* NotesOverlay::makeSheet() {
    auto* sheet = new Sheet(this);
    auto* sign = new CloseSign(tr("Close"));
    sign_ = sign;
    connect(sign, &QAbstractButton::clicked, this, &NotesOverlay::closeRequested);
    auto* head = new QHBoxLayout;
    title_->setFont(textFont(TextStyle::PanelHeading));
    head->addWidget(title_, 1);
    head->addWidget(sign);
    text_->setFixedWidth(TextWidth);
    scroll_->setWidget(text_);
    scroll_->setFrameShape(QFrame::NoFrame);
    scroll_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll_->setFocusPolicy(Qt::NoFocus);
    for (QWidget* part : {static_cast<QWidget*>(scroll_), scroll_->viewport(), text_})
        part->setAutoFillBackground(false);
    auto* box = new QVBoxLayout(sheet);
    box->setContentsMargins(Padding, 11, Padding, Padding - 1);
    box->setSpacing(0);
    box->addLayout(head);
    box->addSpacing(6);
    box->addWidget(scroll_);
    box->addSpacing(15);
    box->addWidget(button_, 0, Qt::AlignRight);
    sheet->setFixedWidth(SheetWidth);
    return sheet;
}

void NotesOverlay::setNotes(const QString& title, const QList<Note>& notes) {
    title_->setText(title);
    setAccessibleName(title);
    if (notes == shown_)
        return;
    shown_ = notes;
    for (QWidget* old : text_->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        old->setParent(nullptr);
        old->deleteLater();  // it may be the button that brought the other notes
    }
    int bottom = 0;
    for (int number = 0; number < notes.size(); ++number)
        bottom = addNote(notes[number], number, bottom);
    text_->setFixedHeight(bottom);
    if (isVisible())
        arrange();
}

/// Puts a note below what there is, and tells where it ends.
int NotesOverlay::addNote(const Note& note, int number, int top) {
    if (number > 0) {
        auto* line = new NoteLine(text_);
        line->setGeometry(0, top + LineGap, TextWidth, 1);
        line->show();
        top += LineGap + 1 + LineGap;
    }
    QLabel* label = paragraph(note.text.trimmed(), text_);
    label->move(0, top);
    top += label->height();
    if (note.button.isEmpty())
        return top;
    PushButton* button = plainButton(note.button, text_);
    button->setAccessibleDescription(note.text);
    connect(button, &PushButton::clicked, this, [this, number] { emit pressed(number); });
    button->move(0, top + ButtonGap);
    button->adjustSize();
    button->show();
    return top + ButtonGap + button->height();
}

void NotesOverlay::setButton(const QString& words) { button_->setText(words); }

/// The sheet stands in the middle; notes longer than the window scroll within it.
void NotesOverlay::arrange() {
    setGeometry(parentWidget()->rect());
    scroll_->setFixedHeight(0);
    const int frame = sheet_->sizeHint().height();
    scroll_->setFixedHeight(std::clamp(height() - 2 * SpaceAround - frame, 60, text_->height()));
    sheet_->adjustSize();
    sheet_->move((width() - sheet_->width()) / 2, std::max(0, (height() - sheet_->height()) / 2));
    update();
}

// Keyboard -------------------------------------------------------------------------------------------------

/// When another part of this window gets the keyboard, the button takes it back.
void NotesOverlay::keepFocus(QWidget* now) {
    if (isVisible() && now != nullptr && now->window() == window() && !isAncestorOf(now))
        button_->setFocus();
}

/// Where the keyboard goes from one to the next: the buttons of notes, the one that closes, the sign.
QList<QWidget*> NotesOverlay::stops() const {
    QList<QWidget*> stops;
    for (PushButton* button : text_->findChildren<PushButton*>())
        stops << button;
    return stops << button_ << sign_;
}

bool NotesOverlay::focusNextPrevChild(bool next) {
    const QList<QWidget*> all = stops();
    const qsizetype now = all.indexOf(QApplication::focusWidget());
    QWidget* other = all[(now + (next ? 1 : -1) + all.size()) % all.size()];
    scroll_->ensureWidgetVisible(other);
    other->setFocus(Qt::TabFocusReason);
    return true;
}

/// Keeps Escape from the shortcuts of the window, so that it reaches keyPressEvent.
bool NotesOverlay::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void NotesOverlay::keyPressEvent(QKeyEvent* event) {
    const int keys[] = {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter};
    if (std::find(std::begin(keys), std::end(keys), event->key()) == std::end(keys))
        return;
    auto* button = qobject_cast<PushButton*>(QApplication::focusWidget());
    if (event->key() != Qt::Key_Escape && button != nullptr && text_->isAncestorOf(button))
        button->click();
    else
        emit closeRequested();
}

void NotesOverlay::mousePressEvent(QMouseEvent*) {}

bool NotesOverlay::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::Resize && isVisible())
        arrange();
    return false;
}

void NotesOverlay::showEvent(QShowEvent*) {
    before_ = window()->focusWidget();
    raise();
    arrange();
    button_->setFocus();
}

void NotesOverlay::hideEvent(QHideEvent*) {
    if (before_ != nullptr && before_->isVisible() && !isAncestorOf(before_))
        before_->setFocus();
}

void NotesOverlay::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QColor veil = colour(Role::Page);
    veil.setAlphaF(VeilShare);
    painter.fillRect(rect(), veil);
    paintShadow(painter, QRectF(sheet_->geometry()));
}

}  // namespace lorvane::desktop
