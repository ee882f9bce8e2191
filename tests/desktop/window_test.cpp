// The windows as such: floating ones open, close and make way; the end asks; nothing is pale.
#include "desktop/desk_application.h"
#include "desktop/kit/theme.h"
#include "desktop/level_table.h"
#include "desktop_bench.h"

namespace lorvane::desktop {
namespace {

using Floating = DesktopBench;

TEST_F(Floating, PanelsCloseInAnyOrderAndThePlaceStays) {
    openFourLevels();
    const char* const names[] = {"frmDisplayICC", "frmDisplayTauSq"};
    for (const int first : {0, 1}) {
        clickArrow("pnlMRange(3)", 1);
        clickArrow("pnlTauSq(3)", 1);
        dock("frmDisplayICC").setFloating(true);
        dock("frmDisplayICC").move(137, 91);
        settle();
        const double power = study().result.txtPower;
        for (const char* name : {names[first], names[1 - first]}) {
            EXPECT_TRUE(isShown(name)) << name;
            emit dock(name).closeRequested();
            settle();
            EXPECT_FALSE(isShown(name)) << name;
        }
        clickArrow("pnlQ(1)", 1);
        clickArrow("pnlQ(1)", -1);
        EXPECT_EQ(study().result.txtPower, power);
        EXPECT_EQ(study().outcome.ValidICC(0) + study().effect.ValidTauSq(0), 2);
        EXPECT_FALSE(isShown("frmDisplayICC")) << "closed for good";
    }
    clickArrow("pnlMRange(3)", 1);
    EXPECT_EQ(dock("frmDisplayICC").pos(), QPoint(137, 91));
    closeByFrame(dock("frmDisplayICC"));
    EXPECT_FALSE(isShown("frmDisplayICC"));
}

// What opens by itself must not take the keyboard or a held arrow away; a dialog is opened to type into.
TEST_F(Floating, OnlyDialogsAskForTheKeyboard) {
    for (const char* name : {"frmDisplayICC", "frmDisplayTauSq", "frmProblems", "frmProblemES", "frmCounts"})
        EXPECT_TRUE(panel(name).testAttribute(Qt::WA_ShowWithoutActivating)) << name;
    EXPECT_FALSE(panel("frmValue").testAttribute(Qt::WA_ShowWithoutActivating));
}

TEST_F(Floating, TheExitQuestionStandsAloneAndDecides) {
    tool("gfrmDetails");
    tool("gfrmDisplayICC");
    dock("frmDetails").setFloating(true);
    dock("frmDetails").move(2077, 55);
    settle();
    int asked = 0;
    messages.beforeShowing = [&] {
        panels.follow();
        EXPECT_FALSE(isShown("frmDetails"));
        EXPECT_TRUE(isShown("frmDisplayICC")) << "docked, it stands over nothing";
        ++asked;
    };
    messages.scripted.queue(Answer::Cancel);
    closeByFrame(window);
    EXPECT_TRUE(window.isVisible());
    EXPECT_TRUE(isShown("frmDetails"));
    EXPECT_EQ(dock("frmDetails").pos(), QPoint(2077, 55));
    window.activateWindow();
    settle();
    for (const Answer answer : {Answer::Cancel, Answer::OK}) {
        messages.scripted.queue(answer);
        key(Qt::Key_F, Qt::AltModifier);
        key(Qt::Key_X);
        EXPECT_EQ(window.isVisible(), answer == Answer::Cancel);
    }
    EXPECT_EQ(asked, 3) << "once each";
}

class Look : public DesktopBench {
protected:
    void TearDown() override { setDark(false); }

    QColor pixel(const QPoint& point) {
        const QPixmap picture = window.grab();
        return picture.toImage().pixelColor((QPointF(point) * picture.devicePixelRatio()).toPoint());
    }
};

TEST_F(Look, TheDarkSetRepaintsEverything) {
    for (const bool dark : {true, false}) {
        setDark(dark);
        settle();
        EXPECT_EQ(pixel({6, window.height() / 2}), QColor(dark ? "#16181C" : "#F4F5F7"));
        EXPECT_EQ(pixel({window.width() / 2, 10}), QColor(dark ? "#1C1F24" : "#FFFFFF"));
        EXPECT_EQ(pixel(window.findChild<LevelTable*>()->mapTo(&window, QPoint(5, 60))),
                  QColor(dark ? "#1F2228" : "#FFFFFF"));
        EXPECT_EQ(pixel(cell("pnlNT(1)").mapTo(&window, QPoint(12, 14))),
                  QColor(dark ? "#2A2E36" : "#F1F3F7"));
    }
}

}  // namespace
}  // namespace lorvane::desktop

int main(int argc, char** argv) {
    lorvane::desktop::DeskApplication qt(argc, argv);
    lorvane::desktop::applyTheme(qt);
    lorvane::desktop::setDark(false);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
