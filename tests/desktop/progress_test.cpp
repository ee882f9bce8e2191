// What a search lets through while it runs, and what is as before when it is over.
#include "desktop/desk_progress.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QTest>
#include <QThread>
#include <QTimer>
#include <set>

namespace lorvane::desktop {
namespace {

/// Remembers which kinds of events reached it.
class Witness : public QWidget {
public:
    std::set<QEvent::Type> seen;

protected:
    bool event(QEvent* event) override {
        seen.insert(event->type());
        return QWidget::event(event);
    }
};

class Search : public testing::Test {
protected:
    void SetUp() override {
        widget.setFocusPolicy(Qt::StrongFocus);
        widget.setAcceptDrops(true);
        widget.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&widget));
    }

    /// Works for some time and tells whether it was let.
    bool work(int milliseconds) {
        QElapsedTimer clock;
        clock.start();
        while (clock.elapsed() < milliseconds) {
            QThread::msleep(2);
            if (!progress.goOn())
                return false;
        }
        return true;
    }
    template <typename Event, typename... More>
    void post(More&&... more) {
        QCoreApplication::postEvent(&widget, new Event(std::forward<More>(more)...));
    }
    void postKey(Qt::Key key) { post<QKeyEvent>(QEvent::KeyPress, key, Qt::NoModifier); }
    void postEdits() {
        const QPointF at(20, 20);
        post<QMouseEvent>(QEvent::MouseButtonPress, at, at, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        post<QWheelEvent>(at, at, QPoint(), QPoint(0, 120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                          false);
        post<QDragEnterEvent>(at.toPoint(), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
        postKey(Qt::Key_A);
        post<QCloseEvent>();
    }
    int edits() const {
        int count = 0;
        for (const QEvent::Type type :
             {QEvent::MouseButtonPress, QEvent::Wheel, QEvent::DragEnter, QEvent::KeyPress, QEvent::Close})
            count += widget.seen.contains(type);
        return count;
    }
    static bool isWaiting() { return QGuiApplication::overrideCursor() != nullptr; }

    QMimeData dragged;
    Witness widget;
    DeskProgress progress;
};

TEST_F(Search, AShortOneTakesNoEvents) {
    int redrawn = 0;
    progress.setRedraw([&] { ++redrawn; });
    widget.seen.clear();
    postKey(Qt::Key_Escape);
    EXPECT_TRUE(work(15));
    EXPECT_EQ(redrawn, 0);
    EXPECT_EQ(edits(), 0);
    QCoreApplication::processEvents();
    EXPECT_EQ(edits(), 1) << "it comes after the search";
    EXPECT_TRUE(work(60)) << "and stops no later one";
}

TEST_F(Search, ALongOneRepaintsAndHoldsEditsOff) {
    int redrawn = 0;
    int timeouts = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] { ++timeouts; });
    timer.start(1);
    progress.setRedraw([&] {
        ++redrawn;
        widget.update();
        EXPECT_TRUE(progress.goOn()) << "asked from within";
    });
    postEdits();
    widget.seen.clear();
    EXPECT_TRUE(work(150));
    EXPECT_GE(redrawn, 2);
    EXPECT_LE(redrawn, 5) << "not more often than every 30 ms";
    EXPECT_TRUE(widget.seen.contains(QEvent::Paint));
    EXPECT_EQ(edits(), 0);
    EXPECT_EQ(timeouts, 0);
    EXPECT_FALSE(isWaiting());
    EXPECT_TRUE(work(120));
    EXPECT_TRUE(isWaiting());
    QTest::qWait(10);
    EXPECT_FALSE(isWaiting()) << "over when the program takes events by itself";
    EXPECT_GT(timeouts, 0);
    postEdits();
    QCoreApplication::processEvents();
    EXPECT_EQ(edits(), 5);
}

TEST_F(Search, EscapeStopsItUntilItIsOver) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::ShortcutOverride}) {
        post<QKeyEvent>(type, Qt::Key_Escape, Qt::NoModifier);
        EXPECT_FALSE(work(200));
        EXPECT_FALSE(progress.goOn());
        progress.finish();
        EXPECT_TRUE(work(60)) << "the next search";
        QTest::qWait(10);
    }
}

// What gets the keyboard during a search is told so after it.
TEST_F(Search, AFocusIsToldAfterwards) {
    Witness other;
    other.setParent(&widget);
    other.setFocusPolicy(Qt::StrongFocus);
    other.show();
    QMetaObject::invokeMethod(
        &other, [&] { other.setFocus(); }, Qt::QueuedConnection);
    EXPECT_TRUE(work(60));
    EXPECT_TRUE(other.hasFocus());
    EXPECT_FALSE(other.seen.contains(QEvent::FocusIn));
    QTest::qWait(10);
    EXPECT_TRUE(other.seen.contains(QEvent::FocusIn));
}

}  // namespace
}  // namespace lorvane::desktop
