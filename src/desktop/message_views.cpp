// The floating windows that tell something.
#include "desktop/message_views.h"

#include <QGridLayout>
#include <QLabel>
#include <QTabBar>
#include <QVBoxLayout>

#include "base/names.h"
#include "desktop/kit/elided_label.h"
#include "desktop/kit/icons.h"
#include "desktop/kit/plain_text.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"

namespace lorvane::desktop {

namespace {

constexpr int problemWidth = 336;
constexpr int detailsWidth = 340;
constexpr int widestTabText = 90;
constexpr int widestCount = 200;

QLabel* styled(TextStyle style, int width = 0) {
    auto* label = new QLabel;
    label->setFont(textFont(style));
    label->setWordWrap(width > 0);
    if (width > 0)
        label->setFixedWidth(width);
    return label;
}

void paintText(QLabel* label, Role role) {
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, colour(role));
    label->setPalette(palette);
}

// What tells of a problem stands out; the rest has the colour of its window.
void showTrouble(QLabel* label, bool trouble) {
    if (trouble)
        paintText(label, Role::ProblemText);
    else
        label->setPalette(QPalette());
}

}  // namespace

ProblemView::ProblemView(Desk& desk, ToolPanel* panel, const std::string& name, WindowId window,
                         const Panel& title, const Panel& text)
    : PanelView(desk, panel, name), window_(window), titleModel_(title), textModel_(text),
      title_(styled(TextStyle::PanelHeading, problemWidth)), text_(styled(TextStyle::Body, problemWidth)) {
    panel->setWindowTitle(shownText(windowTitle(window)));
    panel->content()->setSpacing(10);
    panel->content()->addWidget(title_);
    panel->content()->addWidget(text_);
}

bool ProblemView::isOpen() const { return desk_.design().isOpen(window_); }

void ProblemView::sync() {
    paintText(title_, Role::ProblemText);
    title_->setText(shownText(titleModel_.Caption));
    title_->setVisible(!titleModel_.Caption.empty());
    text_->setText(shownText(textModel_.Caption).trimmed());
}

CountsView::CountsView(Desk& desk, ToolPanel* panel) : PanelView(desk, panel, "frmCounts") {
    const CellCountsPanel& model = desk.design().countsPanel();
    panel->setWindowTitle(shownText(windowTitle(WindowId::frmCounts)));
    panel->content()->setSpacing(10);
    panel->content()->addWidget(addText(model.pnlTitle, TextStyle::PanelHeading));
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(20);
    grid->setVerticalSpacing(6);
    int line = 0;
    for (const Panel* head : {&model.lblN, &model.lblRate, &model.lblMean, &model.lblPctBad})
        grid->addWidget(addText(*head, TextStyle::Caption), ++line, 0);
    for (int cell = 1; cell <= model.pnlA.last; ++cell)
        addCell(grid, cell);
    panel->content()->addLayout(grid);
}

QLabel* CountsView::addText(const Panel& model, TextStyle style) {
    texts_.push_back({new ElidedLabel(widestCount), &model});
    texts_.back().label->setFont(textFont(style));
    return texts_.back().label;
}

// A cell is a column, its head in the first line.
void CountsView::addCell(QGridLayout* grid, int cell) {
    const CellCountsPanel& model = desk_.design().countsPanel();
    const Panel* const numbers[] = {&model.pnlN(CellCountsPanel::armOf(cell)), &model.pnlRate(cell),
                                    &model.pnlMean(cell), &model.pnlPctBad(cell)};
    int line = 0;
    const auto add = [&](QLabel* label) {
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        label->setMargin(3);
        grid->addWidget(label, line++, cell);
    };
    add(addText(model.pnlA(cell), TextStyle::CaptionStrong));
    for (const Panel* number : numbers)
        add(addText(*number, TextStyle::Value));
}

bool CountsView::isOpen() const { return desk_.design().isOpen(WindowId::frmCounts); }

void CountsView::sync() {
    for (const auto& [label, model] : texts_) {
        label->setText(shownText(model->Caption));
        label->setVisible(model->Visible);
        showTrouble(label, model->trouble);
    }
}

DetailsView::DetailsView(Desk& desk, ToolPanel* panel)
    : PanelView(desk, panel, "frmDetails"), tabs_(new QTabBar),
      title_(styled(TextStyle::Heading, detailsWidth)), text_(styled(TextStyle::Body, detailsWidth)),
      rest_(styled(TextStyle::Body, detailsWidth)) {
    panel->setWindowTitle(shownText(windowTitle(WindowId::frmDetails)));
    tabs_->setDrawBase(false);
    tabs_->setExpanding(false);
    tabs_->setUsesScrollButtons(false);
    tabs_->setElideMode(Qt::ElideRight);
    tabs_->setFixedWidth(detailsWidth);
    text_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    rest_->setMargin(14);
    rest_->setAutoFillBackground(true);
    for (QWidget* widget : {static_cast<QWidget*>(tabs_), static_cast<QWidget*>(title_),
                            static_cast<QWidget*>(text_), static_cast<QWidget*>(rest_)})
        panel->content()->addWidget(widget);
    panel->content()->setSpacing(10);
    connect(tabs_, &QTabBar::tabBarClicked, this, [this](int tab) {
        if (tab >= 0)
            desk_.click(indexedName("frmDetails.tabDetails", levels_[static_cast<std::size_t>(tab)]));
    });
}

bool DetailsView::isOpen() const { return desk_.design().isOpen(WindowId::frmDetails); }

void DetailsView::syncTabs() {
    const Details& details = desk_.application().details();
    levels_.clear();
    int current = -1;
    for (int level = highestLevel; level >= lowestLevel; --level) {
        const Option& model = details.tab(level);
        if (!model.Visible)
            continue;
        const int tab = static_cast<int>(levels_.size());
        if (tab >= tabs_->count())
            tabs_->addTab(QString());
        const QString name = shownText(model.Caption);
        const QString fitting = tabs_->fontMetrics().elidedText(name, Qt::ElideRight, widestTabText);
        tabs_->setTabText(tab, literalCaption(fitting));
        tabs_->setAccessibleTabName(tab, name);
        tabs_->setTabToolTip(tab, fitting == name ? QString() : name);
        current = model.Value ? tab : current;
        levels_.push_back(level);
    }
    while (tabs_->count() > static_cast<int>(levels_.size()))
        tabs_->removeTab(tabs_->count() - 1);
    tabs_->setCurrentIndex(current);
    tabs_->setVisible(!levels_.empty());
}

void DetailsView::sync() {
    const Details& details = desk_.application().details();
    syncTabs();
    title_->setText(shownText(details.title().Caption));
    text_->setText(shownText(details.text().Caption));
    rest_->setText(shownText(details.cover().Caption));
    QPalette palette = rest_->palette();
    palette.setColor(QPalette::Window, colour(Role::DetailsRest));
    palette.setColor(QPalette::WindowText, colour(Role::DetailsRestText));
    rest_->setPalette(palette);
    title_->setVisible(!details.isAtRest());
    text_->setVisible(!details.isAtRest());
    rest_->setVisible(details.isAtRest());
}

}  // namespace lorvane::desktop
