// The window of scenarios.
#include "desktop/scenario_view.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QShortcut>
#include <QVBoxLayout>

#include "base/names.h"
#include "desktop/kit/push_button.h"
#include "desktop/kit/record_table.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"

namespace lorvane::desktop {

namespace {

constexpr const char* listName = "frmScenarios.vsNames";
constexpr int heads = 1;  // rows of the program's list before the first scenario
constexpr int add = 0, restore = 1, remove = 2, edit = 3, close = 4;

// Buttons under a line.
class Footer : public QWidget {
protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(0, 0, width(), 1, colour(Role::Line)); }
};

std::vector<QStringList> scenarioRows(const Grid& list) {
    std::vector<QStringList> rows;
    for (std::size_t row = heads; row < list.rows.size(); ++row) {
        QStringList texts;
        for (std::size_t column = 1; column < list.rows[row].size(); ++column)
            texts += shownText(list.rows[row][column]);
        rows.push_back(texts);
    }
    return rows;
}

constexpr int narrow = 560;  // below, as in a dock, columns and buttons draw together

std::vector<RecordColumn> scenarioColumns(const Grid& list, bool isNarrow) {
    const Grid::Row& titles = list.rows.front();
    return {{shownText(titles[1]), isNarrow ? 110 : 150, false, false},
            {shownText(titles[2]), isNarrow ? 90 : 300, false, true},
            {shownText(titles[3]), isNarrow ? 70 : 90, true, false},
            {shownText(titles[4]), isNarrow ? 90 : 120, true, false}};
}

}  // namespace

ScenarioView::ScenarioView(Desk& desk, ToolPanel* panel)
    : PanelView(desk, panel, "frmScenarios"), table_(new RecordTable), count_(new QLabel) {
    panel->setWindowTitle(shownText(windowTitle(WindowId::frmScenarios)));
    panel->setAttribute(Qt::WA_ShowWithoutActivating, false);
    panel->content()->setSizeConstraint(QLayout::SetDefaultConstraint);
    panel->content()->setContentsMargins(0, 8, 0, 0);
    panel->resize(780, 396);
    panel->setMinimumSize(560, 260);
    table_->setAccessibleName(panel->windowTitle());
    table_->setColumns(scenarioColumns(desk.application().scenarioWindow().vsNames(), false));
    panel->installEventFilter(this);
    table_->setTips([this](int row) {
        return shownText(desk_.application().scenarioWindow().tip(static_cast<std::size_t>(row + heads)));
    });
    auto* list = new QHBoxLayout;
    list->setContentsMargins(8, 0, 8, 0);
    list->addWidget(table_);
    panel->content()->addLayout(list, 1);
    panel->content()->addWidget(makeFooter());
    connect(table_, &RecordTable::selectionChangedByUser, this, [this](const QList<int>& rows) {
        std::vector<std::size_t> chosen;
        for (const int row : rows)
            chosen.push_back(static_cast<std::size_t>(row + heads));
        desk_.select(listName, chosen);
    });
    connect(table_, &RecordTable::activated, this, [this](int row) {
        desk_.select(listName, {static_cast<std::size_t>(row + heads)});
        press(restore);
    });
    connect(table_, &RecordTable::deletePressed, this, [this] { press(remove); });
    connect(new QShortcut(Qt::Key_Escape, panel), &QShortcut::activated, this, [this] { press(close); });
}

void ScenarioView::press(int button) { desk_.click(indexedName("frmScenarios.cmdScenarios", button)); }

QWidget* ScenarioView::makeFooter() {
    auto* footer = new Footer;
    auto* row = new QHBoxLayout(footer);
    row->setContentsMargins(17, 12, 17, 13);
    row->setSpacing(8);
    const ScenarioWindow& model = desk_.application().scenarioWindow();
    const auto addButton = [&](int number, PushButton* button) {
        button->setObjectName(QString::fromStdString(indexedName("frmScenarios.cmdScenarios", number)));
        button->setMinimumWidth(84);
        connect(button, &PushButton::clicked, this, [this, number] { press(number); });
        button->setText(shownText(model.cmdScenarios(number).Caption));
        row->addWidget(button);
        buttons_.push_back(button);
    };
    addButton(add, primaryButton(QString()));
    for (const int number : {restore, edit, remove})
        addButton(number, plainButton(QString()));
    row->addStretch(1);
    count_->setFont(textFont(TextStyle::Caption));
    count_->setProperty("second", true);
    row->addWidget(count_);
    row->addSpacing(8);
    addButton(close, plainButton(QString()));
    return footer;
}

// A dock has a close sign of its own, and no room for the count.
void ScenarioView::setNarrow(bool isNarrow) {
    if (isNarrow == isNarrow_)
        return;
    isNarrow_ = isNarrow;
    table_->setColumns(scenarioColumns(desk_.application().scenarioWindow().vsNames(), isNarrow));
    for (PushButton* button : buttons_)
        button->setMinimumWidth(isNarrow ? 0 : 84);
    count_->setVisible(!isNarrow);
    buttons_.back()->setVisible(!isNarrow);
}

bool ScenarioView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize)
        setNarrow(panel()->width() < narrow);
    return PanelView::eventFilter(watched, event);
}

bool ScenarioView::isOpen() const { return desk_.design().isOpen(WindowId::frmScenarios); }

void ScenarioView::sync() {
    const ScenarioWindow& model = desk_.application().scenarioWindow();
    table_->setRows(scenarioRows(model.vsNames()));
    QList<int> selected;
    for (const std::size_t row : model.vsNames().selected)
        selected += static_cast<int>(row) - heads;
    table_->setSelectedRows(selected);
    count_->setText(shownText(model.pnlCount().Caption));
    const ProgressFlight& progress = model.progress();
    if (flights_ == progress.count)
        return;
    flights_ = progress.count;
    const int row = static_cast<int>(progress.row) - heads;
    table_->bringIntoView(row);
    const bool in = progress.direction == ProgressFlight::Direction::intoTable;
    table_->fly(row, in ? RecordTable::Flight::In : RecordTable::Flight::Out);
}

}  // namespace lorvane::desktop
