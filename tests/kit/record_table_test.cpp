// The table of records: its order, its selection by given numbers, its keys, and how quick it is.
#include <QClipboard>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QProxyStyle>
#include <QScrollBar>

#include "desktop/kit/record_table.h"
#include "desktop/kit/theme.h"
#include "kit_bench.h"

namespace lorvane::desktop {
namespace {

using Rows = std::vector<QStringList>;

const Rows& fewRows() {
    static const Rows rows = {
        {"Beta", "second", "0.8", "$ 1,200"},
        {"Alpha", "", "0.75", "$ 900"},
        {"Gamma", "a\tb", "", "$ 10,000"},
        {"Delta", "first", "-0.9", "n/a"},
    };
    return rows;
}

Rows manyRows(int count) {
    Rows rows;
    for (int i = 0; i < count; ++i)
        rows.push_back({QStringLiteral("Row %1").arg(i, 5, 10, QLatin1Char('0')), "text",
                        QString::number(i * 7919 % 10007 / 10007.0), QString::number(i)});
    return rows;
}

class RecordTables : public KitBench {
protected:
    void SetUp() override {
        window.resize(700, 300);
        table.setGeometry(0, 0, 700, 300);
        table.setColumns(
            {{"Name", 150}, {"Text", 100, false, true}, {"Power", 100, true}, {"Cost", 120, true}});
        table.setRows(fewRows());
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
    struct Case {
        int column;
        const char* up;
        const char* down;
    };
    for (const Case& expected : {Case{0, "ABDG", "GDBA"}, Case{1, "GDBA", "BDGA"}, Case{2, "DABG", "BADG"},
                                 Case{3, "ABGD", "GBAD"}}) {
        for (const char* order : {expected.up, expected.down, "BAGD"}) {
            clickHead(expected.column);
            EXPECT_EQ(shown(), order) << expected.column;
        }
    }
}

TEST_F(RecordTables, TellSelectionByTheNumbersGiven) {
    clickHead(3);
    ASSERT_EQ(shown(), "ABGD");
    click(0);
    click(2, Qt::ControlModifier);
    EXPECT_EQ(selections.last().at(0).value<QList<int>>(), (QList<int>{1, 2}));
    const qsizetype told = selections.count();
    table.setSelectedRows({0, 3, 3, 99, -1});
    EXPECT_EQ(table.selectedRows(), (QList<int>{0, 3}));
    clickHead(3);
    EXPECT_EQ(table.selectedRows(), (QList<int>{0, 3})) << "sorted the other way";
    EXPECT_EQ(selections.count(), told) << "neither code nor sorting is the user";
    ASSERT_EQ(shown(), "GBAD");
    const QImage image = table.viewport()->grab().toImage();
    for (const bool selected : {false, true}) {
        const int position = selected ? 1 : 0;
        EXPECT_EQ(image.pixelColor(4, place(position).center().y()) == colour(Role::SelectedRow), selected);
    }
}

TEST_F(RecordTables, KeepOrderSelectionAndPlaceWhenRowsChange) {
    Rows rows = manyRows(200);
    table.setRows(rows);
    clickHead(2);
    table.setSelectedRows({3, 150, 199});
    table.verticalScrollBar()->setValue(1000);
    QSignalSpy resets(table.model(), &QAbstractItemModel::modelReset);
    table.setRows(rows);
    EXPECT_EQ(resets.count(), 0) << "the same rows";
    rows[3][1] = "other";
    rows.pop_back();
    table.setRows(rows);
    EXPECT_EQ(resets.count(), 1);
    EXPECT_EQ(table.verticalScrollBar()->value(), 1000);
    EXPECT_EQ(table.selectedRows(), (QList<int>{3, 150}));
    EXPECT_EQ(table.model()->index(0, 0).data().toString(), "Row 00000") << "the smallest value";
    EXPECT_EQ(table.model()->index(1, 0).data().toString(), rows[115].at(0)) << "the next one";
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
    EXPECT_GT(place(99).bottom(), 0);
    EXPECT_LE(place(99).bottom(), table.viewport()->height());
    press(Qt::Key_PageUp);
    ASSERT_EQ(selected().size(), 1);
    EXPECT_LT(selected().first(), 95);
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
    table.setRows(fewRows());
    clickHead(0);
    ASSERT_EQ(shown(), "ABDG");
    click(2);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter})
        press(key);
    click(0);
    QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, place(0).center());
    ASSERT_EQ(activations.count(), 3);
    EXPECT_EQ(activations.at(0).at(0), 3);
    EXPECT_EQ(activations.at(1).at(0), 3);
    EXPECT_EQ(activations.at(2).at(0), 1);
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

/// How much of a row is flooded.
int flooded(RecordTable& table, const QRect& row) {
    const QImage line =
        table.viewport()->grab(QRect(0, row.top() + 3, table.viewport()->width(), 1)).toImage();
    return pixels(line, colour(Role::SelectedRow));
}

TEST_F(RecordTables, FlyEndsByItself) {
    clickHead(0);
    const QRect row = place(3);
    ASSERT_EQ(shown().back(), 'G');
    for (const auto direction : {RecordTable::Flight::In, RecordTable::Flight::Out}) {
        table.fly(2, direction);
        ASSERT_TRUE(table.isFlying());
        QTest::qWait(60);
        const int early = flooded(table, row);
        QTest::qWait(90);
        const int late = flooded(table, row);
        EXPECT_GT(early, 0);
        EXPECT_EQ(late > early, direction == RecordTable::Flight::In);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !table.isFlying(); }, 2000));
        EXPECT_EQ(flooded(table, row), 0);
    }
    EXPECT_TRUE(selections.isEmpty());
}

class StillStyle : public QProxyStyle {
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* result) const override {
        const bool isMotion = hint == SH_Widget_Animation_Duration;
        return isMotion ? 0 : QProxyStyle::styleHint(hint, option, widget, result);
    }
};

TEST_F(RecordTables, DoNotFlyUnseenOrAgainstTheSystemsWish) {
    table.fly(0, RecordTable::Flight::In);
    table.hide();
    EXPECT_FALSE(table.isFlying());
    table.fly(0, RecordTable::Flight::In);
    EXPECT_FALSE(table.isFlying());
    table.show();
    StillStyle still;
    table.setStyle(&still);
    table.fly(0, RecordTable::Flight::In);
    EXPECT_FALSE(table.isFlying());
    table.setStyle(nullptr);
}

TEST_F(RecordTables, StayQuickWithTenThousandRows) {
    constexpr qint64 Limit = 150;  ///< milliseconds; many times what it takes, for slow machines
    Rows rows = manyRows(10000);
    const qsizetype widgets = table.findChildren<QWidget*>().size();
    QElapsedTimer timer;
    const auto took = [&](const char* what, auto work) {
        timer.start();
        work();
        RecordProperty(what, static_cast<int>(timer.elapsed()));
        EXPECT_LT(timer.elapsed(), Limit) << what;
    };
    took("set", [&] { table.setRows(rows); });
    took("sort", [&] { clickHead(2); });
    took("select", [&] { press(Qt::Key_A, Qt::ControlModifier); });
    rows.front()[1] = "other";
    took("change", [&] { table.setRows(rows); });
    took("paint", [&] { table.grab(); });
    EXPECT_EQ(table.selectedRows().size(), 10000);
    EXPECT_EQ(table.findChildren<QWidget*>().size(), widgets);
}

}  // namespace
}  // namespace lorvane::desktop
