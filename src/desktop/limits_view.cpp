// The dialog of the limits of risks.
#include "desktop/limits_view.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QShortcut>
#include <QVBoxLayout>
#include <iterator>

#include "desktop/kit/elided_label.h"
#include "desktop/kit/entry_cell.h"
#include "desktop/kit/number_label.h"
#include "desktop/kit/theme.h"
#include "desktop/kit/zoom.h"

namespace lorvane::desktop {

namespace {

constexpr int width = 686;
constexpr int rowHeight = 44;
constexpr QSize cellSize(84, 28);
constexpr int besideCells = 14;
constexpr int arrowRoom = 24;  // between a number and the edge of its cell

// Columns of the grid and their widths; the name takes what is left.
enum Column { nameColumn, lowerColumn, upperColumn, firstImplied };
constexpr int impliedWidths[] = {50, 72, 80, 112, 64};
constexpr int narrowestName = 90;

class Line final : public QWidget {
public:
    Line() { setFixedHeight(1); }

private:
    void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(rect(), colour(Role::Line)); }
};

QLabel* head(const std::string& text, TextStyle style, Qt::Alignment alignment, int behind = 0) {
    auto* label = new QLabel(shownText(text));
    setTextStyle(*label, style);
    label->setProperty("second", true);
    label->setAlignment(alignment | Qt::AlignVCenter);
    label->setContentsMargins(0, 0, behind, 0);
    return label;
}

}  // namespace

LimitsView::LimitsView(Desk& desk, ToolPanel* panel)
    : PanelView(desk, panel, "frmLimits"), model_(desk.application().dialogs().limits()),
      frame_(panel, model_.dialog(), width, [this](const DialogButton& button) { press(button); }) {
    auto* grid = new QGridLayout;
    grid->setSpacing(0);
    grid->setColumnStretch(nameColumn, 1);
    grid->setColumnMinimumWidth(nameColumn, narrowestName);
    for (const int column : {lowerColumn, upperColumn})
        grid->setColumnMinimumWidth(column, cellSize.width() + besideCells);
    for (int i = 0; i < static_cast<int>(std::size(impliedWidths)); ++i)
        grid->setColumnMinimumWidth(firstImplied + i, impliedWidths[i]);
    addHeads(grid);
    for (int level = highestLevel; level > lowestLevel; --level)
        addRow(grid, level);
    addLine(grid, grid->rowCount());
    frame_.fields()->addLayout(grid);
    frame_.finish();
    panel->setAttribute(Qt::WA_ShowWithoutActivating, false);
    connect(new QShortcut(Qt::Key_Escape, panel), &QShortcut::activated, this,
            [this] { press(model_.dialog().buttons[model_.dialog().cancel]); });
}

void LimitsView::addHeads(QGridLayout* grid) {
    const auto add = [&](int row, int column, QLabel* label) { grid->addWidget(label, row, column); };
    const auto strong = TextStyle::CaptionStrong;
    add(0, lowerColumn, head(LimitsDialog::entered, TextStyle::Caption, Qt::AlignLeft));
    add(0, firstImplied, head(LimitsDialog::impliedGroup, TextStyle::Caption, Qt::AlignRight));
    add(1, nameColumn, head(LimitsDialog::levels, strong, Qt::AlignLeft));
    add(1, lowerColumn, head(LimitsDialog::lowerLimits, strong, Qt::AlignRight, besideCells + arrowRoom));
    add(1, upperColumn, head(LimitsDialog::upperLimits, strong, Qt::AlignRight, besideCells + arrowRoom));
    int column = firstImplied;
    for (const LimitsDialog::Column& implied : model_.implied())
        add(1, column++, head(implied.heading.Caption, strong, Qt::AlignRight));
    grid->setRowMinimumHeight(0, 20);
    grid->setRowMinimumHeight(1, 30);
}

QWidget* LimitsView::addLine(QGridLayout* grid, int row) {
    auto* line = new Line;
    grid->addWidget(line, row, 0, 1, -1);
    return line;
}

void LimitsView::addRow(QGridLayout* grid, int level) {
    const int at = grid->rowCount() + 1;
    Row row{level,
            addLine(grid, at - 1),
            new ElidedLabel(),
            addCell(model_.lower(level)),
            addCell(model_.upper(level)),
            {}};
    setTextStyle(*row.name, TextStyle::BodyStrong);
    row.name->setContentsMargins(0, 0, besideCells, 0);
    grid->addWidget(row.name, at, nameColumn);
    grid->addWidget(row.lower, at, lowerColumn, Qt::AlignLeft | Qt::AlignVCenter);
    grid->addWidget(row.upper, at, upperColumn, Qt::AlignLeft | Qt::AlignVCenter);
    for (std::size_t i = 0; i < model_.implied().size(); ++i) {
        row.implied.push_back(new NumberLabel(Qt::AlignRight));
        row.implied.back()->setTextRole(Role::SecondText);
        grid->addWidget(row.implied.back(), at, firstImplied + static_cast<int>(i));
    }
    rows_.push_back(std::move(row));
}

EntryCell* LimitsView::addCell(const DialogField& field) {
    auto* cell = new EntryCell;
    cell->setObjectName(QString::fromStdString(field.control));
    cell->setFixedSize(cellSize);
    cell->setAccessibleDescription(QLatin1String(LimitsDialog::hint));
    cell->installEventFilter(this);
    connect(cell, &ValueCell::stepped, this,
            [this, &field](int direction) { desk_.spin(LimitsDialog::arrowsOf(field), direction); });
    connect(cell, &EntryCell::entered, this,
            [this, &field](const QString& text) { desk_.type(field.control, text); });
    return cell;
}

// Enter presses the primary button, as in every dialog; a digit or a double click opens a limit for typing.
bool LimitsView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return PanelView::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter)
        return PanelView::eventFilter(watched, event);
    press(model_.dialog().buttons.back());
    return true;
}

void LimitsView::syncCell(EntryCell& cell, const DialogField& field) {
    cell.setText(shownText(field.box.Text));
    cell.setAccessibleName(shownText(field.label.Caption));
    cell.setProblem(field.trouble ? ValueCell::Problem::Outlined : ValueCell::Problem::None);
    cell.setVisible(field.box.Visible);
}

void LimitsView::syncRow(const Row& row) {
    const Panel& name = model_.levelName(row.level);
    row.name->setText(shownText(name.Caption));
    row.name->setMinimumHeight(rowHeight);
    for (QWidget* widget : {row.line, static_cast<QWidget*>(row.name)})
        widget->setVisible(name.Visible);
    syncCell(*row.lower, model_.lower(row.level));
    syncCell(*row.upper, model_.upper(row.level));
    for (std::size_t i = 0; i < row.implied.size(); ++i) {
        const LimitsDialog::Column& column = model_.implied()[i];
        const std::string& value = column.cells(row.level).Caption;
        row.implied[i]->setText(shownText(value));
        row.implied[i]->setAccessibleName(row.name->text() + QStringLiteral(", ") +
                                          shownText(column.heading.Caption + ": " + value));
        row.implied[i]->setVisible(name.Visible);
    }
}

// A refused limit keeps the focus, also when a button was pressed by the pointer.
void LimitsView::showRefusal() {
    const std::string& refusal = model_.dialog().refusal;
    const bool isNew = refusal != refusal_ && !refusal.empty();
    refusal_ = refusal;
    for (const Row& row : rows_) {
        for (EntryCell* cell : {row.lower, row.upper}) {
            if (isNew && cell->hasProblem()) {
                cell->setFocus();
                return;
            }
        }
    }
}

void LimitsView::sync() {
    for (const Row& row : rows_)
        syncRow(row);
    frame_.sync();
    showRefusal();
    const bool opened = isOpen() && (!wasOpen_ || openings_ != model_.dialog().openings);
    wasOpen_ = isOpen();
    openings_ = model_.dialog().openings;
    if (!opened)
        return;
    if (panel()->isVisible())
        panel()->activateWindow();
    for (const Row& row : rows_) {
        if (!row.lower->isHidden()) {
            row.lower->setFocus();
            return;
        }
    }
}

}  // namespace lorvane::desktop
