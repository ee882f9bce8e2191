// Place, keys and painting of the card.
#include "desktop/kit/notice_card.h"

#include <QAccessible>
#include <QGridLayout>
#include <QKeyEvent>
#include <algorithm>

#include "desktop/kit/card.h"
#include "desktop/kit/icons.h"
#include "desktop/kit/push_button.h"
#include "desktop/kit/theme.h"
#include "desktop/kit/wrapped_text.h"
#include "desktop/kit/zoom.h"

namespace lorvane::desktop {

namespace {

constexpr int Width = 520;
constexpr int SpaceAround = 18;  ///< to the edges of what it covers
constexpr double Padding = 18;
constexpr double SignSize = 20;
constexpr int TextLeft = 50;

}  // namespace

NoticeCard::NoticeCard(QWidget* covered)
    : QWidget(covered), heading_(new WrappedText(TextStyle::PanelHeading, Role::ProblemText)),
      text_(new WrappedText(TextStyle::Body)), button_(plainButton(QString())) {
    hide();
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(TextLeft, 16, 18, 16);
    grid->setVerticalSpacing(6);
    grid->addWidget(heading_, 0, 0);
    grid->addWidget(text_, 1, 0);
    grid->addWidget(button_, 2, 0, Qt::AlignRight);
    text_->setLineHeight(19);
    covered->installEventFilter(this);
    connect(button_, &PushButton::clicked, this, &NoticeCard::closeRequested);
}

void NoticeCard::setNotice(const QString& heading, const QString& text, const QString& button) {
    heading_->setText(heading);
    text_->setText(text);
    button_->setText(button);
    setAccessibleName(heading);
    setAccessibleDescription(text);
    if (isVisible())
        arrange();
}

void NoticeCard::arrange() {
    const int space = zoomed(*this, SpaceAround);
    const int width = std::min(zoomed(*this, Width), parentWidget()->width() - 2 * space);
    const int height = std::min(layout()->totalHeightForWidth(width), parentWidget()->height());
    setGeometry((parentWidget()->width() - width) / 2, std::min(space, parentWidget()->height() - height),
                width, height);
}

// Keeps Escape from the shortcuts of the window, so that it reaches keyPressEvent.
bool NoticeCard::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void NoticeCard::keyPressEvent(QKeyEvent* event) {
    const int keys[] = {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter};
    if (std::find(std::begin(keys), std::end(keys), event->key()) != std::end(keys))
        emit closeRequested();
    else
        QWidget::keyPressEvent(event);
}

bool NoticeCard::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::Resize && isVisible())
        arrange();
    return false;
}

void NoticeCard::showEvent(QShowEvent*) {
    before_ = window()->focusWidget();
    raise();
    arrange();
    button_->setFocus();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void NoticeCard::hideEvent(QHideEvent*) {
    if (before_ != nullptr && before_->isVisible() && !isAncestorOf(before_))
        before_->setFocus();
}

void NoticeCard::paintEvent(QPaintEvent*) {
    ZoomedPainter painter(*this);
    paintCard(painter, figureRect(*this), CardTone::Problem);
    drawIcon(painter, Icon::Warning, QRectF(Padding, Padding - 3, SignSize, SignSize),
             colour(Role::ProblemText));
}

}  // namespace lorvane::desktop
