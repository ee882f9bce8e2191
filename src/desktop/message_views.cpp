// The floating windows that tell something.
#include "desktop/message_views.h"

#include <QGridLayout>
#include <QLabel>
#include <QTabBar>
#include <QVBoxLayout>

#include "base/names.h"
#include "desktop/kit/icons.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"

namespace lorvane::desktop {

namespace {

constexpr int problemWidth = 336;
constexpr int detailsWidth = 340;
constexpr int fullDetail = 3;
constexpr int moderateDetail = 2;

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

}  // namespace

ProblemView::ProblemView(Desk& desk, ToolPanel* panel, const std::string& name, WindowId window,
                         const Panel& title, const Panel& text)
    : PanelView(desk, panel, name), window_(window), titleModel_(title), textModel_(text),
      title_(styled(TextStyle::PanelHeading, problemWidth)), text_(styled(TextStyle::Body, problemWidth)) {
    panel->content()->setSpacing(10);
    panel->content()->addWidget(title_);
    panel->content()->addWidget(text_);
}

bool ProblemView::isOpen() const { return desk_.design().windows().state(window_) == WindowStates::open; }

void ProblemView::sync() {
    panel()->setWindowTitle(tr("Problem"));
    paintText(title_, Role::ProblemText);
    title_->setText(shownText(titleModel_.Caption));
    title_->setVisible(!titleModel_.Caption.empty());
    text_->setText(shownText(textModel_.Caption).trimmed());
}

CountsView::CountsView(Desk& desk, ToolPanel* panel)
    : PanelView(desk, panel, "frmCounts"), verdict_(styled(TextStyle::PanelHeading)) {
    panel->content()->setSpacing(10);
    panel->content()->addWidget(verdict_);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(20);
    grid->setVerticalSpacing(6);
    addLine(grid, QString(), 4, moderateDetail);
    addLine(grid, tr("Individuals in a cluster"), 4, fullDetail);
    addLine(grid, tr("Rate"), 4, fullDetail);
    addLine(grid, tr("Expected count"), 4, fullDetail);
    addLine(grid, tr("Share with a count under 3.5"), 4, moderateDetail);
    panel->content()->addLayout(grid);
}

void CountsView::addLine(QGridLayout* grid, const QString& head, int cells, int detail) {
    const int line = static_cast<int>(lines_.size());
    Line row{styled(TextStyle::Caption), {}, detail};
    row.head->setText(head);
    grid->addWidget(row.head, line, 0);
    for (int cell = 0; cell < cells; ++cell) {
        row.cells.push_back(styled(line == 0 ? TextStyle::CaptionStrong : TextStyle::Value));
        row.cells.back()->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        row.cells.back()->setMargin(3);
        grid->addWidget(row.cells.back(), line, cell + 1);
    }
    lines_.push_back(std::move(row));
}

bool CountsView::isOpen() const {
    return desk_.design().windows().state(WindowId::frmCounts) == WindowStates::open;
}

void CountsView::sync() {
    const CellCountsPanel& model = desk_.design().countsPanel();
    const Study& study = desk_.study();
    panel()->setWindowTitle(tr("Cell counts"));
    verdict_->setText(shownText(model.pnlTitle.Caption));
    paintText(verdict_, model.pnlTitle.BackColor == problemColour ? Role::ProblemText : Role::Text);
    for (const Line& line : lines_) {
        const bool shown = desk_.design().settings().CellCountDetail >= line.detail;
        line.head->setVisible(shown);
        for (QLabel* cell : line.cells)
            cell->setVisible(shown);
    }
    for (int cell = 1; cell <= 4; ++cell) {
        const int arm = (cell + 1) / 2;
        const auto at = static_cast<std::size_t>(cell - 1);
        const QString group = shownText(arm == 1 ? study.controlName() : study.treatedName());
        lines_[0].cells[at]->setText(group + (cell % 2 == 1 ? tr(", events") : tr(", non-events")));
        lines_[1].cells[at]->setText(shownText(model.pnlN(arm).Caption));
        lines_[2].cells[at]->setText(shownText(model.pnlRate(cell).Caption));
        lines_[3].cells[at]->setText(shownText(model.pnlMean(cell).Caption));
        lines_[4].cells[at]->setText(shownText(model.pnlPctBad(cell).Caption));
        paintText(lines_[4].cells[at],
                  model.pnlPctBad(cell).BackColor == problemColour ? Role::ProblemText : Role::Text);
    }
}

DetailsView::DetailsView(Desk& desk, ToolPanel* panel)
    : PanelView(desk, panel, "frmDetails"), tabs_(new QTabBar),
      title_(styled(TextStyle::Heading, detailsWidth)), text_(styled(TextStyle::Body, detailsWidth)),
      rest_(styled(TextStyle::Body, detailsWidth)) {
    tabs_->setDrawBase(false);
    tabs_->setExpanding(false);
    text_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    rest_->setMargin(14);
    rest_->setAutoFillBackground(true);
    for (QWidget* widget : {static_cast<QWidget*>(tabs_), static_cast<QWidget*>(title_),
                            static_cast<QWidget*>(text_), static_cast<QWidget*>(rest_)})
        panel->content()->addWidget(widget);
    panel->content()->setSpacing(10);
    connect(tabs_, &QTabBar::tabBarClicked, this, [this](int tab) {
        if (tab >= 0)
            desk_.click(indexedName("frmDetails.tabDetails", desk_.study().NumLevels - tab));
    });
}

bool DetailsView::isOpen() const {
    return desk_.design().windows().state(WindowId::frmDetails) == WindowStates::open;
}

void DetailsView::syncTabs() {
    const std::vector<std::string>& names = desk_.application().details().tabs();
    while (tabs_->count() > static_cast<int>(names.size()))
        tabs_->removeTab(tabs_->count() - 1);
    for (std::size_t i = 0; i < names.size(); ++i) {
        const int tab = static_cast<int>(i);
        if (tab >= tabs_->count())
            tabs_->addTab(shownText(names[i]));
        tabs_->setTabText(tab, shownText(names[i]));
    }
    const int row = desk_.application().details().currentTab();
    tabs_->setCurrentIndex(row == 0 ? -1 : desk_.study().NumLevels - row);
    tabs_->setVisible(!names.empty());
}

void DetailsView::sync() {
    const Details& details = desk_.application().details();
    panel()->setWindowTitle(tr("Details"));
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
