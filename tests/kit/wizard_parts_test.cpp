// The parts of a search's window: the plot and the table of trials, the band of the result, the notes.
#include <QHeaderView>
#include <QLineEdit>
#include <QShortcut>
#include <QToolTip>
#include <QWindow>
#include <functional>
#include <tuple>

#include "desktop/kit/notes_overlay.h"
#include "desktop/kit/offer_card.h"
#include "desktop/kit/push_button.h"
#include "desktop/kit/result_band.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"
#include "desktop/kit/trial_plot.h"
#include "desktop/kit/trial_table.h"
#include "kit_bench.h"

namespace lorvane::desktop {
namespace {

using WizardParts = KitBench;

TEST(RoundScales, HoldTheirValuesInFiveRoundSteps) {
    const std::pair<double, double> spans[] = {{115600, 254200}, {100, 600},    {0, 0},
                                               {7, 7},           {99.9, 100.1}, {0, 2147483647}};
    for (const auto& [low, high] : spans) {
        const RoundScale scale = fiveSteps(low, high);
        EXPECT_TRUE(scale.low >= 0 && scale.low <= low && scale.high() >= high) << low << " to " << high;
        EXPECT_EQ(scale.steps, 5);
        EXPECT_EQ(roundStep(scale.step), scale.step) << low << " to " << high;
        EXPECT_TRUE(high == low || high - low > scale.step) << "not coarser than it must be";
    }
    const std::pair<double, double> lengths[] = {{0, 1}, {6, 1}, {7, 2}, {30, 5}, {100, 20}, {150, 25}};
    for (const auto& [length, step] : lengths)
        EXPECT_EQ(wholeStep(length), step) << length;
}

TEST(RoundScales, MarkWhatIsWithinAndRoundOut) {
    struct Case {
        double low, high, first, step;
        int steps, decimals;
    };
    for (const Case& c : {Case{100, 900, 100, 200, 4, 0},
                          {0, 1, 0, 0.2, 5, 1},
                          {42.3, 58.5, 45, 5, 2, 0},
                          {44.5, 60.5, 47.5, 5, 2, 1},
                          {-1.3, 1.3, -1, 1, 2, 0},
                          {7, 7, 7, 1, 0, 0}}) {
        const RoundScale within = marksWithin(c.low, c.high);
        EXPECT_NEAR(within.low, c.first, 1e-9) << c.low;
        EXPECT_EQ(within.step, c.step) << c.low;
        EXPECT_EQ(within.steps, c.steps) << c.low;
        EXPECT_EQ(decimalsOf(within), c.decimals) << c.low;
        const RoundScale out = roundedOut(c.low, c.high);
        EXPECT_TRUE(out.low <= c.low + 1e-9 && out.low > c.low - c.step && out.steps <= 7) << c.low;
        EXPECT_TRUE(c.low == c.high || out.high() >= c.high - 1e-9) << c.low;
    }
    EXPECT_EQ(decimalsOf({-0.25, 0.125, 4}), 3);
}

TEST(RoundScales, HoldSharesInWholePercents) {
    const std::tuple<double, double, RoundScale> cases[] = {
        {0.533, 0.843, {50, 10, 4}}, {0.57, 0.58, {57, 1, 1}}, {0.63, 0.751, {60, 5, 4}},
        {0.8, 0.8, {79, 1, 2}},      {1, 1, {99, 1, 1}},       {0, 0, {0, 1, 1}}};
    for (const auto& [low, high, percents] : cases) {
        const RoundScale scale = percentSteps(low, high);
        EXPECT_NEAR(100 * scale.low, percents.low, 1e-9) << low;
        EXPECT_NEAR(100 * scale.high(), percents.high(), 1e-9) << low;
        EXPECT_EQ(scale.steps, percents.steps) << low;
    }
}

TrialPlotContent trials(int count, int best, double unit = 1000) {
    TrialPlotContent content{
        QStringLiteral("Cost"), QStringLiteral("Schools"), QStringLiteral("lowest"), {}, best};
    for (int i = 0; i < count; ++i)
        content.points << TrialPoint{17.0 + i,
                                     unit * (100 + std::abs(i - best)),
                                     {QStringLiteral("Schools %1").arg(17 + i), QStringLiteral("Cost")}};
    return content;
}

TEST_F(WizardParts, ThePlotShowsEveryTrialAndTellsOfTheNearest) {
    TrialPlot plot(&window);
    plot.setGeometry(0, 0, 337, 248);
    plot.show();
    for (const int count : {1, 5, 31})
        for (const int best : {0, count - 1}) {
            plot.setContent(trials(count, best));
            const QImage image = painted(plot);
            for (int i = 0; i < count; ++i)
                EXPECT_EQ(image.pixelColor(plot.placeOf(i).toPoint()),
                          colour(i == best ? Role::Card : Role::Treated))
                    << i << " of " << count;
        }
    EXPECT_EQ(paintsAfter(plot, [&] { plot.setContent(trials(31, 30)); }), 0) << "as before";
    inBothThemes([&] {
        const auto dot = [&] { return painted(plot).pixelColor(plot.placeOf(7).toPoint()); };
        TrialPlotContent content = trials(31, 30);
        plot.setContent(content);
        const QColor unmarked = dot();
        content.shown = 7;
        content.shownLabel = QStringLiteral("shown");
        plot.setContent(content);
        EXPECT_GT(pixels(painted(plot), dot()), 2 * 50) << "at its place and in the head";
        EXPECT_NE(dot(), unmarked);
    });
    QSignalSpy picked(&plot, &TrialPlot::picked);
    const auto clickAt = [&](const QPoint& at) {
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, at);
    };
    clickAt(plot.placeOf(7).toPoint() + QPoint(1, 4));
    clickAt(QPoint(100, 15));
    ASSERT_EQ(picked.count(), 1) << "a click on the head picks none";
    EXPECT_EQ(picked[0][0], 7);
    EXPECT_EQ(spoken(plot, QAccessible::Description), "lowest: Schools 47, Cost");
    const QPoint place = plot.placeOf(3).toPoint() + QPoint(2, 3);
    EXPECT_EQ(paintsAfter(plot, [&] { QTest::mouseMove(window.windowHandle(), place); }), 1);
    EXPECT_EQ(QToolTip::text().toStdString(), "Schools 20\nCost");
    QToolTip::hideText();
    for (const auto& [unit, title] : {std::pair(1, "Cost"), std::pair(1000000, "Cost (millions)")}) {
        plot.setContent(trials(3, 0, unit));
        EXPECT_EQ(spoken(plot), title);
    }
    plot.setContent({});
    EXPECT_EQ(pixels(painted(plot), colour(Role::Treated)), 0) << "without trials an empty card";
}

TEST_F(WizardParts, ThePlotShowsSharesAroundALimit) {
    TrialPlot plot(&window);
    plot.setGeometry(0, 0, 337, 248);
    TrialPlotContent content = trials(12, 11, 1 / 200.0);
    content.areShares = true;
    content.limit = 0.53;
    content.points[0].value = 0.53;
    plot.setContent(content);
    EXPECT_EQ(plot.valueTexts().join(' '), "50% 51% 52% 53% 54% 55%");
    inBothThemes([&] {
        const QImage row = painted(plot).copy(70, plot.placeOf(0).toPoint().y(), 200, 1);
        EXPECT_NEAR(pixels(row, colour(Role::SecondText)), 200 * 4 / 7, 8) << "dashes";
    });
    content.limit = 0.95;
    plot.setContent(content);
    EXPECT_EQ(plot.valueTexts().join(' '), "50% 60% 70% 80% 90% 100%");
}

TEST_F(WizardParts, ADesignBesideTheTrialsIsMarkedAndPicked) {
    TrialPlot plot(&window);
    plot.setGeometry(0, 0, 337, 248);
    plot.show();
    TrialPlotContent content = trials(31, 0);
    content.title = "Cost of each trial";
    content.shownLabel = "shown";
    content.provenLabel = "proven";
    content.points << TrialPoint{40, 98000, {"Schools 40"}, false};
    plot.setContent(content);
    EXPECT_EQ(spoken(plot) + plot.valueTexts().last().toStdString(), "Cost of each trial (thousands)130");
    const QPoint between = (plot.placeOf(30).toPoint() + plot.placeOf(31).toPoint()) / 2;
    EXPECT_EQ(painted(plot).pixelColor(between), colour(Role::Card)) << "not on the line";
    content.proven = 31;
    content.bestLabel = "most power";
    plot.setContent(content);
    EXPECT_EQ(spoken(plot) + plot.valueTexts().last().toStdString(), "Cost of each trial130,000");
    EXPECT_EQ(spoken(plot, QAccessible::Description), "most power: Schools 17, Cost; proven: Schools 40");
    const QPoint place = plot.placeOf(31).toPoint();
    const QImage unshown = painted(plot);
    EXPECT_EQ(unshown.pixelColor(place), colour(Role::Card));
    QSignalSpy picked(&plot, &TrialPlot::picked);
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, place + QPoint(2, 2));
    ASSERT_EQ(picked.count(), 1);
    EXPECT_EQ(picked[0][0], 31);
    content.shown = 31;
    plot.setContent(content);
    EXPECT_EQ(plot.placeOf(31).toPoint(), place) << "nothing moves by a click";
    EXPECT_NE(painted(plot).pixelColor(place), colour(Role::Card)) << "a full diamond";
    const QFontMetricsF metrics(textFont(TextStyle::CaptionStrong));
    const QRect title(10, 8, 8 + static_cast<int>(metrics.horizontalAdvance(content.title)), 24);
    const QImage withMarks = painted(plot).copy(title);
    content.points.clear();
    plot.setContent(content);
    EXPECT_EQ(withMarks, painted(plot).copy(title)) << "three marks leave the title whole";
}

TEST_F(WizardParts, TheTableMarksTheCheapestAndSharesItsWidth) {
    TrialTable card(&window);
    std::vector<QStringList> rows;
    for (int i = 0; i < 12; ++i)
        rows.push_back({QString::number(17 + i), QString::number(1000 * (100 - i))});
    card.setGeometry(0, 0, 380, 248);
    card.show();
    card.setTrials({"Schools", "Cost"}, rows, 2);
    settle();
    RecordTable& table = *card.table();
    EXPECT_EQ(table.horizontalHeader()->length(), table.viewport()->width());
    const auto tinted = [&](int position) {
        const QRect row(0, table.rowViewportPosition(position), table.viewport()->width(), 29);
        return pixels(painted(*table.viewport()).copy(row), colour(Role::AccentTint)) > row.width() * 20;
    };
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(tinted(i), i == 2) << i;
    table.sortByColumn(1, Qt::DescendingOrder);
    table.sortByColumn(1, Qt::AscendingOrder);
    table.bringIntoView(2);
    EXPECT_TRUE(tinted(9)) << "the mark goes with its row";
    QSignalSpy selected(&table, &RecordTable::selectionChangedByUser);
    card.setShown(5);
    EXPECT_EQ(table.selectedRows(), QList<int>{5});
    EXPECT_TRUE(tinted(9)) << "the cheapest keeps its tint";
    card.setShown(-1);
    EXPECT_TRUE(table.selectedRows().isEmpty());
    EXPECT_EQ(selected.count(), 0);
    table.setFocus();
    QTest::keyClick(window.windowHandle(), Qt::Key_Up);
    EXPECT_EQ(table.selectedRows(), QList<int>{3}) << "the keys go on from the cheapest";
    card.setTrials({"A very long name of a level in the plural", "Cost"}, rows, 2);
    EXPECT_EQ(table.horizontalHeader()->length(), table.viewport()->width()) << "long heads are cut";
}

TEST_F(WizardParts, TheProvenRowHasADiamondAndSaysSo) {
    TrialTable card(&window);
    card.setGeometry(0, 0, 150, 248);
    card.show();
    RecordTable& table = *card.table();
    const std::vector<QStringList> rows = {{"1,000,000", "1"}, {"2,000,000", "2"}};
    card.setTrials({"N", "Cost"}, rows, 0, 1, "proven");
    settle();
    const QAccessibleTableInterface& cells = *speaker(table).tableInterface();
    EXPECT_EQ(cells.cellAt(1, 0)->text(QAccessible::Name), "proven, 2,000,000");
    EXPECT_EQ(cells.cellAt(0, 0)->text(QAccessible::Name), "1,000,000");
    const auto accent = [&](int left, int width) {
        const QRect cell = table.visualRect(table.model()->index(1, 0));
        return pixels(painted(*table.viewport()).copy(left, cell.top(), width, cell.height()),
                      colour(Role::Accent));
    };
    inBothThemes([&] {
        EXPECT_EQ(accent(0, 3), 0) << "the column is wide enough";
        EXPECT_GT(accent(3, 20), 0);
        card.setShown(1);
        EXPECT_EQ(accent(0, 20), 0) << "in the colour of the text";
        card.setShown(-1);
    });
    card.setTrials({"N", "Cost"}, rows, 0);
    EXPECT_EQ(accent(0, 20), 0);
}

TEST_F(WizardParts, TheBandSaysWhatItShowsAndIsAsHighAsItsText) {
    ResultBand band(&window);
    band.resize(700, 40);
    band.show();
    const auto words = [](int count) { return QStringLiteral("some words of it ").repeated(count); };
    using Content = std::function<BandContent(int)>;
    const Content text = [&](int n) { return BandText{words(n)}; };
    const Content figure = [&](int n) -> BandContent { return BandFigure{"Cost = ", "$5", words(n)}; };
    const Content problem = [&](int n) -> BandContent { return BandProblem{"No solution", words(n)}; };
    const std::tuple<Content, Role, const char*> cases[] = {{text, Role::Field, "some words of it "},
                                                            {figure, Role::AccentTint, "Cost = $5"},
                                                            {problem, Role::ProblemCard, "No solution"}};
    for (const auto& [content, tint, name] : cases) {
        const BandContent oneLine = content(1);
        band.resize(700, band.height());
        EXPECT_EQ(paintsAfter(band, [&] { band.setContent(oneLine); }), 1) << name;
        EXPECT_EQ(spoken(band), name);
        EXPECT_GT(pixels(painted(band), colour(tint)), 700 * 20) << name;
        EXPECT_EQ(paintsAfter(band, [&] { band.setContent(oneLine); }), 0);
        const int line = band.height();
        band.setContent(content(30));
        const int lines = band.height();
        EXPECT_GT(lines, line) << name;
        band.resize(400, band.height());
        EXPECT_GT(band.height(), lines) << name;
    }
}

TEST_F(WizardParts, TheBandOffersAWayBackBesideItsNote) {
    ResultBand band(&window);
    band.resize(390, 40);
    band.show();
    QSignalSpy back(&band, &ResultBand::backRequested);
    auto& button = *band.findChild<PushButton*>();
    band.setContent(BandFigure{"Cost = ", "$5", QStringLiteral("a note of words ").repeated(4), "Cheapest"});
    ASSERT_TRUE(button.isVisible());
    EXPECT_TRUE(band.rect().contains(button.geometry()));
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, button.geometry().center());
    EXPECT_EQ(back.count(), 1);
    band.setContent(BandFigure{"Cost = ", "$5", "a note"});
    EXPECT_FALSE(button.isVisible());
}

TEST_F(WizardParts, AnOfferIsCutAndTakenByItsButton) {
    OfferCard card(&window);
    card.resize(380, card.sizeHint().height());
    card.show();
    QSignalSpy taken(&card, &OfferCard::taken);
    card.setOffer("Short", "Take it");
    EXPECT_EQ(card.toolTip(), QString());
    const QString words = QStringLiteral("A long offer ").repeated(9);
    card.setOffer(words, "Take it");
    EXPECT_EQ(card.toolTip(), words);
    EXPECT_EQ(spoken(card), words.toStdString());
    auto& button = *card.findChild<PushButton*>();
    EXPECT_TRUE(card.rect().contains(button.geometry()));
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, button.geometry().center());
    EXPECT_EQ(taken.count(), 1);
    card.setOffer(words, QString());
    EXPECT_FALSE(button.isVisible());
}

class Notes : public KitBench {
protected:
    void SetUp() override {
        KitBench::SetUp();
        window.resize(700, 500);
        field.setGeometry(10, 10, 100, 30);
        field.show();
        field.setFocus();
        notes.setNotes(QStringLiteral("Notes"), {{"First."}, {"Second."}});
        QObject::connect(&notes, &NotesOverlay::closeRequested, &notes, &QWidget::hide);
    }
    void open() {
        notes.show();
        settle();
    }
    /// The one that closes.
    PushButton& button() { return *notes.findChildren<PushButton*>().last(); }

    QLineEdit field{&window};
    NotesOverlay notes{&window};
};

TEST_F(Notes, KeepTheKeyboardUntilTheyAreClosed) {
    QSignalSpy escape(new QShortcut(Qt::Key_Escape, &window), &QShortcut::activated);
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        open();
        EXPECT_TRUE(button().hasFocus());
        for (int i = 0; i < 3; ++i) {
            QTest::keyClick(window.windowHandle(), i < 2 ? Qt::Key_Tab : Qt::Key_Backtab);
            EXPECT_TRUE(notes.isAncestorOf(QApplication::focusWidget())) << i;
        }
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, field.geometry().center());
        field.setFocus();
        EXPECT_TRUE(button().hasFocus());
        QTest::keyClick(window.windowHandle(), Qt::Key_A);
        EXPECT_EQ(field.text(), QString());
        QTest::keyClick(window.windowHandle(), key);
        EXPECT_FALSE(notes.isVisible()) << key;
        EXPECT_TRUE(field.hasFocus()) << "back where it was";
    }
    EXPECT_EQ(escape.count(), 0);
    QTest::keyClick(window.windowHandle(), Qt::Key_Escape);
    EXPECT_EQ(escape.count(), 1) << "the window's own again";
}

TEST_F(Notes, LieOverAllAndFitIntoTheWindow) {
    open();
    const auto closing = [&] { return QRect(button().mapTo(&window, QPoint()), button().size()); };
    const int few = closing().top();
    for (const int count : {4, 40}) {
        notes.setNotes("Notes", QList<Note>(count, {"A note that is longer."}));
        settle();
        EXPECT_GT(closing().top(), few) << count;
        EXPECT_TRUE(window.rect().contains(closing())) << count;
    }
    notes.setNotes("Notes", {{"A note."}, {"Another one.", "Do it"}});
    QSignalSpy pressed(&notes, &NotesOverlay::pressed);
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Return})
        QTest::keyClick(window.windowHandle(), key);
    ASSERT_EQ(pressed.count(), 1) << "the button of a note comes after the sign";
    EXPECT_EQ(pressed[0][0], 1);
    window.resize(640, 320);
    settle();
    EXPECT_EQ(notes.geometry(), window.rect());
    EXPECT_TRUE(window.rect().contains(closing()));
}

}  // namespace
}  // namespace lorvane::desktop
