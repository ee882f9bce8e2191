// The main screen by keys and clicks: where the focus begins and goes, what a key does with the value that
// has it, and the letters and reasons of all menus.
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolButton>
#include <set>

#include "desktop_bench.h"

namespace lorvane::desktop {
namespace {

class Keys : public DesktopBench {
protected:
    std::string focused() {
        for (const auto& name : names) {
            if (window.focusWidget() == &cell(name))
                return name;
        }
        return "none";
    }
    std::string hint() {
        return window.statusBar()->findChildren<QLabel*>().constFirst()->text().toStdString();
    }
    const std::vector<std::string> names = {
        "pnlD",         "pnlMean",      "pnlSD",       "pnlPrev",   "pnlOR",    "pnlNT(2)", "pnlNC(2)",
        "pnlMRange(2)", "pnlMRange(1)", "pnlQ(2)",     "pnlRsq(2)", "pnlNT(1)", "pnlQ(1)",  "pnlRsq(1)",
        "pnlCostT(2)",  "pnlCostT(1)",  "pnlModel(3)", "pnlNB(2)",  "pnlICC(2)"};
};

TEST_F(Keys, EachStudyBeginsAtItsFirstValue) {
    settle();
    EXPECT_EQ(focused(), "pnlD");
    cell("pnlRsq(2)").setFocus();
    set({{"txtd", 0.3}});
    EXPECT_EQ(focused(), "pnlRsq(2)") << "an edit leaves the focus alone";
    application.load(std::vector<Assignment>{{"DataType", 2.0}});
    emit desk.shown();
    settle();
    EXPECT_EQ(focused(), "pnlPrev");
}

TEST_F(Keys, WhereAValueGoesTheFocusStaysNear) {
    const std::tuple<const char*, std::vector<Assignment>, const char*> changes[] = {
        {"pnlNT(2)", {{"NumLevels", 3.0}, {"RandomizedLevel", 1.0}}, "pnlNB(2)"},
        {"pnlMRange(2)", {{"ICC Metric", 1.0}}, "pnlICC(2)"}};
    for (const auto& [before, change, after] : changes) {
        cell(before).setFocus();
        set(change);
        EXPECT_EQ(focused(), after);
    }
}

TEST_F(Keys, LeftAndRightGoThroughRowAndStrip) {
    cell("pnlNT(1)").setFocus();
    for (const char* wanted : {"pnlMRange(1)", "pnlQ(1)", "pnlRsq(1)", "pnlCostT(1)", "pnlCostT(1)"}) {
        key(Qt::Key_Right);
        EXPECT_EQ(focused(), wanted);
    }
    cell("pnlSD").setFocus();
    for (const char* wanted : {"pnlMean", "pnlD", "pnlD"}) {
        key(Qt::Key_Left);
        EXPECT_EQ(focused(), wanted);
    }
}

TEST_F(Keys, TheValueWithTheFocusTakesAllKeys) {
    set({{"NumLevels", 4.0}, {"RandomizedLevel", 2.0}});
    cell("pnlNT(2)").setFocus();
    const double first = study().txtNT(2);
    const std::size_t steps = application.session().undoDepth();
    key(Qt::Key_PageUp);
    EXPECT_EQ(study().txtNT(2), first + 10);
    EXPECT_EQ(application.session().undoDepth(), steps + 1);
    key(Qt::Key_4);
    ASSERT_TRUE(isShown("frmValue"));
    type("2");
    key(Qt::Key_Return);
    EXPECT_EQ(study().txtNC(2), 42);
    EXPECT_NE(hint().find("linked"), std::string::npos);
    key(Qt::Key_L);
    EXPECT_FALSE(study().LinkN(2));
    EXPECT_EQ(hint().find("linked"), std::string::npos) << "the hint follows the value";
    key(Qt::Key_L);
    EXPECT_TRUE(study().LinkN(2));
    ValueCell& twin = cell("pnlNC(2)");
    click(twin, arrow(twin, 1) + QPoint(0, 6));
    EXPECT_FALSE(study().LinkN(2)) << "by its sign";
    cell("pnlModel(3)").setFocus();
    key(Qt::Key_Space);
    auto* choice = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(choice, nullptr);
    key(Qt::Key_F);
    EXPECT_EQ(text("pnlModel(3)"), "Fixed");
    EXPECT_NE(hint().find("Model"), std::string::npos) << "back from the menu";
}

TEST_F(Keys, ClicksOpenTheDetailsAndLeaveTheFocus) {
    ValueCell& units = cell("pnlNT(2)");
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, inside(units));
    QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, {}, inside(units));
    QTest::qWait(QApplication::doubleClickInterval() + 100);
    EXPECT_TRUE(isShown("frmValue"));
    EXPECT_FALSE(isShown("frmDetails")) << "a double click is no click";
    key(Qt::Key_Escape);
    click(units, inside(units));
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return isShown("frmDetails"); }, QApplication::doubleClickInterval() + 500));
    settle();
    EXPECT_EQ(focused(), "pnlNT(2)");
    EXPECT_EQ(application.details().title().Caption, "Number of level 2s");
    window.activateWindow();
    cell("pnlD").setFocus();
    settle();
    EXPECT_EQ(application.details().title().Caption, "Standardized mean difference, d (total)");
    desk.close("frmDetails");
    cell("pnlNT(1)").setFocus();
    EXPECT_FALSE(isShown("frmDetails")) << "the focus alone opens nothing";
    key(Qt::Key_F1);
    EXPECT_TRUE(isShown("frmDetails"));
    EXPECT_EQ(application.details().title().Caption, "Number of subjects");
}

TEST_F(Keys, TheHeadOfTheStripAnswers) {
    QLabel* head = nullptr;
    for (QLabel* label : window.findChildren<QLabel*>()) {
        if (label->text() == QLatin1String("Standardized mean difference, d (total)"))
            head = label;
    }
    ASSERT_NE(head, nullptr);
    click(*head, inside(*head), Qt::RightButton);
    EXPECT_EQ(QApplication::activePopupWidget(), window.menus().menu("popDesign"));
    key(Qt::Key_Escape);
    EXPECT_FALSE(isShown("frmDetails"));
    click(*head, inside(*head));
    EXPECT_TRUE(isShown("frmDetails"));
}

TEST_F(Keys, AHeldArrowIsFastAndTheScreenKeepsUp) {
    openFourLevels();
    ValueCell& units = cell("pnlNT(1)");
    const double first = study().txtNT(1);
    const QPoint up = arrow(units, 1);
    QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, up);
    QTest::qWait(2500);
    QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, up);
    // Slow for 0.4 s and ten ticks of 0.06 s, then ten at a time for 1.5 s: 25 ticks when nothing is late.
    EXPECT_GE(study().txtNT(1) - first, 100);
    EXPECT_EQ(units.text().toDouble(), study().txtNT(1));
    RecordProperty("steps", static_cast<int>(study().txtNT(1) - first));
}

TEST_F(Keys, TheMenuOfAllWindowsClosesWhatIsOpen) {
    const auto entry = [&](const char* name) { return window.findChild<QAction*>(QLatin1String(name)); };
    QAction* scenarios = entry("toggle gfrmScenarios");
    for (const bool open : {true, false}) {
        scenarios->trigger();
        settle();
        EXPECT_EQ(isShown("frmScenarios"), open);
        EXPECT_EQ(scenarios->isChecked(), open);
    }
    EXPECT_FALSE(entry("toggle gfrmDisplayTauSq")->isEnabled());
    EXPECT_TRUE(entry("toggle gfrmDisplayTauSq")->toolTip().contains(QLatin1String("no level is blocked")));
    EXPECT_EQ(window.menus().menu("popViewForms")->actions().size(), 24);
}

// Letters within a menu, a bar or the buttons of a window.
void expectOwnLetters(const QStringList& texts, const std::string& where) {
    std::set<QKeySequence> letters;
    for (const QString& text : texts) {
        const QKeySequence letter = QKeySequence::mnemonic(text);
        EXPECT_FALSE(letter.isEmpty()) << where << ": " << text.toStdString();
        EXPECT_TRUE(letters.insert(letter).second) << where << ": " << text.toStdString();
    }
}

TEST_F(Keys, EveryEntryOfEveryMenuHasItsLetterAndItsReason) {
    openFourLevels();
    for (const Band& band : application.commands().bands()) {
        if (band.screen.empty() && band.kind != BandKind::toolbar)
            window.menus().menu(band.Name);
    }
    std::size_t entries = 0;
    for (QWidget* widget : QApplication::allWidgets()) {
        auto* menu = qobject_cast<QMenu*>(widget);
        if (menu == nullptr || menu->actions().isEmpty())
            continue;
        emit menu->aboutToShow();
        QStringList texts;
        for (const QAction* action : menu->actions()) {
            if (action->isSeparator() || !action->isVisible())
                continue;
            texts << action->text();
            EXPECT_FALSE(action->toolTip().isEmpty()) << action->text().toStdString();
        }
        expectOwnLetters(texts, menu->title().toStdString());
        entries += static_cast<std::size_t>(texts.size());
    }
    EXPECT_GT(entries, 250U);
    for (const QMenuBar* bar : window.findChildren<QMenuBar*>()) {
        QStringList texts;
        for (const QAction* action : bar->actions())
            texts << action->text();
        expectOwnLetters(texts, "bar");
    }
    for (const Tool& tool : application.commands().tools())
        EXPECT_EQ(tool.Reason.empty(), tool.Enabled) << tool.Name;
    for (const ToolPanel* panel : window.findChildren<ToolPanel*>()) {
        QStringList texts;
        for (const QAbstractButton* button : panel->findChildren<QAbstractButton*>()) {
            if (!QKeySequence::mnemonic(button->text()).isEmpty() &&
                !qobject_cast<const QToolButton*>(button))
                texts << button->text();
        }
        expectOwnLetters(texts, panel->objectName().toStdString());
    }
}

TEST_F(Keys, TipsTellTheKeys) {
    for (const auto& [name, tip] :
         {std::pair{"Save", "Save the study  Ctrl+S"},
          {"Remove a level", "A study has two levels at least"},
          {"Link or unlink groups", "Keep both groups at the same value, or let them differ  L"}}) {
        cell("pnlNT(2)").setFocus();
        settle();
        EXPECT_EQ(window.findChild<QAction*>(QLatin1String(name))->toolTip().toStdString(), tip);
    }
    EXPECT_EQ(window.findChild<QAction*>(QStringLiteral("SaveAs"))->text(), QStringLiteral("Save &As\u2026"));
}

}  // namespace
}  // namespace lorvane::desktop
