// Panels beside the main window, and the keyboard's way through them.
#include "desktop/desktop_bench.h"
#include "desktop/dock_plan.h"
#include "desktop/free_place.h"
#include "desktop/kit/zoom.h"

namespace lorvane::desktop {
namespace {

using Docked = DesktopBench;

std::string stacked(const std::vector<DockHeight>& docks, int column, double zoom = 1) {
    std::string text;
    for (const DockGroup& group : planDocks(docks, column, zoom)) {
        for (const std::size_t dock : group.docks)
            text += std::to_string(dock) + " ";
        text += std::to_string(group.height) + "; ";
    }
    return text;
}

TEST(DockPlan, WhatIsTooLowBecomesATab) {
    const DockHeight icc{430, false}, problem{120, false}, details{300, true};
    EXPECT_EQ(stacked({}, 700), "");
    EXPECT_EQ(stacked({icc}, 700), "0 0; ");
    EXPECT_EQ(stacked({icc, details}, 800), "0 430; 1 0; ");
    EXPECT_EQ(stacked({icc, details}, 580), "0 348; 1 0; ") << "60 % of the column";
    EXPECT_EQ(stacked({problem, icc, details}, 700), "0 120; 1 2 0; ") << "160 would be left";
    EXPECT_EQ(stacked({icc, icc, details}, 700), "0 420; 1 2 0; ");
    EXPECT_EQ(stacked({icc, details}, 800, 1.25), "0 430; 1 0; ");
}

TEST(FreePlace, CoversNothingWhereItCan) {
    const QRect screen(0, 0, 1600, 900), window(0, 0, 1200, 900);
    const QRect outline(300, 200, 500, 300), card(20, 700, 1100, 180);
    const QPoint wanted(500, 100);
    EXPECT_EQ(freePlace({300, 90}, {screen, window, {outline}, {card}}, wanted), wanted);
    EXPECT_EQ(freePlace({300, 400}, {screen, window, {outline}, {card}}, wanted), QPoint(1208, 100));
    const QPoint inside = freePlace({500, 400}, {window, window, {outline}, {card}}, wanted);
    EXPECT_EQ(coveredArea({inside, QSize(500, 400)}, {outline}), 0) << inside.x() << ", " << inside.y();
    const QPoint all = freePlace({2000, 1000}, {screen, window, {outline}, {card}}, wanted);
    EXPECT_EQ(all, QPoint(0, 0)) << "its title stays on the screen";
}

TEST_F(Docked, TheWindowGrowsForItsPanelsAndShrinksAgain) {
    const int before = window.width();
    const int middle = window.centralWidget()->width();
    tool("gfrmDetails");
    EXPECT_FALSE(dock("frmDetails").isFloating());
    EXPECT_EQ(window.width(), before + 401);
    EXPECT_EQ(window.centralWidget()->width(), middle);
    tool("gfrmDisplayICC");
    EXPECT_EQ(window.width(), before + 401) << "below the other";
    EXPECT_LT(dock("frmDisplayICC").y(), dock("frmDetails").y());
    tool("gfrmDisplayICC");
    tool("gfrmDetails");
    for (const char* name : {"frmDisplayICC", "frmDetails"}) {
        if (isShown(name))
            emit dock(name).closeRequested();
        settle();
    }
    EXPECT_EQ(window.width(), before);
}

TEST_F(Docked, WithoutRoomAPanelFloatsClearOfTheFocusAndComesBackWhereItWas) {
    window.setGeometry(0, 0, 3840, 2160);
    window.showMaximized();
    settle();
    tool("gfrmDetails");
    EXPECT_FALSE(dock("frmDetails").isFloating()) << "the middle has room";
    emit dock("frmDetails").closeRequested();
    window.showNormal();
    window.setGeometry(2900, 0, 900, 700);
    window.setMaximumWidth(900);
    cell("pnlNT(2)").setFocus();
    settle();
    tool("gfrmDetails");
    ASSERT_TRUE(dock("frmDetails").isFloating() || window.width() > 900);
    const QRect cellPlace(cell("pnlNT(2)").mapToGlobal(QPoint()), cell("pnlNT(2)").size());
    EXPECT_FALSE(dock("frmDetails").frameGeometry().intersects(cellPlace));
    dock("frmDetails").move(40, 60);
    settle();
    const QByteArray state = panels.docks().state();
    emit dock("frmDetails").closeRequested();
    settle();
    panels.docks().restore(state);
    panels.docks().restore("not a state");
    tool("gfrmDetails");
    EXPECT_EQ(dock("frmDetails").pos(), QPoint(40, 60));
}

TEST_F(Docked, TheKeyboardGoesRoundAndComesBackToItsCell) {
    ValueCell& home = cell("pnlNT(2)");
    home.setFocus();
    settle();
    tool("gfrmDetails");
    tool("gfrmDisplayICC");
    EXPECT_EQ(QApplication::focusWidget(), &home) << "what opens beside leaves the keyboard";
    const auto inside = [&](const char* name) {
        const QWidget* focus = QApplication::focusWidget();
        return focus == &dock(name) || dock(name).isAncestorOf(focus);
    };
    key(Qt::Key_F6);
    EXPECT_TRUE(inside("frmDisplayICC"));
    key(Qt::Key_F6);
    EXPECT_TRUE(inside("frmDetails"));
    key(Qt::Key_F6);
    EXPECT_EQ(QApplication::focusWidget(), &home);
    key(Qt::Key_F6, Qt::ShiftModifier);
    EXPECT_TRUE(inside("frmDetails"));
    key(Qt::Key_Escape);
    EXPECT_FALSE(isShown("frmDetails"));
    EXPECT_EQ(QApplication::focusWidget(), &home);
    key(Qt::Key_Escape);
    EXPECT_TRUE(isShown("frmDisplayICC"));
}

TEST_F(Docked, ALargeScreenShowsThemLarger) {
    tool("gfrmDetails");
    panels.docks().setZoom(1.25);
    settle();
    EXPECT_EQ(zoomOf(panel("frmDetails")), 1.25);
    EXPECT_GE(dock("frmDetails").width(), 450);
    dock("frmDetails").setFloating(true);
    settle();
    EXPECT_EQ(zoomOf(panel("frmDetails")), 1);
}

}  // namespace
}  // namespace lorvane::desktop
