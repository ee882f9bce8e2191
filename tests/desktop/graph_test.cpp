// The graph in its window, by mouse and by keys.
#include <QClipboard>
#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QTableView>

#include "desktop/kit/tool_panel.h"
#include "desktop_bench.h"
#include "qt/chart_plot.h"

namespace lorvane::desktop {
namespace {

class GraphWindow : public DesktopBench {
protected:
    void SetUp() override {
        DesktopBench::SetUp();
        set({{"ICC Metric", 1.0}, {"txtd", 0.4}, {"txtICC(2)", 0.05}, {"txtCostT(2)", 100.0}});
    }

    ChartPlot& plot() { return *panel("xPlot").findChild<ChartPlot*>(); }
    int point() { return application.graph().state().CurrentPoint.Point; }
    void clickPoint(int point) {
        const QPoint place = plot().placeOf(1, point)->toPoint();
        click(plot(), plot().mapTo(&panel("xPlot"), place));
    }
    std::string status() { return application.graph().pnlStatus().Caption; }
};

TEST_F(GraphWindow, DrawsWalksAndClosesByKeysAlone) {
    key(Qt::Key_G, Qt::ControlModifier);
    ASSERT_TRUE(isShown("xPlot") && plot().hasFocus());
    for (const Qt::Key arrow : {Qt::Key_Right, Qt::Key_Right, Qt::Key_Left})
        key(arrow);
    EXPECT_EQ(point(), 2);
    EXPECT_TRUE(plot().accessibleDescription().contains(QLatin1String("= 3 x 2")));
    key(Qt::Key_R, Qt::ControlModifier);
    ASSERT_TRUE(isShown("frmXVar"));
    key(Qt::Key_Down);
    key(Qt::Key_Tab);
    type("30");
    key(Qt::Key_Tab);
    type("20");
    key(Qt::Key_Return);
    EXPECT_FALSE(isShown("frmXVar"));
    EXPECT_EQ(application.graph().axis().Points, 11) << "from 20 to 30, whichever came first";
    panel("xPlot").activateWindow();
    settle();
    key(Qt::Key_T, Qt::ControlModifier);
    EXPECT_TRUE(isShown("frmTable"));
    panel("xPlot").activateWindow();
    settle();
    key(Qt::Key_Escape);
    EXPECT_FALSE(isShown("xPlot") || isShown("frmTable"));
    tool("Graph");
    EXPECT_TRUE(isShown("xPlot") && isShown("frmTable")) << "the table comes back with its graph";
}

TEST_F(GraphWindow, TheMouseMarksAPointHereAndInTheTable) {
    tool("Graph");
    tool("Show table");
    clickPoint(9);
    EXPECT_EQ(point(), 9);
    const auto* table = panel("frmTable").findChild<QTableView*>();
    EXPECT_EQ(table->currentIndex(), table->model()->index(4, 8));
    EXPECT_TRUE(table->isRowHidden(14) && !table->isRowHidden(4)) << "costs are not asked for";
    tool("Show cost in table");
    EXPECT_FALSE(table->isRowHidden(14));
}

TEST_F(GraphWindow, TellsThatTheStudyHasChanged) {
    tool("Graph");
    EXPECT_EQ(status(), "");
    set({{"txtd", 0.5}});
    EXPECT_EQ(status(), "The study has changed; F5 draws the graph anew.");
    const ChartContent before = application.graph().chart();
    tool("Undo");
    EXPECT_EQ(status(), "") << "it is the study of the graph again";
    tool("Redo");
    tool("Colors 3");
    EXPECT_EQ(application.graph().chart().footer, before.footer) << "numbers and words stay together";
    panel("xPlot").activateWindow();
    settle();
    key(Qt::Key_F5);
    EXPECT_EQ(status(), "");
    EXPECT_NE(application.graph().chart().groups, before.groups);
    messages.scripted.queue(Answer::OK);
    tool("Clear");
    EXPECT_FALSE(isShown("xPlot")) << "a graph of another study";
}

// Nothing is lost of a text that is typed while other things happen.
TEST_F(GraphWindow, KeepsTheLineOfTheUser) {
    tool("Graph");
    auto* line = panel("xPlot").findChild<QLineEdit*>(QStringLiteral("xPlot.txtHeader(2)"));
    line->setFocus();
    type("Ours & <b>");
    tool("Show cost");
    EXPECT_EQ(line->text(), QLatin1String("Ours & <b>"));
    EXPECT_EQ(application.graph().chart().header.at(1), "Ours & <b>");
    tool("Copy header and footer to clipboard");
    EXPECT_TRUE(QGuiApplication::clipboard()->text().contains(QLatin1String("\nOurs & <b>\nTwo-level")));
    tool("Copy table to clipboard");
    EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith(QLatin1String("Power as a function of")));
    tool("Header show");
    EXPECT_FALSE(line->isVisible());
}

// A graph that takes its time tells how far it is, and Escape leaves the one before it.
TEST_F(GraphWindow, EscapeStopsALongComputation) {
    tool("Graph");
    const ChartContent before = application.graph().chart();
    progress.pause = 40;
    std::string told;
    progress.inner.setRedraw([&] {
        told = status();
        QCoreApplication::postEvent(panel("xPlot").windowHandle(),
                                    new QKeyEvent(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier));
    });
    tool("X Std difference, d");
    EXPECT_TRUE(told.ends_with("of the graph is computed. Esc stops.")) << told;
    EXPECT_EQ(status(), "The computation was stopped; the graph is as it was before.");
    EXPECT_EQ(application.graph().chart(), before);
    EXPECT_TRUE(isShown("xPlot"));
}

}  // namespace
}  // namespace lorvane::desktop
