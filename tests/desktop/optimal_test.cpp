// The optimal design wizard as a person uses it.
#include <QHeaderView>
#include <QRadioButton>
#include <QScreen>

#include "base/number_text.h"
#include "desktop/kit/entry_cell.h"
#include "desktop/kit/notes_overlay.h"
#include "desktop/kit/offer_card.h"
#include "desktop/kit/push_button.h"
#include "desktop/kit/result_band.h"
#include "desktop/kit/trial_plot.h"
#include "desktop/kit/trial_table.h"
#include "desktop_bench.h"

namespace lorvane::desktop {
namespace {

class Wizard : public DesktopBench {
protected:
    void SetUp() override {
        DesktopBench::SetUp();
        progress.inner.setRedraw([this] { whenRedrawn(); });
        application.open(LORVANE_TEST_DATA "/../../assets/examples/schools.Lorvane");
        tool("gfrmOptimal");
        ASSERT_TRUE(isShown("frmOptimal"));
        panel("frmOptimal").activateWindow();
        settle();
    }

    template <typename Widget>
    Widget& part(const char* name = "") {
        return *panel("frmOptimal").findChild<Widget*>(QString::fromLatin1(name));
    }
    const OptimalWindow& model() const { return application.optimalWindow(); }
    void click(const char* radio) {
        auto& button = part<QRadioButton>(radio);
        DesktopBench::click(button, button.mapTo(button.window(), QPoint(10, button.height() / 2)));
    }
    EntryCell& students() { return part<EntryCell>("frmOptimal.txtNumReps(1)"); }
    void pushArrow(int direction) { DesktopBench::click(students(), arrow(students(), direction)); }
    /// The first key opens the cell, the others go into it.
    void typeSize(std::initializer_list<Qt::Key> keys) {
        students().setFocus();
        for (const Qt::Key typed : keys)
            key(typed);
    }

    std::function<void()> whenRedrawn = [this] { panels.follow(); };
};

TEST_F(Wizard, RunsAndPastesByTheKeyboardAlone) {
    EXPECT_FALSE(part<TrialPlot>().isVisible());
    key(Qt::Key_Return);
    ASSERT_NE(model().result(), nullptr);
    EXPECT_FALSE(part<NotesOverlay>().isVisible()) << "the card tells of the other design";
    EXPECT_TRUE(part<TrialPlot>().isVisible());
    const OptimalResult& result = *model().result();
    const QAbstractItemModel& rows = *part<TrialTable>().table()->model();
    ASSERT_EQ(rows.rowCount(), static_cast<int>(result.trials.size()) + 1) << "and the cheaper design";
    const int best = static_cast<int>(model().outcome()->best());
    const int other = static_cast<int>(*model().outcome()->other());
    EXPECT_TRUE(part<TrialTable>().table()->isMarked(rows.index(best, 0)));
    EXPECT_TRUE(part<TrialTable>().table()->hasSign(rows.index(other, 0)));
    for (const int level : {3, 2, 1})
        EXPECT_EQ(rows.index(best, 3 - level).data().toString(),
                  model().row(level).OptimalpnlNT.Caption.c_str());
    const auto& band = std::get<BandFigure>(part<ResultBand>().content());
    EXPECT_EQ(band.words + band.number, QString::fromStdString(model().pnlOptimalCost().Caption));
    const LevelSizes sizes = result.bestTrial().sizes;

    desk.click("frmOptimal.cmdNotes");
    EXPECT_TRUE(part<NotesOverlay>().isVisible());
    key(Qt::Key_Escape);
    EXPECT_FALSE(part<NotesOverlay>().isVisible());
    ASSERT_TRUE(isShown("frmOptimal"));
    key(Qt::Key_Return);
    for (const int level : {1, 2, 3})
        EXPECT_EQ(study().txtNT(level), sizes(level)) << level;
    key(Qt::Key_Return);
    EXPECT_FALSE(isShown("frmOptimal")) << "after Paste comes Close";
}

TEST_F(Wizard, ShowsTheTrialThatIsChosenByKeysAndPointer) {
    key(Qt::Key_Return);
    RecordTable& table = *part<TrialTable>().table();
    const int best = static_cast<int>(model().outcome()->best());
    const auto shown = [&] {
        const auto& band = std::get<BandFigure>(part<ResultBand>().content());
        EXPECT_EQ(band.number, QString::fromStdString(model().pnlCostNumber().Caption));
        EXPECT_EQ(band.back.isEmpty(), model().outcome()->showsBest());
        return model().outcome()->shownDesign();
    };
    QStringList stops;
    for (int i = 0; i < 12; ++i, key(Qt::Key_Tab))
        stops << panel("frmOptimal").focusWidget()->objectName().section(QLatin1Char('.'), 1);
    EXPECT_EQ(
        stops.join(QLatin1Char(' ')).toStdString(),
        "cmdOpt(3) cmdOpt(4) optGoal(1) txtReqPower txtBudget optAuto(2) optAuto(1)   cmdOpt(1) cmdNotes "
        "cmdOpt(2)")
        << "the two without a name are the other design's button and the table";
    table.setFocus();
    for (const char* pasted : {"Paste this trial", "Paste this design", "Paste this trial"}) {
        key(Qt::Key_Down);
        EXPECT_EQ(part<PushButton>("frmOptimal.cmdOpt(3)").text(), pasted) << shown();
    }
    EXPECT_EQ(shown(), best + 3);
    DesktopBench::click(part<TrialPlot>(),
                        part<TrialPlot>().mapTo(table.window(), part<TrialPlot>().placeOf(7).toPoint()));
    EXPECT_EQ(shown(), 7U);
    EXPECT_EQ(table.selectedRows(), QList<int>{7});
    table.bringIntoView(best);
    const QRect row = table.visualRect(table.model()->index(best, 1));
    DesktopBench::click(*table.viewport(), table.viewport()->mapTo(table.window(), row.center()));
    EXPECT_EQ(shown(), best);
    EXPECT_TRUE(table.selectedRows().isEmpty()) << "the cheapest has its tint";
    key(Qt::Key_Down);
    EXPECT_EQ(shown(), best + 1);
    const LevelSizes sizes = model().outcome()->shown().sizes;
    key(Qt::Key_Return);
    for (const int level : {1, 2, 3})
        EXPECT_EQ(study().txtNT(level), sizes(level)) << level;
}

TEST_F(Wizard, NotesAndTheDesignBesideTheTrialsComeBack) {
    key(Qt::Key_Return);
    ASSERT_TRUE(model().outcome()->other());
    EXPECT_TRUE(part<PushButton>("frmOptimal.cmdOpt(3)").hasFocus());
    part<PushButton>("frmOptimal.cmdNotes").setFocus();
    key(Qt::Key_Return);
    ASSERT_TRUE(part<NotesOverlay>().isVisible());
    for (int stops = 0; stops < 2; ++stops)
        key(Qt::Key_Tab);
    key(Qt::Key_Return);
    EXPECT_FALSE(part<NotesOverlay>().isVisible()) << "the button of the note shows its design";
    EXPECT_TRUE(model().outcome()->showsOther());
    part<ResultBand>().findChild<PushButton*>()->click();
    EXPECT_TRUE(model().outcome()->showsBest());
    part<OfferCard>().findChild<PushButton*>()->click();
    EXPECT_TRUE(model().outcome()->showsOther());
}

TEST_F(Wizard, ABudgetIsAnsweredWithPowerAndPasted) {
    for (const Qt::Key typed :
         {Qt::Key_1, Qt::Key_2, Qt::Key_0, Qt::Key_0, Qt::Key_0, Qt::Key_0, Qt::Key_Return}) {
        if (typed == Qt::Key_1)
            part<EntryCell>("frmOptimal.txtBudget").setFocus();
        key(typed);
    }
    part<PushButton>("frmOptimal.cmdOpt(2)").setFocus();
    key(Qt::Key_Return);
    ASSERT_NE(model().result(), nullptr);
    const auto& band = std::get<BandFigure>(part<ResultBand>().content());
    EXPECT_EQ(band.words, "Power = ");
    EXPECT_EQ(part<OfferCard>().text().toStdString(),
              "No design has more power than " + model().outcome()->figure() + " for this budget.");
    EXPECT_TRUE(part<TrialPlot>().valueTexts().first().endsWith(QLatin1Char('%')));
    const Trial best = model().outcome()->shown();
    key(Qt::Key_Return);
    EXPECT_EQ(study().result.txtPower, best.power);
    EXPECT_EQ(study().result.txtCost, best.cost);
    EXPECT_LE(best.cost, 120000);
    EXPECT_EQ(model().question().budget(), 120000);
}

// The trials take what height there is, three to ten of them.
TEST_F(Wizard, FitsTheScreenInEveryStudy) {
    QWidget& wizard = panel("frmOptimal");
    for (const int levels : {2, 3, 4}) {
        set({{"NumLevels", 1.0 * levels},
             {"txtICC(4)", 0.05},
             {"txtCostT(3)", 300.0},
             {"txtCostC(3)", 300.0},
             {"txtCostT(4)", 900.0},
             {"txtCostC(4)", 900.0},
             {"txtName(2)", std::string(80, 'W')}});
        desk.click("frmOptimal.cmdOpt(2)");
        settle();
        ASSERT_NE(model().result(), nullptr);
        EXPECT_EQ(wizard.width(), 800);
        EXPECT_LE(wizard.height(), 650);
        EXPECT_TRUE(wizard.screen()->availableGeometry().contains(wizard.frameGeometry()));
        EXPECT_GE(part<TrialTable>().table()->viewport()->height(), 3 * TrialTable::rowHeight);
    }
    wizard.resize(800, 2000);
    settle();
    const int high = part<TrialTable>().height();
    EXPECT_EQ(high, TrialTable::heightOf(10));
    desk.click("frmOptimal.cmdOpt(2)");
    settle();
    EXPECT_EQ(part<TrialTable>().height(), high) << "as the user had it";
    desk.click("frmOptimal.cmdOpt(1)");
    settle();
    EXPECT_EQ(wizard.minimumHeight(), wizard.maximumHeight()) << "without trials as high as its content";
}

TEST_F(Wizard, OptionsArrowsAndTypedSizesReachTheProgram) {
    EXPECT_FALSE(students().isVisible());
    click("frmOptimal.optManual(1)");
    EXPECT_TRUE(model().row(1).optManual.Value);
    ASSERT_TRUE(students().isVisible());
    const double size = model().row(1).txtNumReps;
    pushArrow(1);
    EXPECT_EQ(model().row(1).txtNumReps, size + 1);
    EXPECT_EQ(students().text().toStdString(), shortestText(size + 1));
    pushArrow(-1);
    EXPECT_EQ(model().row(1).txtNumReps, size);
    typeSize({Qt::Key_3, Qt::Key_7, Qt::Key_Return});
    EXPECT_EQ(model().row(1).txtNumReps, 37);
    EXPECT_TRUE(students().hasFocus());
    messages.scripted.queue(Answer::OK);
    int told = 0;
    messages.beforeShowing = [&] { ++told; };
    typeSize({Qt::Key_0, Qt::Key_Return});
    EXPECT_EQ(told, 1) << "beyond the limits";
    typeSize({Qt::Key_5, Qt::Key_X, Qt::Key_Return});
    EXPECT_EQ(model().row(1).txtNumReps, 37);
    typeSize({Qt::Key_4, Qt::Key_Escape});
    EXPECT_EQ(model().row(1).txtNumReps, 37);
    ASSERT_TRUE(isShown("frmOptimal")) << "Escape has left the number only";
    click("frmOptimal.optAuto(1)");
    EXPECT_TRUE(model().row(1).optAuto.Value);
    key(Qt::Key_Escape);
    EXPECT_FALSE(isShown("frmOptimal"));
}

TEST_F(Wizard, QuestionsAreChosenByOptionFieldAndKey) {
    using enum OptimalGoal;
    const OptimalQuestion& question = model().question();
    auto& power = part<EntryCell>("frmOptimal.txtReqPower");
    auto& budget = part<EntryCell>("frmOptimal.txtBudget");
    const auto asked = [&] {
        EXPECT_NE(power.isAtRest(), budget.isAtRest());
        EXPECT_EQ(part<QRadioButton>("frmOptimal.optGoal(2)").isChecked(), power.isAtRest());
        return question.goal();
    };
    EXPECT_EQ(asked(), cheapest);
    DesktopBench::click(budget, inside(budget));
    EXPECT_EQ(asked(), mostPower) << "at once, not after the time of a double click";
    DesktopBench::click(power, arrow(power, 1));
    EXPECT_EQ(asked(), cheapest);
    EXPECT_EQ(power.text(), "85%");
    part<QRadioButton>("frmOptimal.optGoal(1)").setFocus();
    key(Qt::Key_Right);
    EXPECT_EQ(asked(), mostPower);
    click("frmOptimal.optGoal(1)");
    EXPECT_EQ(asked(), cheapest);

    budget.setFocus();
    for (const Qt::Key typed : {Qt::Key_9, Qt::Key_0, Qt::Key_Escape})
        key(typed);
    ASSERT_TRUE(isShown("frmOptimal")) << "Escape has left the field only";
    EXPECT_EQ(question.budget(), study().result.txtCost);
    key(Qt::Key_2);
    type("147483647");
    key(Qt::Key_Return);
    EXPECT_EQ(budget.text(), "$2,147,483,647");
    EXPECT_LE(budget.geometry().right(), 756);
    EXPECT_TRUE(budget.hasFocus());
    EXPECT_EQ(model().result(), nullptr) << "Enter has not pressed Compute";
    messages.scripted.queue(Answer::OK);
    int told = 0;
    messages.beforeShowing = [&] { ++told; };
    power.setFocus();
    for (const Qt::Key typed : {Qt::Key_8, Qt::Key_1, Qt::Key_Return})
        key(typed);
    EXPECT_EQ(told, 1) << "no choice";
    EXPECT_EQ(power.text(), "85%");
    EXPECT_EQ(asked(), mostPower);
}

TEST_F(Wizard, ALongSearchIsWatchedAndStopped) {
    const double size = study().txtNT(1);
    const double power = study().result.txtPower;
    QStringList texts;
    progress.pause = 15;
    whenRedrawn = [&] {
        panels.follow();
        texts << std::get<BandText>(part<ResultBand>().content()).text;
        auto* click = new QMouseEvent(QEvent::MouseButtonPress, arrow(cell("pnlNB(3)"), 1), QPointF(),
                                      Qt::LeftButton, Qt::LeftButton, {});
        QCoreApplication::postEvent(window.windowHandle(), click);
        const int button = texts.size() < 4 ? Qt::Key_A : Qt::Key_Escape;
        QCoreApplication::postEvent(panel("frmOptimal").windowHandle(),
                                    new QKeyEvent(QEvent::KeyPress, button, Qt::NoModifier));
    };
    key(Qt::Key_Return);
    ASSERT_EQ(texts.size(), 4) << "stopped at once";
    EXPECT_GT(texts.last().size(), texts.first().size()) << "it tells that it goes on";
    EXPECT_EQ(model().result(), nullptr);
    EXPECT_TRUE(part<PushButton>("frmOptimal.cmdOpt(2)").hasFocus());
    EXPECT_EQ(study().txtNT(1), size);
    EXPECT_EQ(study().result.txtPower, power);
    ASSERT_TRUE(isShown("frmOptimal"));
    progress.pause = 0;
    whenRedrawn = [] {};
    key(Qt::Key_Return);
    EXPECT_NE(model().result(), nullptr) << "and can be started again";
}

}  // namespace
}  // namespace lorvane::desktop
