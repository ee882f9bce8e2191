// What stands in the panels: at every width of a dock, with any names, in and out of trouble.
#include <QLabel>
#include <QMenu>
#include <QStatusBar>
#include <QVBoxLayout>

#include "desktop/dispersion_table.h"
#include "desktop/kit/message_card.h"
#include "desktop/kit/push_button.h"
#include "desktop/kit/rest_sheet.h"
#include "desktop/kit/span_plot.h"
#include "desktop_bench.h"

namespace lorvane::desktop {
namespace {

class PanelContent : public DesktopBench {
protected:
    /// As wide inside as a dock makes it, and as high as it then asks to be.
    void showAt(const char* name, int inside) {
        PanelDock& dock = this->dock(name);
        dock.setFloating(true);
        settle();
        ToolPanel& shown = panel(name);
        const QMargins margins = shown.content()->contentsMargins();
        const int width = inside + margins.left() + margins.right();
        EXPECT_LE(shown.content()->minimumSize().width(), 324 + margins.left() + margins.right());
        const int outside = width + 2 * dock.frameWidth();
        dock.setMinimumSize(0, 0);
        for (int i = 0; i < 2; ++i) {
            dock.resize(outside, dock.heightFor(outside));
            settle();
        }
        EXPECT_LE(width - shown.width(), 14) << name << ": at most a scroll bar";
    }

    /// Visible widgets that stand out of their parent, lines without the height they need, and values that
    /// cover one another.
    static std::string cutOff(const QWidget& shown) {
        std::string found;
        QRegion taken;
        for (const QWidget* widget : shown.findChildren<QWidget*>()) {
            if (!widget->isVisible() || qobject_cast<const OutlineOverlay*>(widget))
                continue;
            const auto* label = qobject_cast<const QLabel*>(widget);
            const bool tooLow =
                label && label->wordWrap() && label->height() < label->heightForWidth(label->width());
            if (tooLow || !widget->parentWidget()->rect().contains(widget->geometry()))
                found.append(widget->metaObject()->className()).append("; ");
            if (!qobject_cast<DispersionTable*>(widget->parentWidget()))
                continue;
            if (taken.intersects(widget->geometry()))
                found.append(widget->accessibleName().toStdString()).append(" covers; ");
            taken += widget->geometry();
        }
        return found;
    }

    DispersionTable& table(const char* name) { return *panel(name).findChild<DispersionTable*>(); }
    QList<ValueCell*> fields(const char* name) { return changeableCells(table(name)); }
    const QMenu* menuOfRightClick(QWidget& widget, const QPoint& place) {
        click(widget, widget.mapTo(widget.window(), place), Qt::RightButton);
        auto* shown = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (shown != nullptr)
            shown->close();
        return shown;
    }
};

TEST_F(PanelContent, FitsEveryWidthOfADock) {
    const std::string name(60, 'W');
    const std::string hebrew =
        "\u05d1\u05ea\u05d9 \u05e1\u05e4\u05e8 \u05d1\u05e2\u05d9\u05e8 \u05d4\u05d2\u05d3\u05d5\u05dc\u05d4";
    for (const double levels : {2.0, 3.0, 4.0}) {
        for (const double metric : {1.0, 2.0, 3.0}) {
            set({{"DataType", metric == 2 ? 2.0 : 1.0},
                 {"NumLevels", levels},
                 {"RandomizedLevel", 1.0},
                 {"ICC Metric", 1.0},
                 {"Tau-sq Metric", metric},
                 {"txtName(2)", name},
                 {"txtName(1)", hebrew},
                 {"txtGroupName(2)", name}});
            for (const char* opener :
                 {"gfrmDisplayICC", "gfrmDisplayTauSq", "gfrmCounts", "gfrmDetails", "gfrmMDES"}) {
                const char* const shown = opener + 1;
                if (!isShown(shown))
                    tool(opener);
                if (!isShown(shown))
                    continue;  // counts of means
                desk.click("pnlNT(1)");
                desk.click("frmMDES.cmdComputeMDES");
                for (const int inside : {324, 364, 444}) {
                    showAt(shown, inside);
                    EXPECT_EQ(cutOff(panel(shown)), "")
                        << shown << ' ' << inside << ", levels " << levels << ", " << metric;
                }
            }
            desk.click("frmMDES.cmdMDESClose");
        }
    }
}

TEST_F(PanelContent, IsAsHighAsItsRowsAndTellsAFaultInPlaceOfThePicture) {
    openFourLevels();
    set({{"ICC Metric", 1.0}});
    tool("gfrmDisplayICC");
    const int four = dock("frmDisplayICC").heightFor(400);
    set({{"NumLevels", 2.0}});
    settle();
    EXPECT_EQ(dock("frmDisplayICC").heightFor(400), four - 2 * (39 + 32));
    set({{"NumLevels", 3.0}, {"txtICC(2)", 0.41}, {"txtICC(3)", 0.62}});
    settle();
    const auto& overlay = *table("frmDisplayICC").findChild<OutlineOverlay*>();
    const QList<ValueCell*> shown = fields("frmDisplayICC");
    ASSERT_EQ(shown.size(), 3);
    ASSERT_EQ(overlay.outlines().size(), 1) << "one around both";
    EXPECT_EQ(overlay.outlines()[0].around, shown[0]->geometry() | shown[1]->geometry());
    EXPECT_TRUE(shown[0]->hasProblem() && shown[1]->hasProblem() && !shown[2]->hasProblem());
    EXPECT_FALSE(panel("frmDisplayICC").findChild<SpanPlot*>()->isVisible());
    EXPECT_TRUE(
        panel("frmDisplayICC").findChild<MessageCard*>()->text().contains(QLatin1String("0 to 0.99")));
    set({{"txtICC(2)", 0.1}, {"txtICC(3)", 0.2}});
    EXPECT_TRUE(overlay.outlines().isEmpty());
    EXPECT_TRUE(panel("frmDisplayICC").findChild<SpanPlot*>()->isVisible());
    EXPECT_FALSE(panel("frmDisplayICC").findChild<MessageCard*>()->isVisible());
}

TEST_F(PanelContent, FieldsActLikeThoseOfTheStudyScreen) {
    set({{"ICC Metric", 1.0}, {"txtICC(2)", 0.1}});
    tool("gfrmDisplayICC");
    ValueCell& icc = *fields("frmDisplayICC").first();
    click(icc, arrow(icc, 1));
    EXPECT_DOUBLE_EQ(study().txtICC(2), 0.11);
    EXPECT_EQ(icc.text(), QLatin1String("0.11"));
    QString status;
    for (const QLabel* label : window.statusBar()->findChildren<QLabel*>())
        status += label->text();
    EXPECT_TRUE(status.startsWith(icc.accessibleName()) && status.contains(QLatin1String("Up and Down")))
        << status.toStdString();
    EXPECT_EQ(menuOfRightClick(icc, {20, 12}), window.menus().menu("popICC"));
    EXPECT_EQ(menuOfRightClick(table("frmDisplayICC"), {20, 10}), window.menus().menu("popICCView"));
    set({{"ICC Metric", 2.0}});
    EXPECT_FALSE(icc.isVisible()) << "it follows from the spans";
    EXPECT_EQ(fields("frmDisplayICC").size(), 2);
}

TEST_F(PanelContent, DetailsCloseThemselvesWhereTheyFloat) {
    tool("gfrmDetails");
    dock("frmDetails").setFloating(true);
    desk.click("pnlNT(4)");
    settle();
    ToolPanel& details = panel("frmDetails");
    auto* close = details.findChild<PushButton*>();
    EXPECT_EQ(details.findChild<RestSheet*>()->size(), details.size()) << "yellow from end to end";
    desk.click("pnlNT(1)");
    settle();
    EXPECT_FALSE(details.findChild<RestSheet*>()->isVisible());
    dock("frmDetails").setFloating(false);
    settle();
    EXPECT_FALSE(close->isVisibleTo(&details)) << "a dock has a sign of its own";
    dock("frmDetails").setFloating(true);
    settle();
    ASSERT_TRUE(close->isVisible());
    click(*close, inside(*close));
    EXPECT_FALSE(isShown("frmDetails"));
}

}  // namespace
}  // namespace lorvane::desktop
