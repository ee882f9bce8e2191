// The floating windows that tell something.
#include "desktop/message_views.h"

#include <QDockWidget>
#include <QGridLayout>
#include <QVBoxLayout>

#include "base/names.h"
#include "desktop/kit/level_tabs.h"
#include "desktop/kit/message_card.h"
#include "desktop/kit/panel_dock.h"
#include "desktop/kit/paragraph_view.h"
#include "desktop/kit/plain_text.h"
#include "desktop/kit/push_button.h"
#include "desktop/kit/rest_sheet.h"
#include "desktop/kit/rule.h"
#include "desktop/kit/theme.h"
#include "desktop/kit/wrapped_label.h"
#include "desktop/kit/zoom.h"
#include "desktop/shown_paragraphs.h"

namespace lorvane::desktop {

namespace {

constexpr int panelWidth = 364;
constexpr int padding = 22;
constexpr QSize detailsSize{440, 400};
constexpr QSize smallestDetails{340, 240};

// What a panel would like to be wide; a dock may give it less.
void preferWidth(QVBoxLayout* column, int width) {
    column->addSpacerItem(new QSpacerItem(width, 0, QSizePolicy::Preferred, QSizePolicy::Fixed));
}

WrappedLabel* styled(TextStyle style) {
    auto* label = new WrappedLabel;
    setTextStyle(*label, style);
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
      title_(styled(TextStyle::PanelHeading)), text_(new MessageCard) {
    panel->setWindowTitle(shownText(windowTitle(window)));
    panel->content()->setSpacing(10);
    panel->content()->addWidget(title_);
    panel->content()->addWidget(text_);
    preferWidth(panel->content(), panelWidth);
}

bool ProblemView::isOpen() const { return desk_.design().problemIsDrawn(window_); }

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
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(8);
    grid->setColumnStretch(0, 1);
    addHeads(grid);
    for (int cell = 1; cell <= model.pnlA.last; ++cell)
        addCell(grid, cell);
    panel->content()->addLayout(grid);
    preferWidth(panel->content(), panelWidth);
}

QLabel* CountsView::addText(const Panel& model, TextStyle style) {
    auto* label = styled(style);
    // The columns have the widths that the grid gives them.
    QSizePolicy policy = label->sizePolicy();
    policy.setHorizontalPolicy(QSizePolicy::Ignored);
    label->setSizePolicy(policy);
    texts_.push_back({label, &model});
    return label;
}

void CountsView::addHeads(QGridLayout* grid) {
    const CellCountsPanel& model = desk_.design().countsPanel();
    const std::pair<const Panel*, int> heads[] = {
        {&model.lblN, 66}, {&model.lblRate, 44}, {&model.lblMean, 56}, {&model.lblPctBad, 76}};
    int column = 0;
    for (const auto& [head, width] : heads) {
        QLabel* label = addText(*head, TextStyle::CaptionStrong);
        label->setProperty("second", true);
        label->setAlignment(Qt::AlignRight | Qt::AlignBottom);
        grid->setColumnMinimumWidth(++column, width);
        grid->addWidget(label, 0, column);
    }
}

// A cell is a row: its arm and outcome, and what is known of it.
void CountsView::addCell(QGridLayout* grid, int cell) {
    const CellCountsPanel& model = desk_.design().countsPanel();
    grid->addWidget(addText(model.pnlA(cell), TextStyle::BodyMedium), cell, 0);
    int column = 0;
    for (const Panel* number : {&model.pnlN(CellCountsPanel::armOf(cell)), &model.pnlRate(cell),
                                &model.pnlMean(cell), &model.pnlPctBad(cell)}) {
        QLabel* label = addText(*number, TextStyle::Value);
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        grid->addWidget(label, cell, ++column);
    }
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
    : PanelView(desk, panel, "frmDetails"), text_(new QWidget), tabs_(new LevelTabs), tabRule_(new Rule),
      title_(styled(TextStyle::Heading)), paragraphs_(new ParagraphView), hint_(styled(TextStyle::Caption)),
      close_(plainButton(QString())), rest_(new RestSheet) {
    panel->setWindowTitle(shownText(windowTitle(WindowId::frmDetails)));
    panel->content()->setSizeConstraint(QLayout::SetDefaultConstraint);
    panel->setMinimumSize(smallestDetails);
    panel->resize(detailsSize);
    panel->content()->addWidget(text_);
    panel->content()->addWidget(rest_);
    addText();
    connect(tabs_, &QTabBar::tabBarClicked, this, [this](int tab) {
        if (tab >= 0)
            desk_.click(indexedName("frmDetails.tabDetails", levels_[static_cast<std::size_t>(tab)]));
    });
    connect(close_, &PushButton::clicked, this, [this] { desk_.click("frmDetails.Command1"); });
}

void DetailsView::addText() {
    auto* column = new QVBoxLayout(text_);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(tabs_);
    column->addWidget(tabRule_);
    column->addSpacing(18);
    column->addWidget(title_);
    column->addSpacing(6);
    column->addWidget(paragraphs_, 1);
    column->addWidget(new Rule);
    auto* footer = new QHBoxLayout;
    footer->setContentsMargins(0, 12, 0, 0);
    footer->setSpacing(8);
    hint_->setProperty("second", true);
    close_->setMinimumWidth(84);
    footer->addWidget(hint_, 1, Qt::AlignVCenter);
    footer->addWidget(close_);
    column->addLayout(footer);
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
        tabs_->setTabText(tab, literalCaption(shownText(model.Caption)));
        tabs_->setAccessibleTabName(tab, shownText(model.Caption));
        current = model.Value ? tab : current;
        levels_.push_back(level);
    }
    while (tabs_->count() > static_cast<int>(levels_.size()))
        tabs_->removeTab(tabs_->count() - 1);
    tabs_->setCurrentIndex(current);
    tabs_->setVisible(!levels_.empty());
    tabRule_->setVisible(!levels_.empty());
}

// At rest the sheet fills a window of its own; in the column of docks it keeps inside like all that stands
// there.
void DetailsView::syncMargins(bool atRest) {
    const bool floats = qobject_cast<QDockWidget*>(panel()->window()) != nullptr;
    const int margin = atRest ? 0 : padding;
    const auto zoomed = [this](int length) { return desktop::zoomed(*panel(), length); };
    panel()->content()->setContentsMargins(
        floats ? QMargins(margin, margin, margin, margin)
               : QMargins(zoomed(DockPadding.left()), zoomed(DockPadding.top()), zoomed(DockPadding.right()),
                          zoomed(DockPadding.bottom())));
    rest_->setSquare(floats);
    close_->setVisible(floats);
}
void DetailsView::sync() {
    const Details& details = desk_.application().details();
    syncTabs();
    title_->setText(shownText(details.title().Caption));
    paragraphs_->setParagraphs(shownParagraphs(details.paragraphs()));
    paragraphs_->setAccessibleName(title_->text());
    hint_->setText(shownText(details.hint().Caption));
    close_->setText(shownText(details.closeButton().Caption));
    rest_->setText(shownText(details.cover().Caption));
    text_->setVisible(!details.isAtRest());
    rest_->setVisible(details.isAtRest());
    syncMargins(details.isAtRest());
}

}  // namespace lorvane::desktop
