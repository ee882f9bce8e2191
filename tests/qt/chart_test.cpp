// The chart on the screen: numbers at its axes, what is drawn where, and what mouse and keyboard choose.
#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>
#include <memory>

#include "qt/chart_lines.h"
#include "qt/chart_plot.h"
#include "qt/chart_ticks.h"
#include "sample_chart.h"

namespace lorvane {
namespace {

std::string texts(const ChartTicks& ticks) {
    QStringList all;
    for (const double value : ticks.values)
        all << ticks.text(value);
    return all.join(QLatin1Char(' ')).toStdString();
}

TEST(Ticks, AreRoundAndStandAtTheEndsWhereTheyCan) {
    const std::tuple<double, double, int, bool, const char*> rows[] = {
        {2, 30, 10, true, "2 6 10 14 18 22 26 30"},
        {2, 30, 6, true, "5 10 15 20 25 30"},
        {3, 23, 10, true, "4 6 8 10 12 14 16 18 20 22"},
        {2, 4, 10, true, "2 3 4"},
        {500, 2500, 5, true, "500 1,000 1,500 2,000 2,500"},
        {0, 0.3, 10, false, "0.00 0.05 0.10 0.15 0.20 0.25 0.30"},
        {-0.2, 0.2, 5, false, "-0.2 -0.1 0.0 0.1 0.2"},
        {7, 7, 10, true, "7"},
    };
    for (const auto& [low, high, most, whole, expected] : rows)
        EXPECT_EQ(texts(roundTicks(low, high, most, whole)), expected);
    EXPECT_EQ(texts(evenTicks(0, 250, 5)), "0 50 100 150 200 250");
}

TEST(Lines, EndWhereTheyLeaveTheAxis) {
    const ChartLine line{"", {0.5, 1.5, 0.5, {}, -1, 0.5}};
    const LinePoints points = lineWithin({0, 1, 2, 3, 4, 5}, line, {"", true, 0, 1});
    double length = 0;
    for (qsizetype i = 0; i < points.keys.size(); ++i) {
        EXPECT_FALSE(points.values[i] < 0 || points.values[i] > 1) << i;
        if (i > 0 && points.values[i] == points.values[i] && points.values[i - 1] == points.values[i - 1])
            length += points.keys[i] - points.keys[i - 1];
    }
    EXPECT_DOUBLE_EQ(length, 0.5 + 0.5 + 1.0 / 3);
}

class Plot : public testing::Test {
protected:
    static void SetUpTestSuite() {
        static char name[] = "qt_tests";
        static char* arguments[] = {name, nullptr};
        static int count = 1;
        application = std::make_unique<QApplication>(count, arguments);
    }
    static void TearDownTestSuite() { application.reset(); }

    void SetUp() override {
        plot = std::make_unique<ChartPlot>();
        plot->resize(800, 500);
        show(sampleChart());
        plot->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(plot.get()));
        settle();
    }
    static void settle() { QTest::qWait(15); }
    void show(const ChartContent& content) {
        plot->setContent(content);
        settle();
    }
    QPoint at(int series, int point) { return plot->placeOf(series, point).value().toPoint(); }
    QImage painted() { return plot->grab().toImage(); }
    QColor pixel(const QPoint& place) { return painted().pixelColor(place); }
    QPoint click(const QPoint& place) {
        QSignalSpy picked(plot.get(), &ChartPlot::picked);
        QTest::mouseClick(plot.get(), Qt::LeftButton, {}, place);
        return picked.empty() ? QPoint() : QPoint(picked[0][0].toInt(), picked[0][1].toInt());
    }

    static inline std::unique_ptr<QApplication> application;
    std::unique_ptr<ChartPlot> plot;
};

TEST_F(Plot, AClickPicksTheNearestPointAndADragFollows) {
    ChartContent chart = sampleChart();
    for (const bool reversed : {false, true}) {
        chart.x.reversed = reversed;
        show(chart);
        EXPECT_EQ(at(1, 1).x() > at(1, 11).x(), reversed);
        EXPECT_EQ(click(at(2, 7) + QPoint(4, -5)), QPoint(2, 7));
        EXPECT_EQ(click(at(1, 3) + QPoint(0, 5)), QPoint(1, 3));
        EXPECT_EQ(click(at(1, 11) + QPoint(0, 70)), QPoint()) << "too far, though cost is near";
    }
    QSignalSpy picked(plot.get(), &ChartPlot::picked);
    const QPoint far = at(1, 11) + QPoint(0, 100);
    QTest::mouseMove(plot.get(), far);
    QTest::mousePress(plot.get(), Qt::LeftButton, {}, far);
    EXPECT_TRUE(picked.empty());
    QTest::mouseMove(plot.get(), at(1, 4) + QPoint(0, 100));
    ASSERT_FALSE(picked.empty());
    EXPECT_EQ(picked.back()[0].toInt(), 1);
    QTest::mouseRelease(plot.get(), Qt::LeftButton);
    picked.clear();
    QTest::mouseMove(plot.get(), at(2, 2));
    EXPECT_TRUE(picked.empty()) << "the button is free";
}

TEST_F(Plot, GapsStayOpenAndAreNeverPicked) {
    const QPoint gap = at(1, 5);
    const QPoint lone = at(1, 7);
    const QPoint within = (at(1, 9) + at(1, 10)) / 2;
    const QColor line = pixel(within);
    ChartContent chart = sampleChart(1);
    for (const std::size_t i : {4U, 5U, 7U})
        chart.groups[0].lines[0].y[i].reset();
    show(chart);
    const QColor ground = ChartLook::of(ColourSets::usual, false).ground;
    EXPECT_NE(line, ground);
    EXPECT_EQ(pixel(within), line);
    EXPECT_EQ(pixel(gap), ground);
    EXPECT_EQ(pixel((lone + within) / 2 - QPoint(20, -8)), ground);
    EXPECT_EQ(pixel(lone), line) << "a point between two gaps is a dot";
    EXPECT_EQ(plot->placeOf(1, 5), std::nullopt);
    EXPECT_EQ(click(gap + QPoint(-20, 5)), QPoint(1, 4));
    EXPECT_EQ(click(lone + QPoint(45, -20)), QPoint(1, 7));
}

TEST_F(Plot, TheRingFollowsTheMarkWithoutDrawingTheLinesAnew) {
    ChartContent chart = sampleChart();
    chart.mark = {true, 1, 4, "Power = 25.0%", true, Corners::topLeft};
    const ChartLook look = ChartLook::of(ColourSets::usual, false);
    QSignalSpy drawn(plot->findChildren<QWidget*>().front(), SIGNAL(beforeReplot()));
    show(chart);
    EXPECT_EQ(pixel(at(1, 4)), look.ground);
    EXPECT_EQ(pixel(at(1, 4) + QPoint(5, 0)), look.text);
    chart.mark.point = 8;
    show(chart);
    show(chart);
    EXPECT_EQ(drawn.count(), 0);
    EXPECT_NE(pixel(at(1, 4)), look.ground);
    EXPECT_EQ(pixel(at(1, 8)), look.ground);
    chart.groups[0].lines[0].y[7] = 0.9;
    show(chart);
    EXPECT_EQ(drawn.count(), 1);
    EXPECT_EQ(pixel(at(1, 8) + QPoint(0, 5)), look.text);
    chart.mark = {true, 2,
                  2,    "Power\nschools\nstudents\ncost\nwords\nwords\nwords\nwords\nwords",
                  true, Corners::bottomLeft};
    show(chart);
    EXPECT_EQ(pixel(at(2, 2) + QPoint(0, 9)), look.ground) << "the details stand clear of their point";
}

TEST_F(Plot, KeysAndTheWheelAreTold) {
    QSignalSpy stepped(plot.get(), &ChartPlot::stepped);
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down})
        QTest::keyClick(plot.get(), key);
    QTest::keyClick(plot.get(), Qt::Key_Left, Qt::ControlModifier);
    QTest::keyClick(plot.get(), Qt::Key_A);
    ASSERT_EQ(stepped.count(), 4);
    EXPECT_EQ(stepped[1][0].value<Qt::Key>(), Qt::Key_Up);
    QSignalSpy wheeled(plot.get(), &ChartPlot::wheeled);
    for (const int turn : {60, 60, -240}) {
        QWheelEvent event({100, 100}, plot->mapToGlobal(QPointF(100, 100)), {}, {0, turn}, {}, {},
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(plot.get(), &event);
    }
    ASSERT_EQ(wheeled.count(), 2) << "half a step is none yet";
    EXPECT_EQ(wheeled[0][0].toInt(), 1);
    EXPECT_EQ(wheeled[1][0].toInt(), -2);
}

TEST_F(Plot, LongNamesLeaveHalfOfTheWidthToThePlot) {
    const std::string name = "WWWWWWWWWW <b>&amp; WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW";
    ChartContent chart = sampleChart();
    chart.legend = {name, LegendPlaces::rightCentre, true};
    chart.groups[0].lines[0].label = chart.x.title = chart.y.title = chart.y2.title = name;
    chart.mark = {true, 1, 4, name + "\n" + name + " = 5", true, Corners::topRight};
    chart.required = ChartValue{0.8, name};
    chart.own = ChartValue{5, name};
    for (const int width : {560, 800, 1200}) {
        plot->resize(width, 400);
        show(chart);
        EXPECT_GE(at(1, 11).x() - at(1, 1).x(), width / 2 - 8) << width;
    }
}

TEST_F(Plot, EveryLookTellsItsLinesApart) {
    const ChartContent chart = sampleChart(5);
    for (const ColourSets set : {ColourSets::usual, ColourSets::colourBlind, ColourSets::blackAndWhite}) {
        plot->setLook(ChartLook::of(set, true));
        show(chart);
        const QImage dark = painted();
        plot->setLook(ChartLook::of(set, false));
        settle();
        EXPECT_NE(painted().pixelColor(at(1, 6)), dark.pixelColor(at(1, 6)));
        EXPECT_NE(painted().pixelColor(790, 10), dark.pixelColor(790, 10)) << "the ground";
        const ChartLook look = ChartLook::of(set, false);
        for (std::size_t i = 0; i < chartLines; ++i)
            for (std::size_t j = 0; j < i; ++j)
                EXPECT_TRUE(set == ColourSets::usual ? look.strokes[i].colour != look.strokes[j].colour
                                                     : look.strokes[i].sign != look.strokes[j].sign);
    }
}

}  // namespace
}  // namespace lorvane
