// The main window at every size: heights and widths as numbers, and what is seen of the real window.
#include <QLabel>
#include <QMenuBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QStatusBar>

#include "desktop/effect_strip.h"
#include "desktop/kit/arm_label.h"
#include "desktop/kit/level_name.h"
#include "desktop/kit/zoom.h"
#include "desktop/level_table.h"
#include "desktop/menu_overflow.h"
#include "desktop/window_memory.h"
#include "desktop_bench.h"

namespace lorvane::desktop {
namespace {

constexpr int bars = 103;  // menus, tools and status line of a window

PageSizes sizesOf(int window, int levels, bool narrow = false) {
    return pageSizes({window - bars, levels, narrow, 0});
}

TEST(PageSizes, FreeHeightGoesToTheCardsThenTheRowsThenToBoth) {
    struct Case {
        int window, levels, row, cards;
    };
    for (const Case& c :
         {Case{700, 3, 86, 101}, Case{799, 3, 86, 200}, Case{818, 3, 92, 201}, Case{900, 3, 92, 283},
          Case{949, 3, 100, 307}, Case{1171, 4, 114, 374}, Case{1500, 4, 122, 480}}) {
        const PageSizes s = sizesOf(c.window, c.levels);
        EXPECT_EQ(s.row, c.row) << c.window;
        EXPECT_NEAR(s.cards, c.cards, 1) << c.window;
        EXPECT_FALSE(s.compact);
    }
}

TEST(PageSizes, CompactBeginsWhereTheRowsDoNotFitAndGivesWayInOrder) {
    for (const auto& [levels, first] : {std::pair{3, 700}, {4, 756}}) {
        EXPECT_FALSE(sizesOf(first, levels).compact);
        EXPECT_TRUE(sizesOf(first - 1, levels).compact);
        EXPECT_TRUE(sizesOf(first + 200, levels, true).compact) << "narrow columns have small fields";
    }
    struct Case {
        int window;
        bool sense;
        int row, cards;
        bool scrolls;
    };
    for (const Case& c : {Case{648, true, 66, 88, false}, Case{647, false, 66, 103, false},
                          Case{631, false, 66, 87, false}, Case{623, false, 58, 111, false},
                          Case{592, false, 58, 80, false}, Case{591, false, 58, 80, true}}) {
        const PageSizes s = sizesOf(c.window, 4);
        EXPECT_EQ(s.sense, c.sense) << c.window;
        EXPECT_EQ(s.row, c.row) << c.window;
        EXPECT_EQ(s.cards, c.cards) << c.window;
        EXPECT_EQ(s.upper < s.strip + s.gap + s.table, c.scrolls) << c.window;
    }
}

TEST(PageSizes, NothingOverlapsAtAnyHeight) {
    for (const int levels : {2, 3, 4}) {
        for (const bool narrow : {false, true}) {
            for (int height = smallestPage(); height < 1500; ++height) {
                const PageSizes s = pageSizes({height, levels, narrow, narrow ? tableBarHeight : 0});
                const int taken = s.top + s.title + 2 * s.gap + s.upper + s.cards + s.bottom;
                ASSERT_LE(taken, height) << levels;
                ASSERT_GE(s.row, 2 * s.field + s.pairGap) << height;
                const bool isFull = s.cards == 480 && s.row == 122;
                ASSERT_TRUE(isFull || taken > height - levels) << height << " is not used";
            }
        }
    }
}

constexpr TableShape blocks{.effect = true};
constexpr TableShape hierarchy{};

TEST(TableColumns, BothSetsOfWidthsEndWhereTheOtherBegins) {
    EXPECT_EQ(wideTable(blocks), 1090);
    EXPECT_EQ(wideTable(hierarchy), 974);
    EXPECT_EQ(narrowTable(blocks), 924);
    for (const TableShape& shape : {blocks, hierarchy}) {
        EXPECT_FALSE(tableColumns(shape, wideTable(shape)).narrow);
        EXPECT_TRUE(tableColumns(shape, wideTable(shape) - 1).narrow);
        EXPECT_FALSE(tableColumns(shape, narrowTable(shape)).sideways);
        EXPECT_TRUE(tableColumns(shape, narrowTable(shape) - 1).sideways);
    }
}

TEST(TableColumns, SpareWidthSpreadsNamesAndColumns) {
    const TableColumns wide = tableColumns(blocks, 1240);
    EXPECT_EQ(wide.units.left, 227);
    EXPECT_EQ(wide.dispersion.left, 436);
    EXPECT_EQ(wide.effect.left, 556);
    EXPECT_EQ(wide.rsq.left, 920);
    EXPECT_EQ(wide.costs.left, 1044);
    const TableColumns narrow = tableColumns(blocks, 984);
    EXPECT_EQ(narrow.units.left, 174);
    EXPECT_EQ(narrow.rsq.left, 754);
    EXPECT_EQ(narrow.costs.left, 854);
    TableShape longNames = blocks;
    longNames.arm = 300;
    const TableColumns words = tableColumns(longNames, 1240);
    EXPECT_EQ(words.unitArm, 68 + 150) << "words take the spare width before the columns";
    EXPECT_EQ(words.units.left, 62 + 115);
    EXPECT_EQ(tableColumns(longNames, 1900).costArm, 300);
}

TEST(TableColumns, WholeColumnsScrollAndEveryOneCanBeBroughtInSight) {
    const ColumnOf columns[] = {&TableColumns::units,      &TableColumns::dispersion, &TableColumns::model,
                                &TableColumns::covariates, &TableColumns::rsq,        &TableColumns::costs};
    for (const TableShape& shape : {blocks, hierarchy}) {
        for (int width = 400; width < narrowTable(shape); width += 7) {
            const TableColumns table = tableColumns(shape, width);
            const int room = width - 1 - table.fields;
            int shift = 0;
            for (const ColumnOf column : columns) {
                shift = shiftToShow(table, column, shift, room);
                const ColumnPlace place = (scrolledColumns(table, shift, room).*column);
                EXPECT_TRUE(place.left > 0 && place.left + place.width <= room) << width;
            }
            EXPECT_EQ(shift, lastShift(table, room)) << "the costs are last";
            EXPECT_EQ(nearestShift(table, shift + 3, room), shift);
        }
    }
}

class SizesLook : public DesktopBench {
protected:
    void show(QSize size) {
        window.resize(size);
        settle();
    }
    static bool isWhole(const QWidget& widget) {
        return widget.visibleRegion().boundingRect() == widget.rect();
    }

    /// Words of the table that do not fit into their widgets, and cells that are cut by an edge.
    std::string cut() const {
        std::string found;
        const auto note = [&](bool fits, const QString& words) {
            if (!fits)
                found += words.toStdString() + "; ";
        };
        const LevelTable& table = *window.findChild<LevelTable*>();
        for (const LevelName* name : table.findChildren<LevelName*>())
            note(!name->isVisible() || name->sizeHint().width() <= name->width(), name->accessibleName());
        for (const QLabel* head : table.findChildren<QLabel*>())
            note(!head->isVisible() || head->sizeHint().width() <= head->width(), head->text());
        for (const ValueCell* cell : table.findChildren<ValueCell*>()) {
            const QRect seen = cell->visibleRegion().boundingRect();
            note(!cell->isVisible() || seen.isEmpty() || seen == cell->rect(), cell->accessibleName());
        }
        for (const FigureCard* card : window.findChildren<FigureCard*>())
            note(isWhole(*card), card->accessibleName());
        const EffectStrip& strip = *window.findChild<EffectStrip*>();
        for (const QLabel* caption : strip.findChildren<QLabel*>())
            note(!caption->isVisible() || caption->sizeHint().width() <= caption->width(), caption->text());
        note(isWhole(strip), QStringLiteral("strip"));
        note(isWhole(*window.statusBar()), QStringLiteral("status line"));
        return found;
    }
    void tabThroughAllCells(const std::string& where) {
        cell("pnlMean").setFocus();
        const LevelTable& table = *window.findChild<LevelTable*>();
        int passed = 0;
        for (key(Qt::Key_Tab); passed < 60; ++passed, key(Qt::Key_Tab)) {
            const QWidget* focused = QApplication::focusWidget();
            EXPECT_TRUE(!table.isAncestorOf(focused) || isWhole(*focused))
                << focused->accessibleName().toStdString() << where;
        }
    }
};

TEST_F(SizesLook, NothingIsCutAndTheFocusIsInSight) {
    for (const QSize size : {QSize(800, 600), QSize(1024, 660), QSize(1280, 650), QSize(1280, 800),
                             QSize(1600, 900), QSize(2560, 1440)}) {
        for (const double levels : {2.0, 3.0, 4.0}) {
            for (const double randomized : {levels, levels - 1}) {
                for (const char* outcome : {"Mean difference T", "Odds ratio"}) {
                    set({{"NumLevels", levels}, {"RandomizedLevel", randomized}});
                    tool(outcome);
                    show(size);
                    const std::string where = QStringLiteral(" at %1, %2 of %3 levels, ")
                                                  .arg(size.width())
                                                  .arg(randomized)
                                                  .arg(levels)
                                                  .toStdString() +
                                              outcome;
                    EXPECT_EQ(window.size(), size) << where;
                    EXPECT_EQ(cut(), "") << where;
                    EXPECT_EQ(window.zoom(), size.width() > 2200 ? 1.25 : 1) << where;
                }
            }
        }
        tool("Mean difference T");
        tabThroughAllCells(" at " + std::to_string(size.width()));
    }
}

TEST_F(SizesLook, NothingOfTheExamplesIsCut) {
    for (const char* study : {"schools", "districts", "clinics", "villages", "wards"}) {
        application.open(std::string(LORVANE_TEST_DATA "/../../assets/examples/") + study + ".Lorvane");
        desk.close("frmCounts");
        for (const QSize size : {QSize(1024, 660), QSize(1280, 680), QSize(1920, 1080), QSize(2560, 1440)}) {
            show(size);
            EXPECT_EQ(cut(), "") << study << " at " << size.width();
        }
    }
}

TEST_F(SizesLook, TheSmallestWindowScrollsColumnsBehindTheNames) {
    openFourLevels();
    show({800, 600});
    const auto& bar = *window.findChild<LevelTable*>()->findChild<QScrollBar*>();
    ASSERT_TRUE(bar.isVisible());
    cell("pnlNB(4)").setFocus();
    EXPECT_EQ(bar.value(), 0);
    cell("pnlCostB(4)").setFocus();
    settle();
    EXPECT_EQ(bar.value(), bar.maximum());
    EXPECT_TRUE(cell("pnlNB(4)").visibleRegion().isEmpty());
    EXPECT_TRUE(isWhole(cell("pnlMRange(4)")));
    show({1024, 660});
    EXPECT_FALSE(bar.isVisible());
    EXPECT_TRUE(isWhole(cell("pnlNB(4)")));
    cell("pnlNB(4)").setFocus();
    show({800, 600});
    EXPECT_TRUE(isWhole(cell("pnlNB(4)")));
    show({1024, 660});
    tool("gfrmDetails");
    cell("pnlCostB(4)").setFocus();
    show({800, 600});
    EXPECT_TRUE(isWhole(cell("pnlCostB(4)"))) << "also while another window has the keyboard";
}

TEST_F(SizesLook, AVeryLargeWindowShowsItsMiddleLargerAndKeepsItsArrows) {
    int told = 0;
    QObject::connect(&window, &MainWindow::zoomChanged, &window, [&told] { ++told; });
    const int height = cell("pnlNT(1)").height();
    const double units = study().txtNT(1);
    const int roomy = window.roomyMiddle();
    show({2560, 1440});
    EXPECT_EQ(cell("pnlNT(1)").height(), height * 5 / 4);
    EXPECT_EQ(window.centralWidget()->findChild<LevelName*>()->sizeHint().height(), 53);
    clickArrow("pnlNT(1)", 1);
    EXPECT_EQ(study().txtNT(1), units + 1);
    EXPECT_NEAR(window.roomyMiddle(), roomy * 1.25, 1);
    show({2560, 1199});
    EXPECT_EQ(cell("pnlNT(1)").height(), height);
    EXPECT_EQ(told, 2);
}

TEST_F(SizesLook, EveryMenuCanBeReached) {
    const auto& overflow = *window.findChild<MenuOverflow*>();
    const auto titles = [](const QList<QAction*>& actions) {
        QStringList words;
        for (const QAction* action : actions)
            if (!action->isSeparator() && action->menu() != nullptr && action->isVisible())
                words.append(action->text());
        return words;
    };
    show({1280, 800});
    const QStringList all = titles(window.menuBar()->actions());
    EXPECT_EQ(all.size(), 16);
    for (const int width : {1024, 800, 640}) {
        show({width, 600});
        QStringList bar = titles(window.menuBar()->actions());
        if (!overflow.more()->isEmpty())
            bar.removeLast();
        EXPECT_EQ(bar + titles(overflow.more()->actions()), all) << width;
        EXPECT_EQ(overflow.more()->isEmpty(), width == 1024);
        for (QAction* action : window.menuBar()->actions())
            EXPECT_LE(window.menuBar()->actionGeometry(action).right(), width)
                << action->text().toStdString();
    }
    const auto* own = window.menuBar()->findChild<QWidget*>(QStringLiteral("qt_menubar_ext_button"));
    EXPECT_TRUE(own == nullptr || own->isHidden()) << "the bar hides nothing by itself";
    MainWindow narrowAtOnce(desk);
    narrowAtOnce.resize(640, 480);
    narrowAtOnce.show();
    settle();
    narrowAtOnce.hide();
    window.activateWindow();
    settle();
    key(Qt::Key_H, Qt::AltModifier);
    EXPECT_TRUE(overflow.more()->isVisible());
    EXPECT_EQ(overflow.more()->activeAction()->text(), all.last());
    overflow.more()->close();
}

TEST_F(SizesLook, TheWordsAtTheRightDoNotMove) {
    show({800, 600});
    const auto labels = window.statusBar()->findChildren<QLabel*>();
    QLabel* saved = labels.last();
    const QRect place = saved->geometry();
    cell("pnlD").setAccessibleDescription(
        QStringLiteral("A hint that is much longer than the line. ").repeated(6));
    cell("pnlD").setFocus();
    settle();
    EXPECT_EQ(saved->geometry(), place);
    EXPECT_GE(saved->width(), saved->sizeHint().width());
    EXPECT_LE(labels.first()->geometry().right(), place.left());
}

TEST_F(SizesLook, LongNamesOfGroupsKeepTheColumnsApart) {
    const std::string name(60, 'w');
    set({{"txtGroupName(1)", name}, {"txtGroupName(2)", name}});
    for (const QSize size : {QSize(1024, 660), QSize(1280, 800), QSize(1900, 900)}) {
        show(size);
        const LevelTable& table = *window.findChild<LevelTable*>();
        QRegion taken;
        for (const QWidget* widget : table.findChildren<QWidget*>()) {
            const bool stands =
                qobject_cast<const ValueCell*>(widget) || qobject_cast<const ArmLabel*>(widget);
            if (!stands || !widget->isVisible())
                continue;
            EXPECT_FALSE(taken.intersects(widget->geometry())) << widget->accessibleName().toStdString();
            taken += widget->geometry();
            const bool isCut = widget->sizeHint().width() > widget->width();
            EXPECT_TRUE(!isCut || qobject_cast<const ValueCell*>(widget) ||
                        widget->toolTip().toStdString() == name);
        }
    }
}

TEST_F(SizesLook, ThePlaceIsRememberedAndComesBackOnAScreen) {
    WindowMemory memory(settings);
    QWidget untouched;
    untouched.resize(321, 123);
    memory.restore(untouched);
    EXPECT_EQ(untouched.size(), QSize(321, 123));
    window.setGeometry(200, 150, 1100, 700);
    settle();
    memory.save(window);
    QWidget again;
    WindowMemory(settings).restore(again);
    EXPECT_EQ(again.geometry(), QRect(200, 150, 1100, 700));
    window.setGeometry(9000, 9000, 1100, 700);
    settle();
    memory.save(window);
    memory.restore(again);
    EXPECT_TRUE(again.screen()->availableGeometry().contains(again.geometry()));
    window.showMaximized();
    settle();
    memory.save(window);
    memory.restore(again);
    EXPECT_TRUE(again.isMaximized());
}

}  // namespace
}  // namespace lorvane::desktop
