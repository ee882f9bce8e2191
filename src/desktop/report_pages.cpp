// The pages of a report below each other.
#include "desktop/report_pages.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "base/while_set.h"
#include "desktop/kit/painting.h"
#include "desktop/kit/theme.h"

namespace lorvane::desktop {

namespace {

constexpr int margin = 24;  // around the pages and between them
constexpr double pixelsPerPoint = 96.0 / 72.0;
constexpr double pointsPerInch = 72;
constexpr double wholePercent = 100;
constexpr double smallestScale = 0.1;
constexpr int lineStep = 20;
constexpr int overlap = 40;  // what stays in view from one screenful to the next
constexpr int wheelStep = 120;
constexpr int roomAroundMatch = 24;

// Marks on paper, which is white in every theme. They lie over the text and darken it as ink would.
const QColor matchMark(0xFF, 0xF3, 0x9E);
const QColor currentMark(0xFF, 0xB1, 0x4D);
const QColor matchEdge(0xD9, 0xB0, 0x2A);
const QColor currentEdge(0xC8, 0x6A, 0x00);

// Rings around the page, each fainter than the one within.
void paintShadow(QPainter& painter, const QRect& page) {
    constexpr int reach = 8;
    constexpr int down = 2;
    constexpr float darkest = 0.11F;
    QColor faint(10, 16, 40);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    for (int by = -down; by < reach; ++by) {
        const float share = static_cast<float>(reach - by) / (reach + down);
        faint.setAlphaF(darkest * share * share);
        painter.setPen(faint);
        const QRectF ring = QRectF(page).adjusted(-by, -by, by, by).adjusted(-0.5, -0.5, 0.5, 0.5);
        painter.drawRoundedRect(ring.translated(0, down), std::max(by, 0), std::max(by, 0));
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
}

}  // namespace

ReportPages::ReportPages(QWidget* parent) : QAbstractScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setAutoFillBackground(false);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    verticalScrollBar()->setSingleStep(lineStep);
    horizontalScrollBar()->setSingleStep(lineStep);
}

// What is shown --------------------------------------------------------------------------------------------

// The matches of another report are not gone to, but a page that was asked for is.
void ReportPages::setDocument(const Document& document, const ReportView& view) {
    pages_ = document.steps.empty() ? nullptr : std::make_unique<DocumentPages>(document);
    leftMargin_ = document.page.leftMargin * pointsPerInch;
    const int jump = view_.jump;
    view_ = view;
    view_.jump = jump;
    readMatches();
    arrange();
    setView(view);
}

void ReportPages::setView(const ReportView& view) {
    const ReportView before = std::exchange(view_, view);
    const bool otherSize = view.zoom == Zooms::percent && view.percent != before.percent;
    const bool otherZoom = view.zoom != before.zoom || otherSize;
    if (view.matches != before.matches)
        readMatches();
    if (otherZoom)
        arrange();
    if (view.jump != before.jump || (otherZoom && view.zoom == Zooms::fitPage))
        goToCurrent();
    if (view.search != before.search)
        showMatch();
    if (view.matches != before.matches || view.match != before.match)
        viewport()->update();
}

// Where pages stand ----------------------------------------------------------------------------------------

// There is always room left for the scroll bar, so that it changes no size when it comes and goes.
QSize ReportPages::room() const {
    const QSize bar(verticalScrollBar()->sizeHint().width(), 0);
    return maximumViewportSize() - bar;
}

double ReportPages::scaleFor() const {
    const QSizeF paper = pages_->paper();
    const double wide = (room().width() - 2 * margin) / paper.width();
    const double high = (room().height() - 2 * margin) / paper.height();
    const double scale = view_.zoom == Zooms::pageWidth ? wide
                         : view_.zoom == Zooms::fitPage ? std::min(wide, high)
                                                        : pixelsPerPoint * view_.percent / wholePercent;
    return std::max(scale, smallestScale);
}

int ReportPages::topOf(int page) const { return margin + (page - 1) * (page_.height() + margin); }

int ReportPages::leftOfPages() const {
    const int spare = viewport()->width() - page_.width();
    return spare >= 2 * margin ? spare / 2 : margin - horizontalScrollBar()->value();
}

QRect ReportPages::pageRect(int page) const {
    return {QPoint(leftOfPages(), topOf(page) - verticalScrollBar()->value()), page_};
}

void ReportPages::arrange() {
    if (count() == 0)
        return;
    const WhileSet arranging(arranging_);
    scale_ = scaleFor();
    page_ = (pages_->paper() * scale_).toSize();
    setRanges();
    toPlace();
    viewport()->update();
    if (view_.zoom != Zooms::percent)
        emit fitted(static_cast<int>(std::lround(wholePercent * scale_ / pixelsPerPoint)));
}

void ReportPages::setRanges() {
    const QSize view = viewport()->size();
    const bool wholePages = view_.zoom == Zooms::fitPage;
    verticalScrollBar()->setPageStep(wholePages ? page_.height() + margin
                                                : std::max(view.height() - overlap, lineStep));
    verticalScrollBar()->setRange(0, std::max(0, topOf(count() + 1) - view.height()));
    horizontalScrollBar()->setPageStep(view.width());
    horizontalScrollBar()->setRange(0, std::max(0, page_.width() + 2 * margin - view.width()));
}

void ReportPages::toPlace() {
    const int below = static_cast<int>(std::lround(place_.inside * page_.height()));
    verticalScrollBar()->setValue(topOf(view_.CurrentPage) + below - place_.before);
    const double middle = across_ * (page_.width() + 2 * margin);
    horizontalScrollBar()->setValue(static_cast<int>(std::lround(middle - viewport()->width() / 2.0)));
}

void ReportPages::notePlace() {
    const int below = verticalScrollBar()->value() - topOf(view_.CurrentPage);
    place_ = {std::max(below, 0) / static_cast<double>(page_.height()), std::max(-below, 0)};
    noteAcross();
}

void ReportPages::noteAcross() {
    if (horizontalScrollBar()->maximum() > 0)
        across_ = (horizontalScrollBar()->value() + viewport()->width() / 2.0) / (page_.width() + 2 * margin);
}

// The page that covers most of the upper half; at the end the last one, which may not reach that far.
int ReportPages::pageInView() const {
    const QScrollBar* bar = verticalScrollBar();
    if (bar->value() == bar->maximum() && bar->maximum() > 0)
        return count();
    const int half = viewport()->height() / 2;
    const auto covered = [&](int page) {
        const QRect rect = pageRect(page);
        return std::min(rect.bottom(), half) - std::max(rect.top(), 0);
    };
    int best = 1;
    for (int page = 2; page <= count(); ++page)
        best = covered(page) > covered(best) ? page : best;
    return best;
}

// Scrolling ------------------------------------------------------------------------------------------------

void ReportPages::tellPage() {
    if (count() == 0)
        return;
    const int page = pageInView();
    const bool isOther = page != std::exchange(view_.CurrentPage, page);
    notePlace();
    if (isOther)
        emit pageReached(page);
}

// A narrow view begins where the text does.
void ReportPages::goToCurrent() {
    const WhileSet arranging(arranging_);
    place_ = {0, margin};
    toPlace();
    horizontalScrollBar()->setValue(static_cast<int>(std::lround(leftMargin_ * scale_)));
    noteAcross();
}

// What stays in view is moved as it is, where pixels of the screen are whole parts of ours and no ring lies
// over it.
void ReportPages::scrollContentsBy(int right, int down) {
    const double ratio = devicePixelRatioF();
    if (ring_ || ratio != std::floor(ratio))
        viewport()->update();
    else
        viewport()->scroll(right, down);
    if (!arranging_)
        tellPage();
}

void ReportPages::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    arrange();
}

// Matches --------------------------------------------------------------------------------------------------

void ReportPages::readMatches() {
    matches_.clear();
    for (const TextPlace& match : view_.matches)
        matches_.append(pages_ ? pages_->spotsOf(match) : QList<DocumentPages::Spot>());
}

QRect ReportPages::rectOf(const DocumentPages::Spot& spot) const {
    const QRectF place(spot.place.topLeft() * scale_, spot.place.size() * scale_);
    return place.translated(pageRect(spot.page).topLeft()).toAlignedRect();
}

QRect ReportPages::matchRect() const {
    const auto spots =
        view_.match ? matches_.value(static_cast<qsizetype>(*view_.match)) : QList<DocumentPages::Spot>();
    return spots.isEmpty() ? QRect() : rectOf(spots.first());
}

// A match out of sight comes to a third of the height. The program hears of its page when it is done with
// what it is about.
void ReportPages::showMatch() {
    const QRect match = matchRect();
    if (match.isEmpty())
        return;
    const WhileSet arranging(arranging_);
    const QRect inside =
        viewport()->rect().adjusted(roomAroundMatch, roomAroundMatch, -roomAroundMatch, -roomAroundMatch);
    const auto move = [](QScrollBar* bar, int by) { bar->setValue(bar->value() + by); };
    if (match.top() < inside.top() || match.bottom() > inside.bottom())
        move(verticalScrollBar(), match.center().y() - viewport()->height() / 3);
    if (match.left() < inside.left() || match.right() > inside.right())
        move(horizontalScrollBar(), match.center().x() - viewport()->width() / 2);
    QMetaObject::invokeMethod(this, &ReportPages::tellPage, Qt::QueuedConnection);
}

// Hand -----------------------------------------------------------------------------------------------------

void ReportPages::wheelEvent(QWheelEvent* event) {
    if (!event->modifiers().testFlag(Qt::ControlModifier))
        return QAbstractScrollArea::wheelEvent(event);
    turned_ += event->angleDelta().y();
    for (; std::abs(turned_) >= wheelStep; turned_ -= turned_ > 0 ? wheelStep : -wheelStep)
        emit zoomTurned(turned_ > 0 ? 1 : -1);
    event->accept();
}

void ReportPages::keyPressEvent(QKeyEvent* event) {
    using enum QAbstractSlider::SliderAction;
    const bool shift = event->modifiers().testFlag(Qt::ShiftModifier);
    const std::pair<Qt::Key, QAbstractSlider::SliderAction> keys[] = {
        {Qt::Key_Home, SliderToMinimum},
        {Qt::Key_End, SliderToMaximum},
        {Qt::Key_Space, shift ? SliderPageStepSub : SliderPageStepAdd}};
    for (const auto& [key, action] : keys) {
        if (event->key() == key)
            return verticalScrollBar()->triggerAction(action);
    }
    QAbstractScrollArea::keyPressEvent(event);
}

void ReportPages::setRing(bool shown) {
    ring_ = shown;
    viewport()->update();
}

void ReportPages::focusInEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusInEvent(event);
    setRing(event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason);
}

void ReportPages::focusOutEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusOutEvent(event);
    setRing(false);
}

// Painting -------------------------------------------------------------------------------------------------

// The surround goes on below the scroll bars.
bool ReportPages::event(QEvent* event) {
    if (event->type() == QEvent::Paint)
        QPainter(this).fillRect(rect(), colour(Role::ReportSurround));
    return QAbstractScrollArea::event(event);
}

void ReportPages::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    painter.fillRect(event->rect(), colour(Role::ReportSurround));
    for (int page = 1; page <= count(); ++page) {
        if (pageRect(page).adjusted(-margin, -margin, margin, margin).intersects(event->rect()))
            paintPage(painter, page);
    }
    if (ring_)
        strokePlate(painter, QRectF(viewport()->rect()), 0, colour(Role::Accent), RingWidth);
}

void ReportPages::paintPage(QPainter& painter, int page) const {
    const QRect rect = pageRect(page);
    paintShadow(painter, rect);
    painter.fillRect(rect, colour(Role::Paper));
    painter.save();
    painter.translate(rect.topLeft());
    painter.scale(scale_, scale_);
    pages_->paint(painter, page);
    painter.restore();
    paintMatches(painter, page);
    if (Theme::current().isHighContrast())
        strokePlate(painter, QRectF(rect), 0, colour(Role::StrongLine), 1);
}

void ReportPages::paintMatches(QPainter& painter, int page) const {
    painter.save();
    painter.setCompositionMode(QPainter::CompositionMode_Multiply);
    for (qsizetype i = 0; i < matches_.size(); ++i) {
        const bool isCurrent = view_.match && i == static_cast<qsizetype>(*view_.match);
        painter.setBrush(isCurrent ? currentMark : matchMark);
        painter.setPen(isCurrent ? currentEdge : matchEdge);
        for (const DocumentPages::Spot& spot : matches_[i]) {
            if (spot.page == page)
                painter.drawRect(rectOf(spot).adjusted(-1, 0, 0, -1));
        }
    }
    painter.restore();
}

}  // namespace lorvane::desktop
