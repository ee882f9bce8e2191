// The guide on the screen: it says what it points at, never covers it, and is led by keys alone.
#include <QAccessible>
#include <QTextEdit>

#include "desktop/kit/guide_sheet.h"
#include "desktop/kit/outline_overlay.h"
#include "desktop/kit/push_button.h"
#include "desktop_bench.h"

namespace lorvane::desktop {
namespace {

class GuideOnScreen : public DesktopBench {
protected:
    void SetUp() override {
        DesktopBench::SetUp();
        desk.tool("gfrmTips");
        settle();
    }

    void goTo(int frame) {
        desk.click("frmTips.Section(1)");
        while (guide().CurrentTip() < frame)
            desk.click("frmTips.frmClusterWizbutton(3)");
        settle();
    }
    const Guide& guide() const { return desk.application().guide(); }
    QPushButton& button(const char* name) {
        return *panel("frmTips").findChild<QPushButton*>(QString::fromUtf8(name));
    }

    /// The outlines of the guide, on the screen.
    QList<QRect> outlined() {
        QList<QRect> around;
        for (const OutlineOverlay* overlay : window.findChildren<OutlineOverlay*>()) {
            for (const Outline& outline : overlay->outlines()) {
                if (outline.distance == GuideDistance && overlay->isVisible())
                    around << QRect(overlay->mapToGlobal(outline.around.topLeft()), outline.around.size());
            }
        }
        return around;
    }
};

TEST_F(GuideOnScreen, OutlinesEveryTargetAndNeverCoversIt) {
    for (const bool binary : {false, true}) {
        set({{"DataType", binary ? 2.0 : 1.0},
             {"NumLevels", 4.0},
             {"RandomizedLevel", 2.0},
             {"txtd", 0.3},
             {"txtNB(4)", 20.0},
             {"txtNB(3)", 4.0},
             {"txtNT(2)", 3.0},
             {"txtNC(2)", 3.0},
             {"txtNT(1)", 20.0},
             {"txtNC(1)", 20.0}});
        for (const bool floats : {false, true}) {
            dock("frmTips").setFloating(floats);
            goTo(0);
            while (guide().CurrentTip() < lastGuideFrame) {
                desk.click("frmTips.frmClusterWizbutton(3)");
                settle();
                const std::string frame = "frame " + std::to_string(guide().CurrentTip());
                const QList<QRect> around = outlined();
                const bool pointsSomewhere = !guide().target().around.empty() &&
                                             (!steersWizard(guide().CurrentTip()) || isShown("frmOptimal"));
                EXPECT_EQ(around.size(), pointsSomewhere ? 1 : 0) << frame << " at " << guide().target().name;
                const QRect own(panel("frmTips").mapToGlobal(QPoint()), panel("frmTips").size());
                for (const QRect& outline : around) {
                    EXPECT_FALSE(outline.intersects(own)) << frame << (floats ? " floating" : " docked");
                }
            }
        }
    }
}

TEST_F(GuideOnScreen, ShowsTheWholeTextOfEveryFrame) {
    auto& text = *panel("frmTips").findChild<QTextEdit*>();
    dock("frmTips").setFloating(true);
    settle();
    for (const double levels : {2.0, 4.0}) {
        set({{"NumLevels", levels}, {"RandomizedLevel", 2.0}, {"DataType", levels == 4 ? 1.0 : 2.0}});
        goTo(0);
        while (guide().CurrentTip() < lastGuideFrame) {
            desk.click("frmTips.frmClusterWizbutton(3)");
            settle();
            const std::string frame = "frame " + std::to_string(guide().CurrentTip());
            EXPECT_GE(text.viewport()->height(), text.document()->size().height() - 1) << frame;
            EXPECT_LE(panel("frmTips").width(), 420) << frame;
            for (const QPushButton* shown : panel("frmTips").findChildren<QPushButton*>()) {
                if (shown->isVisible()) {
                    EXPECT_GE(shown->width(), shown->sizeHint().width())
                        << frame << shown->text().toStdString();
                }
            }
        }
    }
}

TEST_F(GuideOnScreen, IsLedByTheKeyboardAndTellsWhoHearsIt) {
    cell("pnlD").setFocus();
    key(Qt::Key_F6);
    EXPECT_EQ(QApplication::focusWidget(), &button("frmTips.frmClusterWizbutton(3)"));
    for (int i = 0; i < 2; ++i)
        key(Qt::Key_Space);
    for (int i = 0; i < 2; ++i)
        key(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(guide().CurrentTip(), outcomeFrame);
    auto* sheet = panel("frmTips").findChild<GuideSheet*>();
    const QString heard = QAccessible::queryAccessibleInterface(sheet)->text(QAccessible::Name);
    EXPECT_TRUE(heard.startsWith(QStringLiteral("Part 1.\n2 of 4.\nKind of outcome and metric.\n")))
        << heard.toStdString();
    EXPECT_GT(heard.size(), 200);

    set({{"txtd", 0.5}, {"txtNT(2)", 10.0}, {"txtNC(2)", 10.0}, {"txtNT(1)", 20.0}, {"txtNC(1)", 20.0}});
    goTo(306);
    key(Qt::Key_Right, Qt::AltModifier);
    EXPECT_TRUE(isShown("frmOptimal"));
    key(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(guide().CurrentTip(), 308) << "the wizard does not take the keyboard";
    goTo(outcomeFrame);
    messages.scripted.queue(Answer::OK);
    auto& binary = *panel("frmTips").findChild<QWidget*>(QStringLiteral("frmTips.optdatatype(2)"));
    binary.setFocus();
    key(Qt::Key_Space);
    EXPECT_TRUE(study().isBinary());
    EXPECT_TRUE(
        panel("frmTips").findChild<QWidget*>(QStringLiteral("frmTips.optBinaryType(3)"))->isVisible());
    key(Qt::Key_Escape);
    EXPECT_FALSE(isShown("frmTips"));
    EXPECT_TRUE(outlined().isEmpty());
    tool("gfrmTips");
    EXPECT_EQ(guide().CurrentTip(), outcomeFrame) << "it goes on where it was";
}

}  // namespace
}  // namespace lorvane::desktop
