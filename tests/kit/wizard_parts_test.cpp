// The parts of a search's window: the plot and the table of trials, the band of the result, the notes.
#include <QHeaderView>
#include <QLineEdit>
#include <QShortcut>
#include <QToolTip>
#include <QWindow>
#include <functional>

#include "desktop/kit/notes_overlay.h"
#include "desktop/kit/push_button.h"
#include "desktop/kit/result_band.h"
#include "desktop/kit/theme.h"
#include "desktop/kit/trial_plot.h"
#include "desktop/kit/trial_table.h"
#include "kit_bench.h"

namespace lorvane::desktop {
namespace {

using WizardParts = KitBench;

TEST(RoundScales, HoldTheirValuesInFiveRoundSteps) {
    for (const auto& [low, high] :
         {std::pair(115600.0, 254200.0), std::pair(100.0, 600.0), std::pair(0.0, 0.0), std::pair(7.0, 7.0),
          std::pair(99.9, 100.1), std::pair(0.0, 2147483647.0)}) {
        const RoundScale scale = fiveSteps(low, high);
        EXPECT_LE(scale.low, low);
        EXPECT_GE(scale.high(), high);
        EXPECT_GE(scale.low, 0);
        EXPECT_EQ(scale.steps, 5);
        EXPECT_EQ(roundStep(scale.step), scale.step) << low << " to " << high;
        if (high > low) {
            EXPECT_GT(high - low, scale.step) << "not coarser than it must be";
        }
    }
    EXPECT_EQ(fiveSteps(115600, 254200).low, 50000);
    EXPECT_EQ(fiveSteps(115600, 254200).step, 50000);
    const double lengths[][2] = {{0, 1}, {6, 1}, {7, 2}, {15, 5}, {30, 5}, {100, 20}, {150, 25}};
    for (const auto& [length, step] : lengths)
        EXPECT_EQ(wholeStep(length), step) << length;
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
    int dots = 0;
    for (const int count : {1, 5, 31}) {
        for (const int best : {0, count - 1}) {
            plot.setContent(trials(count, best));
            const QImage image = painted(plot);
            const QRect room(66, 59, 337 - 66 - 22, 248 - 59 - 44);
            for (int i = 0; i < count; ++i) {
                const QPoint place = plot.placeOf(i).toPoint();
                EXPECT_TRUE(room.contains(place)) << i << " of " << count;
                EXPECT_EQ(image.pixelColor(place), colour(i == best ? Role::Card : Role::Treated)) << i;
            }
        }
        const int now = pixels(painted(plot), colour(Role::Treated));
        EXPECT_GT(now, dots);
        dots = now;
    }
    EXPECT_EQ(paintsAfter(plot, [&] { plot.setContent(trials(31, 30)); }), 0) << "as before";
    EXPECT_EQ(spoken(plot, QAccessible::Description).toStdString(), "lowest: Schools 47, Cost");
    const QPoint place = plot.placeOf(3).toPoint() + QPoint(2, 3);
    EXPECT_EQ(paintsAfter(plot, [&] { QTest::mouseMove(window.windowHandle(), place); }), 1);
    EXPECT_EQ(QToolTip::text().toStdString(), "Schools 20\nCost");
    QToolTip::hideText();
}

TEST_F(WizardParts, ThePlotNamesTheUnitOfItsCosts) {
    TrialPlot plot(&window);
    const std::pair<double, const char*> units[] = {
        {1, "Cost"}, {1000, "Cost (thousands)"}, {1e6, "Cost (millions)"}};
    for (const auto& [unit, title] : units) {
        plot.setContent(trials(3, 0, unit));
        EXPECT_EQ(spoken(plot).toStdString(), title);
    }
    plot.setContent({});
    plot.resize(plot.sizeHint());
    EXPECT_EQ(pixels(painted(plot), colour(Role::Treated)), 0) << "without trials an empty card";
}

TEST_F(WizardParts, TheTableMarksTheCheapestAndSharesItsWidth) {
    TrialTable card(&window);
    const QStringList heads = {QStringLiteral("Schools"), QStringLiteral("Cost")};
    std::vector<QStringList> rows;
    for (int i = 0; i < 12; ++i)
        rows.push_back({QString::number(17 + i), QString::number(1000 * (100 - i))});
    card.setGeometry(0, 0, 380, 248);
    card.show();
    card.setTrials(heads, rows, 2);
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
    card.setTrials({QStringLiteral("A very long name of a level in the plural"), heads[1]}, rows, 2);
    EXPECT_EQ(table.horizontalHeader()->length(), table.viewport()->width()) << "long heads are cut";
}

TEST_F(WizardParts, TheBandSaysWhatItShowsAndIsAsHighAsItsText) {
    ResultBand band(&window);
    band.resize(700, 40);
    band.show();
    const auto words = [](int count) { return QStringLiteral("some words of it ").repeated(count); };
    struct Case {
        std::function<BandContent(int)> content;
        Role tint;
        const char* name;
    };
    const Case cases[] = {{[&](int n) { return BandText{words(n)}; }, Role::Field, "some words of it "},
                          {[&](int n) {
                               return BandFigure{QStringLiteral("Cost = "), QStringLiteral("$5"), words(n)};
                           },
                           Role::AccentTint, "Cost = $5"},
                          {[&](int n) {
                               return BandProblem{QStringLiteral("No solution"), words(n)};
                           },
                           Role::ProblemCard, "No solution"}};
    for (const Case& expected : cases) {
        band.resize(700, band.height());
        EXPECT_EQ(paintsAfter(band, [&] { band.setContent(expected.content(1)); }), 1) << expected.name;
        EXPECT_EQ(spoken(band).toStdString(), expected.name);
        EXPECT_GT(pixels(painted(band), colour(expected.tint)), 700 * 20) << expected.name;
        EXPECT_EQ(paintsAfter(band, [&] { band.setContent(expected.content(1)); }), 0);
        const int line = band.height();
        band.setContent(expected.content(30));
        const int lines = band.height();
        EXPECT_GT(lines, line) << expected.name;
        band.resize(400, band.height());
        EXPECT_GT(band.height(), lines) << expected.name;
    }
}

class Notes : public KitBench {
protected:
    void SetUp() override {
        KitBench::SetUp();
        window.resize(700, 500);
        field.setGeometry(10, 10, 100, 30);
        field.show();
        field.setFocus();
        notes.setNotes(QStringLiteral("Notes"), QStringLiteral("First.\n\nSecond."));
        QObject::connect(&notes, &NotesOverlay::closeRequested, &notes, &QWidget::hide);
    }
    void open() {
        notes.show();
        settle();
    }
    PushButton& button() { return *notes.findChild<PushButton*>(); }

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
    const int few = button().mapTo(&window, QPoint()).y();
    EXPECT_EQ(notes.geometry(), window.rect());
    EXPECT_EQ(painted(notes).pixelColor(3, 3).alpha(), 184);
    for (const int count : {4, 40}) {
        notes.setNotes(QStringLiteral("Notes"), QStringLiteral("A note that is longer.\n\n").repeated(count));
        settle();
        const QPoint place = button().mapTo(&window, QPoint());
        EXPECT_GT(place.y(), few) << count;
        EXPECT_TRUE(window.rect().contains(QRect(place, button().size()))) << count;
    }
    window.resize(640, 320);
    settle();
    EXPECT_TRUE(window.rect().contains(QRect(button().mapTo(&window, QPoint()), button().size())));
}

}  // namespace
}  // namespace lorvane::desktop
