// The small dialogs as a hand and a reader of the screen meet them.
#include <QAbstractButton>
#include <algorithm>

#include "desktop/desk_message_boxes.h"
#include "desktop/kit/field_note.h"
#include "desktop/kit/fitted_line.h"
#include "desktop_bench.h"

namespace lorvane::desktop {
namespace {

class Dialogs : public DesktopBench {
protected:
    QLineEdit& field(const char* name) {
        return *window.findChild<QLineEdit*>(QLatin1String(name), Qt::FindChildrenRecursively);
    }
    std::string typed(const char* name) { return field(name).text().toStdString(); }
    /// Letter by letter, since the first one may open an editor that takes the others.
    void enter(const char* text) {
        for (; *text != '\0'; ++text)
            QTest::keyClick(QApplication::focusWidget(), *text);
        key(Qt::Key_Return);
    }
    void press(const char* name) {
        auto& button = *window.findChild<QAbstractButton*>(QLatin1String(name));
        click(button, inside(button));
    }
    /// The line below the fields, where the limits stand and the reason of a refusal.
    FieldNote& note(const char* dialog) { return *panel(dialog).findChildren<FieldNote*>().last(); }
    void open(const char* value, const char* firstText = "") {
        desk.openValue(value, firstText);
        settle();
    }
};

TEST_F(Dialogs, AValueBegunOnItsCellGoesOnInTheDialog) {
    open("txtNT(2)", "4");
    EXPECT_EQ(typed("frmValue.txtValue"), "4");
    type("2");
    key(Qt::Key_Return);
    EXPECT_EQ(study().txtNC(2), 42);
    open("txtModel(1)", "1");
    EXPECT_EQ(study().txtModel(1), 0) << "a choice is no number";
    open("txtNT(2)", "7");
    key(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), QStringLiteral("frmValue.cmdCancel"));
    key(Qt::Key_Return);
    EXPECT_EQ(study().txtNT(2), 42);
}

TEST_F(Dialogs, AnotherCellTakesAnOpenDialogOver) {
    open("txtNT(2)");
    type("17");
    QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, {}, inside(cell("pnlNT(1)")));
    settle();
    EXPECT_EQ(typed("frmValue.txtValue"), "10");
    EXPECT_EQ(field("frmValue.txtValue").selectedText(), QStringLiteral("10"));
    EXPECT_TRUE(field("frmValue.txtValue").hasFocus());
    type("12");
    key(Qt::Key_Return);
    EXPECT_EQ(study().txtNT(2), 2) << "what was typed for another cell is dropped";
    EXPECT_EQ(study().txtNT(1), 12);
}

TEST_F(Dialogs, ARefusalTakesThePlaceOfTheLimits) {
    open("txtNT(2)");
    const QSize size = panel("frmValue").size();
    const int height = note("frmValue").height();
    type("1.5");
    press("frmValue.cmdOK");
    QLineEdit& value = field("frmValue.txtValue");
    EXPECT_EQ(note("frmValue").text(), QStringLiteral("Enter a whole number from 1 to 1000000."));
    EXPECT_EQ(note("frmValue").tone(), FieldNote::Tone::Problem);
    EXPECT_TRUE(value.hasFocus() && value.property("problem").toBool());
    EXPECT_EQ(typed("frmValue.txtValue"), "1.5");
    EXPECT_EQ(value.accessibleDescription(), note("frmValue").text());
    EXPECT_EQ(panel("frmValue").size(), size);
    EXPECT_EQ(note("frmValue").height(), height);
    const auto shown = messages.scripted.take();
    ASSERT_EQ(shown.size(), 1U);
    const MessageBox& told = std::get<ScriptedDialogs::ShownMessage>(shown[0]).message;
    EXPECT_EQ(DeskMessageBoxes().show(told), Answer::OK) << "no box comes up on the screen";
    key(Qt::Key_Backspace);
    EXPECT_EQ(note("frmValue").tone(), FieldNote::Tone::Quiet);
    EXPECT_FALSE(value.property("problem").toBool());
}

TEST_F(Dialogs, TheFrameAsksOnlyAfterAChange) {
    for (const auto& [tool, dialog] : {std::pair{"gfrmAlpha", "frmAlpha"},
                                       {"gfrmGroupNames", "frmGroupNames"},
                                       {"gfrmLevelNames", "frmLevelNames"},
                                       {"gfrmDelta", "frmDelta"}}) {
        for (const bool changed : {false, true}) {
            desk.tool(tool);
            settle();
            if (changed)
                type("0.3");
            messages.scripted.queue(Answer::No);
            closeByFrame(panel(dialog));
            EXPECT_FALSE(isShown(dialog)) << dialog;
            const bool asks = changed && dialog != std::string("frmDelta");
            EXPECT_EQ(messages.scripted.take().size(), asks ? 1U : 0U) << dialog << changed;
            messages.scripted = {};
        }
    }
    EXPECT_EQ(study().txtAlpha, 0.05);
}

TEST_F(Dialogs, ANameIsCutWhereItIsTyped) {
    tool("gfrmGroupNames");
    QLineEdit& name = field("frmGroupNames.txtGroupName(1)");
    name.setText(QString(60, QChar(0x00C4)));
    name.setCursorPosition(5);
    type("x");
    EXPECT_EQ(name.text().size(), 60);
    EXPECT_EQ(name.cursorPosition(), 6) << "typing goes on where it was";
    EXPECT_TRUE(note("frmGroupNames").text().contains(QStringLiteral("60 characters")));
}

TEST_F(Dialogs, LimitsOfRisksByKeysAlone) {
    set({{"NumLevels", 3.0}, {"DataType", 2.0}, {"txtPrev", 0.3}, {"txtOR", 2.0}, {"txtMRange(3)", 0.1}});
    set({{"RangeMode", 2.0}});
    EXPECT_FALSE(cell("pnlMRange(3)").isChangeable());
    EXPECT_TRUE(cell("pnlMRange(3)").toolTip().contains(QStringLiteral("limits")));
    tool("gfrmDisplayICC");
    const QList<FittedLine*> lines = panel("frmDisplayICC").findChildren<FittedLine*>();
    EXPECT_EQ(std::count_if(lines.begin(), lines.end(),
                            [&](const FittedLine* line) {
                                return line->isVisible() && line->toolTip() == cell("pnlMRange(3)").toolTip();
                            }),
              4)
        << "ICC and span of two levels";
    cell("pnlMRange(3)").activate();
    settle();
    ASSERT_TRUE(isShown("frmLimits")) << "a span that follows from the limits leads to them";
    enter("0.2");
    key(Qt::Key_Tab);
    key(Qt::Key_Up);
    EXPECT_EQ(std::get<std::string>(*desk.application().names().read("frmLimits.pnlSpan(3).Caption")),
              "0.16");
    EXPECT_EQ(study().limits.txtLL(3), 0.25) << "not before it is applied";
    for (const char* limit : {"0.1", "0.5"}) {
        key(Qt::Key_Tab);
        enter(limit);
    }
    key(Qt::Key_Return);
    EXPECT_FALSE(isShown("frmLimits"));
    EXPECT_EQ(study().limits.txtLL(3), 0.2);
    EXPECT_EQ(text("pnlMRange(2)"), "0.40");
}

}  // namespace
}  // namespace lorvane::desktop
