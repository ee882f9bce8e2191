// The graph screen.
#include "desktop/graph_view.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QScrollArea>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/kit/card.h"
#include "desktop/kit/elided_label.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"
#include "desktop/menus.h"
#include "qt/chart_plot.h"

namespace lorvane::desktop {

namespace {

constexpr const char* screenName = "xPlot";
constexpr const char* secondLine = "xPlot.txtHeader(2)";
constexpr QSize firstSize(1200, 800);
constexpr QSize smallestSize(620, 480);
constexpr int pageMargin = 20;
constexpr int cardPadding = 22;
constexpr int roomAboveFooter = 520;  // bars, header, and a chart that can be read
constexpr int leastFooter = 54;       // three lines
constexpr int statusHeight = 28;
constexpr int narrow = 1040;  // below, the words of the tool bar go

// A line of one pixel.
class Separator : public QWidget {
public:
    Separator() { setFixedHeight(1); }

protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(rect(), colour(Role::Line)); }
};

ChartLook lookOf(ColourSets colours) {
    const Theme& theme = Theme::current();
    ChartLook look = theme.isHighContrast()
                         ? ChartLook::plain(theme.colour(Role::Text), theme.colour(Role::Card))
                         : ChartLook::of(colours, theme.isDark());
    look.ground = theme.colour(Role::Card);
    look.focus = theme.colour(Role::Accent);
    look.font = textFont(TextStyle::Body);
    return look;
}

}  // namespace

GraphView::GraphView(Desk& desk, ToolPanel* panel)
    : PanelView(desk, panel, screenName), menus_(new Menus(desk, panel, screenName)), header_(new QLabel),
      secondHeader_(new QLineEdit), plot_(new ChartPlot), line_(new Separator), footerArea_(new QScrollArea),
      status_(new ElidedLabel) {
    panel->setWindowTitle(shownText(windowTitle(WindowId::xPlot)));
    panel->installEventFilter(this);
    QVBoxLayout* column = makeScreen(firstSize, smallestSize);
    menus_->addTo(column);
    column->addWidget(makePage(), 1);
    connect(plot_, &ChartPlot::picked, this, [this](int series, int point) {
        desk_.click("xPlot.CurrChart(" + std::to_string(series) + "," + std::to_string(point) + ")");
    });
    connect(plot_, &ChartPlot::stepped, this, &GraphView::step);
    connect(plot_, &ChartPlot::wheeled, this,
            [this](int steps) { step(steps > 0 ? Qt::Key_Right : Qt::Key_Left); });
}

// Parts ----------------------------------------------------------------------------------------------------

// The card with the status line below it.
QWidget* GraphView::makePage() {
    auto* page = new QWidget;
    page->setBackgroundRole(QPalette::Window);
    page->setAutoFillBackground(true);
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(pageMargin, 18, pageMargin, 0);
    column->setSpacing(0);
    column->addWidget(makeCard(), 1);
    status_->setFont(textFont(TextStyle::Caption));
    status_->setProperty("second", true);
    status_->setFixedHeight(statusHeight);
    column->addWidget(status_);
    return page;
}

QWidget* GraphView::makeCard() {
    auto* card = new Card;
    auto* column = new QVBoxLayout(card);
    column->setContentsMargins(cardPadding, 20, cardPadding, 18);
    column->setSpacing(0);
    addHeader(column);
    column->addWidget(plot_, 1);
    addFooter(column);
    return card;
}

// The second line of the header is the user's own.
void GraphView::addHeader(QVBoxLayout* column) {
    header_->setFont(textFont(TextStyle::CompactTitle));
    header_->setAlignment(Qt::AlignCenter);
    header_->setWordWrap(true);
    secondHeader_->setObjectName(QString::fromLatin1(secondLine));
    secondHeader_->setFont(textFont(TextStyle::Body));
    secondHeader_->setAlignment(Qt::AlignCenter);
    secondHeader_->setFrame(false);
    secondHeader_->setProperty("plain", true);
    secondHeader_->setPlaceholderText(QString::fromUtf8(GraphScreen::secondHeaderPrompt));
    secondHeader_->setAccessibleName(QString::fromUtf8(GraphScreen::secondHeaderWords));
    connect(secondHeader_, &QLineEdit::textEdited, this,
            [this](const QString& text) { desk_.type(secondLine, text); });
    column->addWidget(header_);
    column->addWidget(secondHeader_);
    column->addSpacing(6);
}

// A footer that would leave too little to the chart scrolls.
void GraphView::addFooter(QVBoxLayout* column) {
    auto* texts = new QWidget;
    auto* lines = new QVBoxLayout(texts);
    lines->setContentsMargins(0, 0, 0, 0);
    lines->setSpacing(0);
    for (QLabel*& label : footer_) {
        label = new QLabel;
        label->setWordWrap(true);
        label->setProperty("second", true);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        label->setContentsMargins(0, 1, 0, 2);
        lines->addWidget(label);
    }
    footerArea_->setWidget(texts);
    footerArea_->setWidgetResizable(true);
    footerArea_->setFrameShape(QFrame::NoFrame);
    footerArea_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    footerArea_->viewport()->setAutoFillBackground(false);
    texts->setAutoFillBackground(false);
    column->addSpacing(14);
    column->addWidget(line_);
    column->addSpacing(10);
    column->addWidget(footerArea_);
}

void GraphView::fitFooter() {
    const int width = panel()->width() - 2 * (pageMargin + cardPadding);
    const int wanted = footerArea_->widget()->layout()->heightForWidth(width);
    const int most = std::max(panel()->height() - roomAboveFooter, leastFooter);
    footerArea_->setFixedHeight(std::min(wanted, most));
    footerArea_->setFocusPolicy(wanted > most ? Qt::TabFocus : Qt::NoFocus);
}

// What the user does
// -----------------------------------------------------------------------------------------

const GraphScreen& GraphView::model() const { return desk_.application().graph(); }

void GraphView::step(Qt::Key key) {
    const std::pair<Qt::Key, const char*> tools[] = {
        {Qt::Key_Left, "Left"}, {Qt::Key_Right, "Right"}, {Qt::Key_Up, "Up"}, {Qt::Key_Down, "Down"}};
    for (const auto& [arrow, tool] : tools) {
        if (arrow == key && desk_.application().commands().find(tool)->Enabled)
            desk_.tool(tool);
    }
}

// The chart keeps its colours, so it is told of others. A narrow window has no room for the words of its bar.
bool GraphView::eventFilter(QObject* watched, QEvent* event) {
    if (watched == panel() && event->type() == QEvent::Resize) {
        menus_->setNarrow(panel()->width() < narrow);
        fitFooter();
    }
    const bool otherColours =
        event->type() == QEvent::PaletteChange || event->type() == QEvent::ApplicationPaletteChange;
    if (watched == panel() && otherColours)
        plot_->setLook(lookOf(model().chart().colours));
    return PanelView::eventFilter(watched, event);
}

// What the program shows
// -------------------------------------------------------------------------------------

bool GraphView::isOpen() const { return desk_.design().isOpen(WindowId::xPlot); }

void GraphView::syncHeader(const ChartContent& chart) {
    const bool shown = !chart.header.empty();
    header_->setVisible(shown);
    secondHeader_->setVisible(shown);
    if (!shown)
        return;
    header_->setText(shownText(chart.header[0]));
    const QString second = shownText(model().secondHeader().Text);
    if (secondHeader_->text() != second)
        secondHeader_->setText(second);
}

void GraphView::syncFooter(const ChartContent& chart) {
    line_->setVisible(!chart.footer.empty());
    footerArea_->setVisible(!chart.footer.empty());
    const QFont font =
        lookOf(chart.colours)
            .sized(footerPixels(chart.footerSize), chart.footerBold ? QFont::DemiBold : QFont::Normal);
    for (std::size_t i = 0; i < footer_.size(); ++i) {
        footer_[i]->setFont(font);
        footer_[i]->setText(chart.footer.empty() ? QString() : shownText(chart.footer[i]));
    }
    fitFooter();
}

void GraphView::sync() {
    const ChartContent& chart = model().chart();
    menus_->sync();
    status_->setText(shownText(model().pnlStatus().Caption));
    syncHeader(chart);
    syncFooter(chart);
    plot_->setLook(lookOf(chart.colours));
    plot_->setContent(chart);
    plot_->setAccessibleName(header_->text());
    plot_->setAccessibleDescription(shownText(chart.mark.details));
    const bool opened = isOpen() && !wasOpen_;
    wasOpen_ = isOpen();
    if (opened)
        plot_->setFocus();
}

}  // namespace lorvane::desktop
