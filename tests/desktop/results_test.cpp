// The cards of power and cost: the reason for no power, and what tall cards show and take.
#include <QAccessible>

#include "desktop/kit/curve_plot.h"
#include "desktop/kit/share_rows.h"
#include "desktop/result_cards.h"
#include "desktop_bench.h"

namespace lorvane::desktop {
namespace {

class Results : public DesktopBench {
protected:
    void SetUp() override {
        DesktopBench::SetUp();
        cards().setMaximumHeight(480);
        window.resize(1500, 1000);
        set({{"txtd", 0.4},
             {"ICC Metric", 1.0},
             {"txtICC(2)", 0.1},
             {"txtNT(2)", 5.0},
             {"txtNC(2)", 5.0},
             {"txtNT(1)", 20.0},
             {"txtNC(1)", 20.0},
             {"txtCostT(2)", 300.0},
             {"txtCostC(2)", 100.0}});
    }
    ResultCards& cards() { return *window.findChild<ResultCards*>(); }
    FigureCard& power() { return *cards().findChildren<FigureCard*>()[0]; }
    CurvePlot& plot() { return *cards().findChild<CurvePlot*>(); }
    void awaitCurve() {
        ASSERT_TRUE(QTest::qWaitFor([&] { return plot().content().marks.size() > 1; }));
        settle();
    }
    double present() { return plot().content().marks[plot().content().present].number; }
    QPoint placeIn(int mark) { return plot().mapTo(&window, plot().placeOf(mark).toPoint()); }

    std::string spoken(QAccessible::Text kind) {
        return QAccessible::queryAccessibleInterface(&plot())->text(kind).toStdString();
    }

    std::vector<ControlValue> state() const {
        std::vector<ControlValue> values;
        for (const std::string& name : application.names().names())
            values.push_back(*application.names().read(name));
        return values;
    }
};

// The edit is shown at once. The curve follows in the pauses after it, and nothing else moves.
TEST_F(Results, TheCurveFollowsAnEditWithoutHoldingItUp) {
    awaitCurve();
    EXPECT_EQ(present(), 5);
    const FigureContent figure = power().content();
    desk.spin("spnNT(2)", 1);
    EXPECT_FALSE(power().content() == figure);
    EXPECT_EQ(present(), 5) << "not on the way of the click";
    const auto before = state();
    settle();
    EXPECT_EQ(present(), 6);
    EXPECT_EQ(state(), before);
    const QImage shown = plot().grab().toImage();
    desk.tool("Show cost using graph");
    settle();
    EXPECT_EQ(plot().grab().toImage(), shown);
}

TEST_F(Results, AClickOnTheCurveIsOneStepNamedLikeItsField) {
    awaitCurve();
    const int undone = static_cast<int>(application.session().undoDepth());
    click(plot(), placeIn(7));
    EXPECT_EQ(study().txtNT(2), 9);
    EXPECT_EQ(study().txtNC(2), 9) << "linked";
    EXPECT_EQ(application.session().undoName(), "number of level 2s");
    EXPECT_EQ(application.session().undoDepth(), undone + 1);
    click(plot(), placeIn(7));
    EXPECT_EQ(application.session().undoDepth(), undone + 1) << "the present point changes nothing";
    tool("Undo");
    EXPECT_EQ(present(), 5);
}

TEST_F(Results, KeysGoAlongTheCurveAndEnterSets) {
    awaitCurve();
    plot().setFocus();
    EXPECT_EQ(spoken(QAccessible::Name), "Power by number of level 2s per group");
    EXPECT_EQ(spoken(QAccessible::Description),
              "Power by number of level 2s per group. Left and Right go to another number, Enter sets it.");
    key(Qt::Key_Right);
    key(Qt::Key_Right);
    EXPECT_EQ(spoken(QAccessible::Value).substr(0, 16), "7 level 2s: powe");
    EXPECT_EQ(study().txtNT(2), 5) << "not set yet";
    key(Qt::Key_Escape);
    key(Qt::Key_Left);
    key(Qt::Key_Return);
    EXPECT_EQ(study().txtNT(2), 4);
    key(Qt::Key_End);
    key(Qt::Key_Return);
    EXPECT_EQ(study().txtNT(2), 12);
    QAccessible::queryAccessibleInterface(&plot())->valueInterface()->setCurrentValue(3);
    EXPECT_EQ(study().txtNT(2), 3);
}

TEST_F(Results, WhatIsBelowComesAndGoesWithHeightModeAndProblem) {
    const ShareRows& shares = *cards().findChild<ShareRows*>();
    const auto shown = [&] { return std::pair(plot().isVisible(), shares.isVisible()); };
    EXPECT_EQ(shown(), std::pair(true, true));
    ASSERT_EQ(shares.rows().size(), 2);
    EXPECT_EQ(shares.rows()[0].amount, QLatin1String("$2,000"));
    tool("Show power using graph");
    EXPECT_EQ(shown(), std::pair(true, true));
    set({{"txtQ(2)", 99.0}});
    EXPECT_EQ(shown(), std::pair(false, true));
    EXPECT_TRUE(
        power().toolTip().startsWith(QLatin1String("There are insufficient degrees of freedom.\n\nTry")));
    set({{"txtQ(2)", 0.0}});
    EXPECT_EQ(shown(), std::pair(true, true));
    cards().setMaximumHeight(200);
    settle();
    EXPECT_EQ(shown(), std::pair(false, false));
}

}  // namespace
}  // namespace lorvane::desktop
