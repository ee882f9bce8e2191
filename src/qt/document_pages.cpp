// Where pages end, and what is drawn on them.
#include "qt/document_pages.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace lorvane {

namespace {

constexpr double footPoints = 9;
const QColor footColour(0x6B, 0x6B, 0x6B);
constexpr double hair = 0.01;  ///< twips that count as none

double inTwips(double inches) { return inches * twipsPerInch; }

}  // namespace

DocumentPages::DocumentPages(const PageSetup& page)
    : setup_(page), fonts_(page.font), y_(inTwips(page.topMargin)) {}

DocumentPages::DocumentPages(const Document& document) : DocumentPages(document.page) {
    for (const DocumentStep& step : document.steps)
        send(step);
}

void DocumentPages::send(const DocumentStep& step) {
    std::visit([this](const auto& each) { take(each); }, step);
    ++steps_;
}

double DocumentPages::Y1() {
    const bool stays = fits(TextLook{points_}.lineHeight()) || pages_.back().empty();
    return stays ? y_ / twipsPerInch : setup_.topMargin;
}

double DocumentPages::heightOf(const DocumentTable& table) { return layoutOf(table).height() / twipsPerInch; }

QSizeF DocumentPages::paper() const {
    return QSizeF(inTwips(setup_.width), inTwips(setup_.height)) / twipsPerPoint;
}

DocumentTableLayout DocumentPages::layoutOf(const DocumentTable& table) const {
    const QSizeF room(inTwips(setup_.textWidth()), inTwips(setup_.height - 2 * setup_.topMargin));
    return {table, fonts_, points_, room};
}

bool DocumentPages::fits(double height) const {
    return y_ + height <= inTwips(setup_.height - setup_.topMargin) + hair;
}

int DocumentPages::roomFor(const DocumentText& text) const {
    const double room = inTwips(setup_.height - setup_.topMargin) - y_ + hair;
    return std::max(0, static_cast<int>(std::floor(room / text.lineHeight())));
}

// A heading stays whole, and with it two lines of what it heads.
int DocumentPages::leastLines(const DocumentText& text) const {
    if (bold_)
        return text.lines();
    return waiting_ ? std::min(2, text.lines()) : 1;
}

void DocumentPages::put(Placed placed, double height) {
    placed.step = steps_;
    placed.top = y_;
    pages_.back().push_back(std::move(placed));
    y_ += height;
}

void DocumentPages::take(const step::Paragraph& paragraph) {
    if (belowTable_)
        y_ += noteGap * twipsPerPoint;
    belowTable_ = false;
    const TextLook look{.points = points_, .bold = bold_, .equalWidth = paragraph.equalWidth};
    const double width = inTwips(setup_.textWidth() - paragraph.indent);
    putText(std::make_shared<const DocumentText>(paragraph.text, fonts_, look, width, paragraph.spans),
            paragraph);
    belowHeading_ = bold_;
}

std::shared_ptr<const DocumentText> DocumentPages::markOf(const step::Paragraph& paragraph) const {
    if (paragraph.mark.empty())
        return nullptr;
    return std::make_shared<const DocumentText>(paragraph.mark, fonts_, TextLook{points_},
                                                inTwips(markWidth));
}

void DocumentPages::putText(const std::shared_ptr<const DocumentText>& text,
                            const step::Paragraph& paragraph) {
    auto mark = markOf(paragraph);
    for (int from = 0; from < text->lines();) {
        if (pages_.back().empty())
            from = text->firstFilled(from);
        const int least = from == 0 ? leastLines(*text) : 1;
        int end = text->pageEnd(from, roomFor(*text), least);
        if (end == from && holdsOnlyHeadings())
            end = std::min(from + std::max(1, roomFor(*text)), text->lines());
        if (end > from) {
            if (bold_)
                putHeading(text);
            else
                waiting_.reset();
            put({.left = inTwips(paragraph.indent),
                 .text = text,
                 .from = from,
                 .end = end,
                 .mark = std::exchange(mark, nullptr)},
                (end - from) * text->lineHeight());
        }
        from = end;
        if (from < text->lines())
            beginPage();
    }
}

void DocumentPages::putHeading(const std::shared_ptr<const DocumentText>& text) {
    if (!waiting_)
        waiting_ = pages_.back().size();
    const QString line = text->shown().replace(QLatin1Char('\n'), QLatin1Char(' ')).trimmed();
    headings_.append({line, points_ >= partPoints, pages(), y_ / twipsPerPoint});
}

void DocumentPages::take(const step::Text& text) {
    belowTable_ = false;
    if (pages_.back().empty())
        return;
    const auto lines = std::count(text.text.begin(), text.text.end(), '\n');
    y_ += static_cast<double>(lines) * points_ * twipsPerPoint / (belowHeading_ ? 2 : 1);
}

void DocumentPages::take(const DocumentTable& table) {
    const auto layout = std::make_shared<const DocumentTableLayout>(layoutOf(table));
    putWhole({.table = layout}, layout->height());
}

// Its caption stays with it, so both are placed as one.
void DocumentPages::take(const DocumentPicture& picture) {
    const auto* bytes = reinterpret_cast<const uchar*>(picture.png.data());
    const QImage image = QImage::fromData(bytes, static_cast<int>(picture.png.size()));
    const TextLook look{.points = footPoints};
    const auto caption =
        std::make_shared<const DocumentText>(picture.caption, fonts_, look, inTwips(setup_.textWidth()));
    const double below = picture.caption.empty() ? 0 : caption->height();
    const double room = inTwips(setup_.height - 2 * setup_.topMargin) - below;
    const double wide = std::min(inTwips(picture.width), inTwips(setup_.textWidth()));
    const QSizeF size = QSizeF(image.size()).scaled(wide, room, Qt::KeepAspectRatio);
    Placed placed{.picture = image, .size = size};
    if (below > 0) {
        placed.text = caption;
        placed.end = caption->lines();
    }
    putWhole(placed, size.height() + below);
}

// On one page, with the headings above.
void DocumentPages::putWhole(const Placed& placed, double height) {
    if (!fits(height) && !holdsOnlyHeadings())
        beginPage();
    waiting_.reset();
    if (!fits(height) && !pages_.back().empty())
        beginPage();
    put(placed, height);
    belowHeading_ = false;
    belowTable_ = true;
}

void DocumentPages::take(const step::NewPage&) {
    waiting_.reset();
    belowTable_ = false;
    if (!pages_.back().empty())
        beginPage();
}

// Headings that wait for their text move along.
void DocumentPages::beginPage() {
    Page& last = pages_.back();
    const auto moving = last.begin() + static_cast<std::ptrdiff_t>(waiting_.value_or(last.size()));
    const double top = inTwips(setup_.topMargin);
    const double up = (moving == last.end() ? y_ : moving->top) - top;
    Page next(std::make_move_iterator(moving), std::make_move_iterator(last.end()));
    last.erase(moving, last.end());
    for (Placed& placed : next)
        placed.top -= up;
    for (auto heading = headings_.end() - static_cast<qsizetype>(next.size()); heading != headings_.end();
         ++heading) {
        ++heading->page;
        heading->top -= up / twipsPerPoint;
    }
    y_ -= up;
    if (waiting_)
        waiting_ = 0;
    pages_.push_back(std::move(next));
}

QPointF DocumentPages::cornerOf(const Placed& placed) const {
    return {inTwips(setup_.leftMargin) + placed.left, placed.top};
}

void DocumentPages::paint(QPainter& painter, int page) const {
    painter.save();
    painter.scale(1 / twipsPerPoint, 1 / twipsPerPoint);
    painter.setRenderHint(QPainter::Antialiasing, false);
    for (const Placed& placed : pages_[static_cast<std::size_t>(page - 1)]) {
        painter.setPen(Qt::black);
        paintPlaced(painter, placed);
    }
    paintFoot(painter, page);
    painter.restore();
}

void DocumentPages::paintPlaced(QPainter& painter, const Placed& placed) const {
    const QPointF corner = cornerOf(placed);
    if (placed.table)
        placed.table->paint(painter, corner);
    if (!placed.picture.isNull())
        painter.drawImage(QRectF(corner, placed.size), placed.picture);
    if (placed.mark)
        placed.mark->paint(painter, corner - QPointF(inTwips(markWidth), 0), 0, 1);
    if (placed.text)
        placed.text->paint(painter, corner + QPointF(0, placed.size.height()), placed.from, placed.end);
}

void DocumentPages::paintFoot(QPainter& painter, int page) const {
    const TextLook look{.points = footPoints, .side = Qt::AlignHCenter};
    const std::string words = "Page " + std::to_string(page) + " of " + std::to_string(pages_.size());
    const DocumentText text(words, fonts_, look, inTwips(setup_.textWidth()));
    const double top = inTwips(setup_.height - setup_.topMargin / 2) - text.height() / 2;
    painter.setPen(footColour);
    text.paint(painter, {inTwips(setup_.leftMargin), top}, 0, text.lines());
}

DocumentPages::Spot DocumentPages::spotOf(std::size_t page, const Placed& placed, const QRectF& place) const {
    const QRectF there = place.translated(cornerOf(placed));
    return {static_cast<int>(page) + 1,
            QRectF(there.topLeft() / twipsPerPoint, there.size() / twipsPerPoint)};
}

std::vector<QRectF> DocumentPages::spotsIn(const Placed& placed, const TextPlace& place) {
    if (placed.table)
        return placed.table->spots(place);
    return placed.text ? placed.text->spots(place.from, place.length, placed.from, placed.end)
                       : std::vector<QRectF>();
}

QList<DocumentPages::Spot> DocumentPages::spotsOf(const TextPlace& place) const {
    QList<Spot> found;
    for (std::size_t page = 0; page < pages_.size(); ++page) {
        for (const Placed& placed : pages_[page]) {
            if (placed.step != place.step)
                continue;
            for (const QRectF& spot : spotsIn(placed, place))
                found.append(spotOf(page, placed, spot));
        }
    }
    return found;
}

QList<DocumentPages::Link> DocumentPages::links() const {
    QList<Link> found;
    for (std::size_t page = 0; page < pages_.size(); ++page) {
        for (const Placed& placed : pages_[page]) {
            for (const TextSpan& span : placed.text ? placed.text->spans() : std::vector<TextSpan>()) {
                if (span.link.empty())
                    continue;
                for (const QRectF& spot : placed.text->spots(span.from, span.length, placed.from, placed.end))
                    found.append({span.link, spotOf(page, placed, spot)});
            }
        }
    }
    return found;
}

}  // namespace lorvane
