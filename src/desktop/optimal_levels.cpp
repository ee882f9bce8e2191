// The rows of the levels.
#include "desktop/optimal_levels.h"

#include <QFontMetricsF>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QRadioButton>
#include <QVBoxLayout>
#include <utility>

#include "base/names.h"
#include "base/number_text.h"
#include "desktop/kit/entry_cell.h"
#include "desktop/kit/level_name.h"
#include "desktop/kit/number_label.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"
#include "desktop/kit/zoom.h"
#include "desktop/menus.h"

namespace lorvane::desktop {

namespace {

constexpr int headHeight = 30;
constexpr int rowHeight = 47;  // with the line above
constexpr int nameWidth = 138;
constexpr int nameGap = 8;
constexpr int automaticWidth = 167;
constexpr int manualWidth = 125;
constexpr int sizeWidth = 78;
constexpr int armWidth = 98;
constexpr int armGap = 8;
constexpr int blockWidth = 2 * armWidth + armGap;
constexpr int headWidths[] = {2 * armWidth, armWidth};  // there is room before the first

// A row under a line.
class LineAbove : public QWidget {
protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(0, 0, width(), 1, colour(Role::Line)); }
};

QHBoxLayout* rowOf(QWidget* parent, int spacing = 0) {
    auto* row = new QHBoxLayout(parent);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(spacing);
    return row;
}

QLabel* secondLabel(TextStyle style, const QString& text) {
    auto* label = new QLabel(text);
    setTextStyle(*label, style);
    label->setProperty("second", true);
    return label;
}

QString captionOf(const Panel& panel) { return shownText(panel.Caption).trimmed(); }

}  // namespace

OptimalLevels::OptimalLevels(Desk& desk, Menus& menus) : desk_(desk), menus_(menus) {
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    auto* box = new QVBoxLayout(this);
    box->setContentsMargins(18, 0, 18, 2);
    box->setSpacing(0);
    box->addWidget(makeHeads());
    for (int level = highestLevel; level >= lowestLevel; --level)
        box->addWidget(makeRow(level));
}

QWidget* OptimalLevels::makeHeads() {
    auto* line = new QWidget;
    line->setFixedHeight(headHeight);
    QHBoxLayout* row = rowOf(line, armGap);
    row->addWidget(secondLabel(TextStyle::CaptionStrong, captionOf(model().lblLevel())), 1);
    for (const int arm : {0, 1}) {
        heads_[arm] = makeCell(0, headWidths[arm]);
        heads_[arm]->setTextStyle(TextStyle::CaptionStrong);
        heads_[arm]->setTextRole(Role::SecondText);
        row->addWidget(heads_[arm]);
    }
    return line;
}

QRadioButton* OptimalLevels::makeOption(const char* stem, int level) {
    auto* option = new QRadioButton;
    const std::string control = indexedName(stem, level);
    option->setObjectName(QString::fromStdString(control));
    setTextStyle(*option, TextStyle::Body);
    connect(option, &QRadioButton::clicked, this, [this, control] { desk_.click(control); });
    return option;
}

EntryCell* OptimalLevels::makeSize(int level) {
    auto* cell = new EntryCell;
    const std::string number = indexedName("frmOptimal.txtNumReps", level);
    cell->setObjectName(QString::fromStdString(number));
    cell->setFixedSize(sizeWidth, 28);
    connect(cell, &EntryCell::stepped, this,
            [this, level](int direction) { desk_.spin(model().row(level).arrows, direction); });
    connect(cell, &EntryCell::entered, this, [this, number](const QString& text) {
        if (const auto value = readNumber(text.toStdString()))
            desk_.setNumber(number, *value);
    });
    return cell;
}

NumberLabel* OptimalLevels::makeCell(int level, int width) {
    auto* cell = new NumberLabel;
    cell->setFixedWidth(width);
    if (level < lowestLevel)
        return cell;
    cell->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(cell, &QWidget::customContextMenuRequested, this, [this, cell, level](const QPoint& at) {
        menus_.popup(indexedName("popLinkN", level) + "B", cell->mapToGlobal(at));
    });
    return cell;
}

QWidget* OptimalLevels::makeRow(int level) {
    Row row{level,
            new LineAbove,
            new LevelName,
            secondLabel(TextStyle::Body, captionOf(model().row(level).pnlSearched)),
            makeOption("frmOptimal.optAuto", level),
            makeOption("frmOptimal.optManual", level),
            makeSize(level),
            makeCell(level, armWidth),
            makeCell(level, armWidth),
            makeCell(level, blockWidth)};
    row.line->setFixedHeight(rowHeight);
    row.name->setFixedWidth(nameWidth - nameGap);
    row.automatic->setMinimumWidth(automaticWidth);
    row.manual->setMinimumWidth(manualWidth);
    QHBoxLayout* line = rowOf(row.line);
    line->addWidget(row.name);
    line->addSpacing(nameGap);
    line->addWidget(row.searched);
    line->addWidget(row.automatic);
    line->addWidget(row.manual);
    line->addWidget(row.size);
    line->addStretch(1);
    line->addWidget(row.treated);
    line->addSpacing(armGap);
    line->addWidget(row.control);
    line->addWidget(row.block);
    rows_.push_back(row);
    return row.line;
}

const OptimalWindow& OptimalLevels::model() const { return desk_.application().optimalWindow(); }

void OptimalLevels::syncSize(const Row& row) {
    const OptimalWindow::LevelRow& level = model().row(row.level);
    row.size->setVisible(level.size.Visible);
    row.size->setText(shownText(level.size.Text));
    row.size->setAccessibleName(captionOf(level.optPanelName) + QStringLiteral(", ") +
                                shownText(level.optManual.Caption));
}

void OptimalLevels::syncCells(const Row& row) {
    const OptimalWindow::LevelRow& level = model().row(row.level);
    const OptimalOutcome* outcome = model().outcome();
    const bool isAnswer = outcome != nullptr && level.isTop && outcome->showsBest();
    const std::pair<NumberLabel*, const Panel*> cells[] = {{row.treated, &level.OptimalpnlNT},
                                                           {row.control, &level.OptimalpnlNC},
                                                           {row.block, &level.OptimalpnlNB}};
    for (const auto& [cell, panel] : cells) {
        cell->setVisible(panel->Visible);
        cell->setText(captionOf(*panel));
        cell->setTextStyle(outcome != nullptr ? TextStyle::LevelName : TextStyle::Body);
        cell->setTextRole(outcome == nullptr ? Role::SecondText : isAnswer ? Role::Accent : Role::Text);
    }
}

void OptimalLevels::syncRow(const Row& row) {
    const OptimalWindow::LevelRow& level = model().row(row.level);
    row.line->setVisible(level.Visible);
    row.name->setLevel(captionOf(level.optPanelName), QString::fromLatin1(roleWord(level.role)),
                       level.role == LevelRole::randomized);
    row.searched->setVisible(level.pnlSearched.Visible);
    const std::pair<QRadioButton*, const Option*> options[] = {{row.automatic, &level.optAuto},
                                                               {row.manual, &level.optManual}};
    for (const auto& [button, option] : options) {
        button->setVisible(option->Visible);
        button->setEnabled(option->Enabled);
        button->setText(shownText(option->Caption));
        button->setChecked(option->Value);
        button->setAccessibleName(row.name->accessibleName() + QStringLiteral(", ") + button->text());
    }
    syncSize(row);
    syncCells(row);
}

void OptimalLevels::sync() {
    const QFontMetricsF metrics(textFont(TextStyle::CaptionStrong));
    for (const int arm : {0, 1}) {
        const QString name = shownText(model().lblGroup(arm + 1).Caption);
        heads_[arm]->setText(metrics.elidedText(name, Qt::ElideRight, headWidths[arm]));
        heads_[arm]->setToolTip(name);
    }
    for (const Row& row : rows_)
        syncRow(row);
}

}  // namespace lorvane::desktop
