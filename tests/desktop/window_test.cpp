// The windows as such: floating ones open, close and make way; the end asks; nothing is cut off or pale.
#include <QLabel>
#include <QScrollArea>

#include "desktop/desk_application.h"
#include "desktop/effect_strip.h"
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
    static bool isWhole(const QWidget& widget) {
        return widget.visibleRegion().boundingRect() == widget.rect();
    }

    /// Visible widgets that stand out of their parent where nothing scrolls, and labels too small for their
    /// words.
    std::string cutOff() const {
        std::string found;
        for (const QWidget* widget : window.findChildren<QWidget*>()) {
            if (!widget->isVisible() || widget->isWindow())
                continue;
            const auto* area = qobject_cast<QScrollArea*>(widget->parentWidget()->parentWidget());
            const auto* label = qobject_cast<const QLabel*>(widget);
            const bool scrolls = area != nullptr && area->widget() == widget;
            if (!scrolls && !widget->parentWidget()->rect().contains(widget->geometry()))
                found.append(widget->metaObject()->className()).append("; ");
            if (label != nullptr && !label->wordWrap() && label->sizeHint().width() > label->width())
                found.append(label->text().toStdString()).append("; ");
        }
        QRegion taken;
        for (const ValueCell* cell : window.findChild<LevelTable*>()->findChildren<ValueCell*>()) {
            if (cell->isVisible() && taken.intersects(cell->geometry()))
                found.append(cell->accessibleName().toStdString()).append("; ");
            taken += cell->isVisible() ? cell->geometry() : QRect();
        }
        return found;
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

TEST_F(Look, NothingIsCutOffOnSmallScreens) {
    for (const double levels : {2.0, 3.0, 4.0}) {
        for (const QSize size : {QSize(1920, 1080), QSize(1280, 720), QSize(1280, 650), QSize(1000, 600)}) {
            set({{"NumLevels", levels}, {"RandomizedLevel", 2.0}});
            window.resize(size);
            settle();
            const std::string where =
                QStringLiteral("%1, height %2").arg(levels).arg(size.height()).toStdString();
            EXPECT_EQ(window.size(), size) << where << ", is " << window.height();
            EXPECT_EQ(cutOff(), "") << where;
            for (const FigureCard* card : window.findChildren<FigureCard*>())
                EXPECT_TRUE(isWhole(*card) && card->height() >= 88) << where;
            if (size.width() >= 1280) {
                EXPECT_TRUE(isWhole(*window.findChild<LevelTable*>())) << where;
                EXPECT_TRUE(isWhole(*window.findChild<EffectStrip*>())) << where;
            }
        }
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
