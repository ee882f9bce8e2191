// One edit by arrow, key, popup, dialog or wheel, from the widget to everything that shows its effect; and
// what a screen reader is told.
#include <QAbstractButton>
#include <QAccessible>
#include <QClipboard>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QWheelEvent>
#include <set>

#include "desktop/kit/painted_text.h"
#include "desktop/kit/record_table.h"
#include "desktop_bench.h"
#include "session/field_book.h"

namespace lorvane::desktop {
namespace {

using Edit = DesktopBench;

TEST_F(Edit, AnArrowReachesTwinPowerAndStatusLine) {
    const FigureCard& power = *window.findChildren<FigureCard*>()[0];
    const FigureContent before = power.content();
    const double number = study().txtNT(2);
    clickArrow("pnlNT(2)", 1);
    EXPECT_EQ(study().txtNT(2), number + 1);
    EXPECT_EQ(text("pnlNT(2)"), std::to_string(static_cast<int>(number) + 1));
    EXPECT_EQ(text("pnlNC(2)"), text("pnlNT(2)"));
    EXPECT_FALSE(power.content() == before);
    QString status;
    for (const QLabel* label : window.statusBar()->findChildren<QLabel*>())
        status += label->text();
    EXPECT_TRUE(status.contains(QLatin1String("Up and Down change it by 1."))) << status.toStdString();
}

// Every cell is wired to its own field: strip, both arms, blocked levels, choices.
TEST_F(Edit, EveryArrowMovesItsOwnCell) {
    openFourLevels();
    for (const double dataType : {2.0, 1.0}) {
        set({{"DataType", dataType}});
        for (const ValueCell* changed : changeableCells(window)) {
            const QString before = changed->text();
            for (const int direction : {1, -1}) {
                if (changed->text() == before)
                    click(*changed, arrow(*changed, direction));
            }
            EXPECT_NE(changed->text(), before) << changed->accessibleName().toStdString();
        }
    }
}

// With twenty covariates too few degrees of freedom are left, and the window tells so after the hold.
TEST_F(Edit, AHeldArrowRepeatsAndTheProblemWaitsForItsRelease) {
    set({{"txtNT(2)", 12.0}, {"txtNC(2)", 12.0}, {"txtQ(2)", 20.0}});
    const QPoint down = arrow(cell("pnlNT(2)"), -1);
    QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, down);
    QTest::qWait(400 + 4 * 60);
    EXPECT_LE(study().txtNT(2), 9);
    EXPECT_TRUE(std::holds_alternative<FigureTrouble>(window.findChildren<FigureCard*>()[0]->content()));
    EXPECT_FALSE(isShown("frmProblems"));
    QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, down);
    const double released = study().txtNT(2);
    QTest::qWait(150);
    EXPECT_TRUE(isShown("frmProblems"));
    EXPECT_EQ(study().txtNT(2), released);
}

struct PaintCounter final : QObject {
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint)
            painted.push_back(watched);
        return false;
    }
    std::vector<QObject*> painted;
};

TEST_F(Edit, OnlyWhatChangedIsPainted) {
    openFourLevels();
    ValueCell& changed = cell("pnlNT(1)");
    click(changed, inside(changed));
    QTest::qWait(50);
    PaintCounter counter;
    qApp->installEventFilter(&counter);
    clickArrow("pnlNT(1)", 1);
    QTest::qWait(50);
    EXPECT_LE(counter.painted.size(), 20U) << "with sheets and cards around the cells";
    std::erase_if(counter.painted, [](QObject* widget) { return !qobject_cast<ValueCell*>(widget); });
    EXPECT_EQ(std::set(counter.painted.begin(), counter.painted.end()),
              (std::set<QObject*>{&changed, &cell("pnlNC(1)")}));
}

TEST_F(Edit, ARightClickOffersWhatBelongsToTheCellAndActs) {
    openFourLevels();
    set({{"ICC Metric", 1.0}, {"txtNT(2)", 20.0}, {"txtNC(2)", 20.0}});
    for (const auto& [name, band, entry] : {std::tuple{"pnlNT(2)", "popLinkN2", "Increment Level 2 by 10"},
                                            {"pnlNC(2)", "popLinkN2", "Unlink N for Level 2"},
                                            {"pnlNB(3)", "popLinkN3B", "Increment Level 3 by 100"},
                                            {"pnlCostC(1)", "popLinkCost1", "Unlink cost for Level 1"},
                                            {"pnlCostB(4)", "popCostB4", "Increment Level 4 cost by 1"},
                                            {"pnlICC(3)", "popICC", "Use 3 decimal places for ICC"}}) {
        click(cell(name), inside(cell(name)), Qt::RightButton);
        auto* shown = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_TRUE(shown != nullptr && shown == window.menus().menu(band)) << name;
        auto* action = window.findChild<QAction*>(QLatin1String(entry));
        EXPECT_TRUE(action->isVisible() && shown->actions().contains(action)) << entry;
        click(*shown, shown->actionGeometry(action).center());
    }
    clickArrow("pnlNT(2)", 1);
    EXPECT_EQ(text("pnlNT(2)"), "30");
    EXPECT_EQ(text("pnlNC(2)"), "20");
    EXPECT_TRUE(cell("pnlCostC(1)").isChangeable());
    EXPECT_EQ(text("pnlICC(2)").size(), 5U);
    click(cell("pnlModel(3)"), inside(cell("pnlModel(3)")), Qt::RightButton);
    EXPECT_EQ(QApplication::activePopupWidget(), window.menus().menu("popModel3"));
}

TEST_F(Edit, AMenuMarksAlsoAChoiceThatItDoesNotOffer) {
    for (const auto& [type, entry] : {std::pair{2.0, "Risk ratio"}, {4.0, "Two risks"}}) {
        set({{"DataType", 2.0}, {"BinaryType", type}});
        settle();
        std::string marked;
        for (const QAction* action : window.menus().menu("popDesign")->actions())
            marked += action->isChecked() ? action->objectName().toStdString() : "";
        EXPECT_EQ(marked, entry);
    }
}

TEST_F(Edit, ARefusalKeepsTheDialogAndTheStudy) {
    set({{"txtName(1)", std::string("Pupils")},
         {"txtGroupName(2)", std::string("Usual")},
         {"ICC Metric", 1.0}});
    const auto fields = [&] {
        std::vector<FieldValue> values;
        forEachField(
            [&](FieldRef field) { values.push_back(readField(application.session().state(), field)); });
        return values;
    };
    const std::vector<FieldValue> before = fields();
    for (const auto& [opener, dialog, control, wrong] :
         {std::tuple{"gfrmAlpha", "frmAlpha", "frmAlpha.txtAlpha", "0.7"},
          {"gfrmDelta", "frmDelta", "frmDelta.txtDelta", "0.5"},
          {"gfrmControlMean", "frmSetMean", "frmSetMean.txtSpan", "wide"},
          {"gfrmGroupNames", "frmGroupNames", "frmGroupNames.txtGroupName(1)", "Usual"},
          {"gfrmLevelNames", "frmLevelNames", "frmLevelNames.txtLevelNames(2)", "Pupils"},
          {"Set maximum cost", "pic", "txtMaxCost", "-5"},
          {"", "frmValue", "frmValue.txtValue", "1.2"}}) {
        if (*opener == '\0')
            QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, {}, inside(cell("pnlICC(2)")));
        else
            desk.tool(opener);
        settle();
        auto* typed = panel(dialog).findChild<QLineEdit*>(QLatin1String(control));
        typed->setFocus();
        typed->selectAll();
        type(wrong);
        messages.scripted = {};
        key(Qt::Key_Return);
        EXPECT_EQ(messages.scripted.take().size(), 1U) << dialog;
        EXPECT_TRUE(isShown(dialog)) << dialog;
        EXPECT_EQ(fields(), before) << dialog;
        messages.scripted.queue(Answer::No);
        closeByFrame(panel(dialog));
        EXPECT_FALSE(isShown(dialog)) << dialog;
    }
}

TEST_F(Edit, TypedNamesAreNotLostWithoutAQuestion) {
    tool("gfrmGroupNames");
    type("Coached");
    messages.scripted.queue(Answer::Yes);
    closeByFrame(panel("frmGroupNames"));
    EXPECT_EQ(messages.scripted.take().size(), 1U);
    EXPECT_EQ(study().txtGroupName(1), "Coached");
}

TEST_F(Edit, TheWheelStepsWithCtrlOnly) {
    const double first = study().txtNT(2);
    const QPointF on(20, 12);
    for (const Qt::KeyboardModifier modifier : {Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier}) {
        QWheelEvent wheel(on, cell("pnlNT(2)").mapToGlobal(on), {}, {0, 240}, {}, modifier, Qt::NoScrollPhase,
                          false);
        QCoreApplication::sendEvent(&cell("pnlNT(2)"), &wheel);
        EXPECT_EQ(study().txtNT(2), first + (modifier == Qt::ControlModifier ? 2 : 0));
    }
}

class Keyboard : public DesktopBench {
protected:
    static std::string nameOf(QWidget& widget) {
        return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name).toStdString();
    }

    void expectNames(QWidget& shown) {
        for (QWidget* widget : shown.findChildren<QWidget*>()) {
            const bool control = qobject_cast<ValueCell*>(widget) || qobject_cast<QAbstractButton*>(widget) ||
                                 qobject_cast<QLineEdit*>(widget) || qobject_cast<PaintedText*>(widget);
            const bool asked = control && widget->isVisible() && widget->window() == shown.window();
            EXPECT_FALSE(asked && nameOf(*widget).empty()) << widget->metaObject()->className();
        }
        shown.activateWindow();
        settle();
        for (ValueCell* changeable : changeableCells(shown)) {
            changeable->setFocus();
            EXPECT_NE(changeable->accessibleDescription().toStdString(), "") << nameOf(*changeable);
        }
    }
};

TEST_F(Keyboard, TabReachesEveryControlAndBack) {
    openFourLevels();
    std::set<QWidget*> wanted;
    for (ValueCell* changeable : changeableCells(window))
        wanted.insert(changeable);
    EXPECT_EQ(wanted.size(), 3U + 2 * 7 + 2 * 5) << "strip, blocked levels, levels with linked arms";
    for (QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
        if (button->isVisible() && button->isEnabled())
            wanted.insert(button);
    }
    cell("pnlD").setFocus();
    std::vector<QWidget*> forward;
    do {
        forward.push_back(QApplication::focusWidget());
        key(Qt::Key_Tab);
    } while (QApplication::focusWidget() != forward.front() && forward.size() < 200);
    for (QWidget* widget : wanted)
        EXPECT_EQ(std::count(forward.begin(), forward.end(), widget), 1) << nameOf(*widget);
    for (auto stop = forward.rbegin(); stop != forward.rend(); ++stop) {
        key(Qt::Key_Backtab, Qt::ShiftModifier);
        EXPECT_EQ(QApplication::focusWidget(), *stop);
    }
}

TEST_F(Keyboard, UndoAndCopyServeWhatHasTheFocus) {
    const double first = study().txtNT(2);
    clickArrow("pnlNT(2)", 1);
    for (const auto& [letter, more, size] : {std::tuple{Qt::Key_Z, Qt::NoModifier, first},
                                             {Qt::Key_Y, Qt::NoModifier, first + 1},
                                             {Qt::Key_Z, Qt::NoModifier, first},
                                             {Qt::Key_Z, Qt::ShiftModifier, first + 1}}) {
        key(letter, Qt::ControlModifier | more);
        EXPECT_EQ(study().txtNT(2), size) << letter << " " << more;
    }
    const auto copied = [&] {
        key(Qt::Key_C, Qt::ControlModifier);
        return QGuiApplication::clipboard()->text().toStdString();
    };
    EXPECT_TRUE(copied().starts_with("Power = "));
    cell("pnlNT(2)").setFocus();
    key(Qt::Key_Return);
    type("17");
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(study().txtNT(2), first + 1) << "a text that is being typed has an undo of its own";
    key(Qt::Key_Escape);
    set({{"txtd", 0.4}});
    tool("gfrmMDES");
    key(Qt::Key_Return);
    EXPECT_TRUE(copied().starts_with(application.mdesWindow().firstLine().Caption));
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(study().txtd, 0) << "the effect that was entered before 0.4";
    tool("Add scenario");
    tool("gfrmScenarios");
    auto* table = panel("frmScenarios").findChild<RecordTable*>();
    table->setFocus();
    key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_TRUE(copied().starts_with("Name\t"));
}

TEST_F(Keyboard, KeysStepAndOpenTheFocusedCell) {
    cell("pnlNT(2)").setFocus();
    const double first = study().txtNT(2);
    for (const Qt::Key step : {Qt::Key_Up, Qt::Key_Up, Qt::Key_Down})
        key(step);
    EXPECT_EQ(study().txtNT(2), first + 1);
    for (const Qt::Key leaving : {Qt::Key_Escape, Qt::Key_Cancel, Qt::Key_Return}) {
        key(Qt::Key_Return);
        ASSERT_TRUE(isShown("frmValue"));
        type("17");
        auto* cancel = panel("frmValue").findChild<QAbstractButton*>(QStringLiteral("frmValue.cmdCancel"));
        if (leaving == Qt::Key_Cancel)
            click(*cancel, inside(*cancel));
        else
            key(leaving);
        EXPECT_FALSE(isShown("frmValue")) << leaving;
        EXPECT_EQ(study().txtNC(2), leaving == Qt::Key_Return ? 17 : first + 1);
        desk.close("frmValue");
        settle();
        EXPECT_TRUE(cell("pnlNT(2)").hasFocus());
    }
}

TEST_F(Keyboard, EveryMenuOpensByItsLetter) {
    std::set<QChar> letters;
    for (const QAction* action : window.menuBar()->actions()) {
        const QChar letter = action->text().at(action->text().indexOf(QLatin1Char('&')) + 1).toUpper();
        EXPECT_TRUE(letters.insert(letter).second) << action->text().toStdString();
        key(static_cast<Qt::Key>(letter.unicode()), Qt::AltModifier);
        EXPECT_EQ(QApplication::activePopupWidget(), action->menu()) << action->text().toStdString();
        key(Qt::Key_Escape);
        key(Qt::Key_Escape);
    }
    EXPECT_EQ(letters.size(), 16U);
}

TEST_F(Keyboard, EveryControlHasAName) {
    openFourLevels();
    expectNames(window);
    for (const auto& [opener, name] : {std::pair{"gfrmDisplayICC", "frmDisplayICC"},
                                       {"gfrmDisplayTauSq", "frmDisplayTauSq"},
                                       {"gfrmDetails", "frmDetails"},
                                       {"gfrmAlpha", "frmAlpha"},
                                       {"gfrmControlMean", "frmSetMean"},
                                       {"gfrmGroupNames", "frmGroupNames"},
                                       {"gfrmLevelNames", "frmLevelNames"},
                                       {"FrmLimits", "frmLimits"},
                                       {"Set maximum cost", "pic"}}) {
        tool(opener);
        EXPECT_TRUE(isShown(name)) << name;
        EXPECT_NE(nameOf(panel(name)), "") << name;
        expectNames(panel(name));
    }
    set({{"DataType", 2.0}, {"BinaryType", 1.0}});
    expectNames(window);
}

TEST_F(Edit, TheSmallestEffectByKeysAlone) {
    set({{"txtd", 0.3}, {"txtNT(2)", 10.0}, {"txtNC(2)", 10.0}});
    tool("gfrmMDES");
    key(Qt::Key_Return);
    const double found = study().txtd;
    EXPECT_NE(found, 0.3);
    key(Qt::Key_C, Qt::ControlModifier);
    const QString copied = QGuiApplication::clipboard()->text();
    EXPECT_TRUE(copied.contains(QStringLiteral("(d) of %1,\nwhere d is").arg(found, 0, 'f', 2)))
        << copied.toStdString();
    const int withResult = dock("frmMDES").heightFor(dock("frmMDES").width());
    clickArrow("pnlNT(2)", 1);
    EXPECT_LT(dock("frmMDES").heightFor(dock("frmMDES").width()), withResult) << "the figure is gone";
    cell("pnlNT(2)").setFocus();
    key(Qt::Key_Escape);
    EXPECT_TRUE(isShown("frmMDES")) << "the keyboard is not in it";
    key(Qt::Key_F6);
    key(Qt::Key_Escape);
    EXPECT_FALSE(isShown("frmMDES"));
    EXPECT_EQ(study().txtd, 0.3);
}

}  // namespace
}  // namespace lorvane::desktop
