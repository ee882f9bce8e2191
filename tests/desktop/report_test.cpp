// The report in its window, by mouse and by keys.
#include <QDialog>
#include <QLineEdit>
#include <QScrollBar>
#include <QTimer>
#include <QWheelEvent>
#include <set>

#include "desktop/desk_message_boxes.h"
#include "desktop/kit/stressed_label.h"
#include "desktop/report_pages.h"
#include "desktop_bench.h"

namespace lorvane::desktop {
namespace {

class ReportWindow : public DesktopBench {
protected:
    void SetUp() override {
        DesktopBench::SetUp();
        set({{"ICC Metric", 1.0}, {"txtd", 0.4}, {"txtICC(2)", 0.05}, {"txtCostT(2)", 100.0}});
        key(Qt::Key_P, Qt::ControlModifier);
        ASSERT_TRUE(isShown("frmPrint") && pages().hasFocus());
        panel("frmPrint").resize(1080, 1000);
        settle();
        ASSERT_GE(last(), 3);
    }

    ReportPages& pages() { return *panel("frmPrint").findChild<ReportPages*>(); }
    QLineEdit& field() { return *panel("frmPrint").findChild<QLineEdit*>(); }
    const ReportView& view() { return application.report().view(); }
    int last() { return view().pages; }
    std::string caption() { return panel("frmPrint").findChild<StressedLabel*>()->text().toStdString(); }
    std::string captionOf(int page) {
        return "Page " + std::to_string(page) + " of " + std::to_string(last());
    }
    bool isAtTop(int page) { return std::abs(pages().pageRect(page).top() - 24) < 2; }
    void turn(int steps, Qt::KeyboardModifiers modifiers = {}) {
        QWheelEvent event({400, 400}, {400, 400}, {}, {0, 120 * steps}, Qt::NoButton, modifiers,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(pages().viewport(), &event);
        settle();
    }
};

TEST_F(ReportWindow, TheCaptionFollowsWhatIsScrolledTo) {
    EXPECT_EQ(caption(), captionOf(1));
    turn(-6);
    EXPECT_LT(pages().pageRect(1).top(), -200);
    EXPECT_EQ(caption(), captionOf(1)) << "it still covers the upper half";
    key(Qt::Key_Space);
    EXPECT_EQ(caption(), captionOf(2));
    key(Qt::Key_PageUp);
    EXPECT_EQ(caption(), captionOf(1));
    key(Qt::Key_End);
    EXPECT_EQ(caption(), captionOf(last()));
    key(Qt::Key_Home);
    EXPECT_EQ(caption(), captionOf(1));
    EXPECT_TRUE(isAtTop(1));
}

TEST_F(ReportWindow, JumpsToTheTopOfPages) {
    key(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_TRUE(isAtTop(2));
    turn(-2);
    tool("Top of page");
    EXPECT_TRUE(isAtTop(2)) << "of the same page";
    // Pages that lie at the end of the view are jumped to all the same.
    for (int i = 0; i < 5; ++i)
        turn(-1, Qt::ControlModifier);
    EXPECT_EQ(view().percent, 50);
    EXPECT_TRUE(isAtTop(2)) << "nothing moved";
    key(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(caption(), captionOf(last()));
    for (int i = 0; i < 5; ++i)
        turn(1, Qt::ControlModifier);
    EXPECT_TRUE(isAtTop(last())) << "as soon as there is room below it";
    key(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(caption(), captionOf(last() - 1));
}

TEST_F(ReportWindow, KeepsThePlaceWhileSizesChange) {
    tool("Next");
    turn(-8);
    const auto place = [this] {
        const QRect page = pages().pageRect(2);
        return static_cast<double>(-page.top()) / page.height();
    };
    const double before = place();
    ASSERT_GT(before, 0.3);
    const auto expectPlace = [&](const char* why) {
        EXPECT_NEAR(place(), before, 0.002) << why;
        EXPECT_EQ(view().CurrentPage, 2) << why;
    };
    for (int i = 0; i < 3; ++i)
        tool("Zoom in");
    EXPECT_EQ(pages().pageRect(2).width(), 1224) << "8.5 inches at 96 dots, larger by a half";
    expectPlace("larger");
    tool("Page width");
    panel("frmPrint").resize(700, 600);
    settle();
    EXPECT_NEAR(pages().pageRect(2).width(), 638, 2) << "the width without margins and scroll bar";
    expectPlace("narrower");
    tool("Paper UK");
    tool("Font Times Roman");
    expectPlace("another report");
    EXPECT_TRUE(isShown("frmPrint"));
    tool("Fit page");
    EXPECT_TRUE(pages().viewport()->rect().contains(pages().pageRect(2)));
    key(Qt::Key_PageUp);
    EXPECT_TRUE(isAtTop(1)) << "page by page";
}

TEST_F(ReportWindow, FindsByKeysAlone) {
    key(Qt::Key_F, Qt::ControlModifier);
    ASSERT_TRUE(field().hasFocus());
    type("cost");
    settle();
    const std::size_t count = view().matches.size();
    ASSERT_GT(count, 3U);
    std::set<int> pagesSeen;
    for (std::size_t match = 0; match < count; ++match, key(Qt::Key_Return)) {
        EXPECT_EQ(view().match, match);
        EXPECT_TRUE(pages().viewport()->rect().contains(pages().matchRect())) << match;
        pagesSeen.insert(view().CurrentPage);
    }
    EXPECT_GT(pagesSeen.size(), 1U) << "the caption follows";
    EXPECT_EQ(view().match, 0U) << "round to the first";
    key(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(view().match, count - 1);
    pages().setFocus();
    key(Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(field().hasFocus());
    EXPECT_EQ(field().selectedText(), QLatin1String("cost"));
    key(Qt::Key_Escape);
    EXPECT_TRUE(isShown("frmPrint") && pages().hasFocus() && !field().isVisible());
    key(Qt::Key_Escape);
    EXPECT_FALSE(isShown("frmPrint"));
}

TEST_F(ReportWindow, ClosesWithItsStudyAndComesBackWhereItWas) {
    panel("frmPrint").setGeometry(140, 90, 800, 640);
    tool("Last");
    set({{"txtd", 0.5}});
    EXPECT_TRUE(isShown("frmPrint")) << "a picture of the study as it was";
    messages.scripted.queue(Answer::OK);
    tool("Clear");
    EXPECT_FALSE(isShown("frmPrint"));
    set({{"txtd", 0.3}});
    tool("gfrmPrint");
    EXPECT_EQ(panel("frmPrint").geometry(), QRect(140, 90, 800, 640));
    EXPECT_TRUE(isAtTop(1)) << "another report";
}

// The main screen has these keys too.
TEST_F(ReportWindow, TakesItsKeysForItself) {
    key(Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(press.asked, 1);
    EXPECT_EQ(application.report().revision(), 1) << "not the report anew";
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(application.report().pnlStatus().Caption, "The page has been copied.");
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(study().txtCostT(2), 0) << "the others stay those of the main screen";
}

TEST_F(ReportWindow, MessagesComeUpOverTheWindowInUse) {
    DeskMessageBoxes boxes;
    boxes.setOwner(&window);
    const auto parentOfMessage = [&] {
        QWidget* parent = nullptr;
        QTimer::singleShot(0, &window, [&parent] {
            auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            parent = box->parentWidget();
            box->reject();
        });
        boxes.show({"Saved", "Saved.", {Answer::OK}});
        settle();
        return parent;
    };
    window.activateWindow();
    settle();
    EXPECT_EQ(parentOfMessage(), &window);
    panel("frmPrint").activateWindow();
    settle();
    EXPECT_EQ(parentOfMessage(), &panel("frmPrint"));
    panel("frmPrint").hide();
    EXPECT_EQ(parentOfMessage(), &window) << "the other one made way";
}

using ReportLook = ReportWindow;

// A picture of the page at another size would have pixels in pairs.
TEST_F(ReportLook, LettersAreAsSharpAsTheScreen) {
    const QPixmap shown = pages().viewport()->grab();
    const int ratio = static_cast<int>(shown.devicePixelRatio());
    const QImage image = shown.toImage();
    int split = 0;
    for (int y = 0; y + 1 < image.height(); y += 2) {
        for (int x = 0; x + 1 < image.width(); x += 2)
            split += image.pixel(x, y) != image.pixel(x + 1, y);
    }
    EXPECT_EQ(image.width(), ratio * pages().viewport()->width());
    EXPECT_GT(split, 5000);
}

}  // namespace
}  // namespace lorvane::desktop
