// The table of records: its order, its selection by given numbers, its keys, and how quick it is.
#include <QClipboard>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QProxyStyle>
#include <QScrollBar>
#include <tuple>

#include "desktop/kit/record_table.h"
#include "desktop/kit/theme.h"
#include "kit_bench.h"

namespace lorvane::desktop {
namespace {

using Rows = std::vector<QStringList>;

const Rows fewRows = {{"Beta", "second", "0.8", "$ 1,200"},
                      {"Alpha", "", "0.75", "$ 900"},
                      {"Gamma", "a\tb", "", "$ 10,000"},
                      {"Delta", "first", "-0.9", "n/a"}};

Rows manyRows(int count) {
    Rows rows;
    for (int i = 0; i < count; ++i)
        rows.push_back({QStringLiteral("Row %1").arg(i), "text", QString::number(i * 7919 % 10007), "1"});
    return rows;
}

class RecordTables : public KitBench {
protected:
    void SetUp() override {
        window.resize(700, 300);
        table.setGeometry(0, 0, 700, 300);
        table.setColumns(
            {{"Name", 150}, {"Text", 100, false, true}, {"Power", 100, true}, {"Cost", 120, true}});
        table.setRows(fewRows);
        KitBench::SetUp();
        table.setFocus();
    }

    void clickHead(int column) {
        const int x = table.horizontalHeader()->sectionViewportPosition(column) + 30;
        QTest::mouseClick(table.horizontalHeader()->viewport(), Qt::LeftButton, {}, QPoint(x, 10));
    }

    QRect place(int position) { return table.visualRect(table.model()->index(position, 0)); }

    void click(int position, Qt::KeyboardModifiers modifiers = {}) {
        QTest::mouseClick(table.viewport(), Qt::LeftButton, modifiers, place(position).center());
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(&table, key, modifiers); }

    /// The first letters of the names from the top down.
    std::string shown() {
        std::string letters;
        for (int i = 0; i < table.model()->rowCount(); ++i)
            letters += table.model()->index(i, 0).data().toString().at(0).toLatin1();
        return letters;
    }

    RecordTable table{&window};
    QSignalSpy selections{&table, &RecordTable::selectionChangedByUser};
    QSignalSpy activations{&table, &RecordTable::activated};
};

TEST_F(RecordTables, SortUpDownAndBackWithWhatIsEmptyLast) {
    const std::tuple<int, const char*, const char*> cases[] = {
        {0, "ABDG", "GDBA"}, {1, "GDBA", "BDGA"}, {2, "DABG", "BADG"}, {3, "ABGD", "GBAD"}};
    for (const auto& [column, up, down] : cases)
        for (const char* order : {up, down, "BAGD"}) {
            clickHead(column);
            EXPECT_EQ(shown(), order) << column;
        }
}

TEST_F(RecordTables, TellSelectionByTheNumbersGiven) {
    clickHead(3);
    ASSERT_EQ(shown(), "ABGD");
    click(0);
    click(2, Qt::ControlModifier);
    EXPECT_EQ(selections.last().at(0).value<QList<int>>(), (QList<int>{1, 2}));
    table.setTips([](int row) { return row == 2 ? QStringLiteral("p < 1") : QString(); });
    for (int position = 0; position < 4; ++position)
        EXPECT_EQ(table.model()->index(position, 1).data(Qt::ToolTipRole).toString().contains("p &lt; 1"),
                  position == 2);
    const qsizetype told = selections.count();
    table.setSelectedRows({0, 3, 3, 99, -1});
    EXPECT_EQ(table.selectedRows(), (QList<int>{0, 3}));
    clickHead(3);
    EXPECT_EQ(table.selectedRows(), (QList<int>{0, 3})) << "sorted the other way";
    EXPECT_EQ(selections.count(), told) << "neither code nor sorting is the user";
    const QImage image = table.viewport()->grab().toImage();
    for (const int position : {0, 1})
        EXPECT_EQ(image.pixelColor(4, place(position).center().y()) == colour(Role::SelectedRow),
                  position == 1);
}

TEST_F(RecordTables, KeepOrderSelectionAndPlaceWhenRowsChange) {
    Rows rows = manyRows(200);
    table.setRows(rows);
    clickHead(2);
    table.setSelectedRows({3, 150, 199});
    table.verticalScrollBar()->setValue(1000);
    rows[3][1] = "other";
    rows.pop_back();
    table.setRows(rows);
    EXPECT_EQ(table.verticalScrollBar()->value(), 1000);
    EXPECT_EQ(table.selectedRows(), (QList<int>{3, 150}));
    EXPECT_EQ(table.model()->index(0, 0).data().toString(), "Row 0") << "the smallest value";
    EXPECT_TRUE(selections.isEmpty());
}

TEST_F(RecordTables, GoByKeys) {
    table.setRows(manyRows(100));
    const auto selected = [&] { return table.selectedRows(); };
    click(2);
    press(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(selected(), (QList<int>{2, 3}));
    press(Qt::Key_Home, Qt::ShiftModifier);
    EXPECT_EQ(selected(), (QList<int>{0, 1, 2}));
    press(Qt::Key_End);
    EXPECT_EQ(selected(), QList<int>{99});
    EXPECT_TRUE(table.viewport()->rect().contains(place(99).center()));
    press(Qt::Key_PageUp);
    EXPECT_LT(selected().value(0, 99), 95);
    press(Qt::Key_Home);
    press(Qt::Key_PageDown);
    EXPECT_GT(selected().value(0), 4);
    press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(selected().size(), 100);
    table.bringIntoView(0);
    EXPECT_EQ(place(0).top(), 0);
}

TEST_F(RecordTables, TellOfEnterDoubleClickAndDelete) {
    QSignalSpy deletions(&table, &RecordTable::deletePressed);
    table.setRows({});
    press(Qt::Key_Return);
    EXPECT_TRUE(activations.isEmpty()) << "no row";
    table.setRows(fewRows);
    clickHead(0);
    ASSERT_EQ(shown(), "ABDG");
    click(2);
    press(Qt::Key_Return);
    press(Qt::Key_Enter);
    click(0);
    QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, place(0).center());
    EXPECT_EQ(activations, (QList<QVariantList>{{3}, {3}, {1}}));
    press(Qt::Key_Delete);
    EXPECT_EQ(deletions.count(), 1);
    EXPECT_EQ(table.model()->rowCount(), 4) << "deleting is for the owner";
}

TEST_F(RecordTables, CopyWhatIsSelectedInTheOrderOnTheScreen) {
    QClipboard& clipboard = *QApplication::clipboard();
    clipboard.setText("before");
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard.text(), "before") << "nothing selected";
    clickHead(0);
    table.setSelectedRows({0, 1, 2});
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard.text().toStdString(), "Name\tText\tPower\tCost\n"
                                              "Alpha\t\t0.75\t$ 900\n"
                                              "Beta\tsecond\t0.8\t$ 1,200\n"
                                              "Gamma\ta b\t\t$ 10,000\n");
}

class StillStyle : public QProxyStyle {
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* result) const override {
        return hint == SH_Widget_Animation_Duration ? 0
                                                    : QProxyStyle::styleHint(hint, option, widget, result);
    }
};

TEST_F(RecordTables, FlyOnlySeenAndWhereTheSystemAllows) {
    const QRect line(0, place(2).top() + 3, table.width(), 1);
    const auto flooded = [&] {
        return pixels(table.viewport()->grab(line).toImage(), colour(Role::SelectedRow));
    };
    for (const auto direction : {RecordTable::Flight::In, RecordTable::Flight::Out}) {
        table.fly(2, direction);
        QTest::qWait(60);
        EXPECT_GT(flooded(), 0);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !table.isFlying(); }, 2000));
        EXPECT_EQ(flooded(), 0);
    }
    EXPECT_TRUE(selections.isEmpty());
    table.fly(0, RecordTable::Flight::In);
    EXPECT_TRUE(table.isFlying());
    table.hide();
    EXPECT_FALSE(table.isFlying());
    table.fly(0, RecordTable::Flight::In);
    EXPECT_FALSE(table.isFlying()) << "unseen";
    table.show();
    StillStyle still;
    table.setStyle(&still);
    table.fly(0, RecordTable::Flight::In);
    EXPECT_FALSE(table.isFlying()) << "against the system's wish";
    table.setStyle(nullptr);
}

TEST_F(RecordTables, StayQuickWithTenThousandRows) {
    Rows rows = manyRows(10000);
    const qsizetype widgets = table.findChildren<QWidget*>().size();
    QElapsedTimer timer;
    timer.start();
    table.setRows(rows);
    clickHead(2);
    press(Qt::Key_A, Qt::ControlModifier);
    rows.front()[1] = "other";
    table.setRows(rows);
    table.grab();
    EXPECT_LT(timer.elapsed(), 750) << "milliseconds; many times what it takes, for slow machines";
    EXPECT_EQ(table.selectedRows().size(), 10000);
    EXPECT_EQ(table.findChildren<QWidget*>().size(), widgets);
}

}  // namespace
}  // namespace lorvane::desktop
