// The cell by mouse, key, wheel and screen reader, and how often it paints.
#include "desktop/kit/value_cell.h"

#include <QContextMenuEvent>
#include <QWheelEvent>
#include <functional>
#include <memory>
#include <string_view>

#include "kit_bench.h"

namespace lorvane::desktop {
namespace {

using Kind = ValueCell::Kind;

/// A cell with all it says.
struct WatchedCell {
    explicit WatchedCell(QWidget& parent, Kind kind = Kind::Spin) : cell(kind, &parent) {
        cell.setGeometry(10, 10, 94, 28);
        cell.setText(QStringLiteral("0.10"));
        cell.show();
    }

    QPoint arrow(int direction) const { return {cell.width() - 12, cell.height() * (2 - direction) / 4}; }
    void press(int direction, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mousePress(&cell, button, {}, arrow(direction));
    }
    void release(Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseRelease(&cell, button, {}, QPoint(20, 12));
    }
    bool wheel(Qt::KeyboardModifiers modifiers, int angle) {
        const QPointF place(5, 5);
        QWheelEvent event(place, cell.mapToGlobal(place), {}, {0, angle}, Qt::NoButton, modifiers,
                          Qt::NoScrollPhase, false);
        event.ignore();
        QCoreApplication::sendEvent(&cell, &event);
        return event.isAccepted();
    }
    void key(QEvent::Type type, bool repeated, Qt::KeyboardModifiers modifiers = {}) {
        QKeyEvent event(type, Qt::Key_Up, modifiers, {}, repeated);
        QCoreApplication::sendEvent(&cell, &event);
    }
    /// The directions of all steps since the last look.
    QList<int> takeSteps() {
        QList<int> result;
        for (const QList<QVariant>& step : stepped)
            result.push_back(step[0].toInt());
        stepped.clear();
        return result;
    }
    qsizetype takeFinished() {
        const qsizetype count = finished.count();
        finished.clear();
        return count;
    }

    ValueCell cell;
    QSignalSpy stepped{&cell, &ValueCell::stepped};
    QSignalSpy finished{&cell, &ValueCell::stepFinished};
    QSignalSpy activated{&cell, &ValueCell::activated};
    QSignalSpy menu{&cell, &ValueCell::contextMenuRequested};
};

using Steps = QList<int>;
using Cell = KitBench;

TEST_F(Cell, ArrowsStepOfChangeableKindsOnly) {
    for (const Kind kind : {Kind::Spin, Kind::Linked, Kind::ReadOnly, Kind::Choice, Kind::FixedChoice}) {
        WatchedCell watched(window, kind);
        const bool changeable = kind == Kind::Spin || kind == Kind::Choice;
        for (const int direction : {1, -1}) {
            watched.press(direction);
            EXPECT_EQ(watched.finished.count(), 0);
            watched.release();
            watched.press(direction, Qt::RightButton);
            watched.release(Qt::RightButton);
            EXPECT_EQ(watched.takeSteps(), changeable ? Steps{direction} : Steps{}) << static_cast<int>(kind);
            EXPECT_EQ(watched.takeFinished(), changeable);
        }
        QTest::mouseClick(&watched.cell, Qt::LeftButton, {}, {20, 12});
        EXPECT_EQ(watched.takeSteps(), Steps{});
    }
}

TEST_F(Cell, AHeldArrowRepeatsUntilReleased) {
    WatchedCell watched(window);
    watched.press(-1);
    QTest::qWait(250);
    EXPECT_EQ(watched.stepped.count(), 1) << "a click is not a hold";
    EXPECT_TRUE(QTest::qWaitFor([&] { return watched.stepped.count() >= 4; }, 1500));
    EXPECT_EQ(watched.finished.count(), 0);
    watched.release();
    EXPECT_EQ(watched.takeFinished(), 1);
    const Steps steps = watched.takeSteps();
    EXPECT_EQ(steps, Steps(steps.size(), -1));
    QTest::qWait(150);
    EXPECT_EQ(watched.takeSteps(), Steps{});
}

TEST_F(Cell, WhateverTakesTheCellAwayEndsTheHold) {
    const std::vector<std::pair<const char*, std::function<void(ValueCell&)>>> ends = {
        {"disabled", [](ValueCell& cell) { cell.setEnabled(false); }},
        {"window disabled", [](ValueCell& cell) { cell.parentWidget()->setEnabled(false); }},
        {"hidden", [](ValueCell& cell) { cell.hide(); }},
        {"without focus", [](ValueCell& cell) { cell.clearFocus(); }},
        {"linked", [](ValueCell& cell) { cell.setKind(Kind::Linked); }},
    };
    std::vector<std::unique_ptr<WatchedCell>> held;
    for (const auto& [name, end] : ends) {
        WatchedCell& watched = *held.emplace_back(std::make_unique<WatchedCell>(window));
        // The loss of the focus must not hide that the others end the hold too.
        if (std::string_view(name) == "without focus")
            watched.cell.setFocus();
        else
            watched.cell.setFocusPolicy(Qt::NoFocus);
        watched.press(1);
        EXPECT_EQ(watched.finished.count(), 0) << name;
        end(watched.cell);
        EXPECT_EQ(watched.finished.count(), 1) << name;
        window.setEnabled(true);
        watched.cell.setEnabled(true);
    }
    QTest::qWait(480);
    for (std::size_t i = 0; i < ends.size(); ++i) {
        EXPECT_EQ(held[i]->stepped.count(), 1) << ends[i].first;
        held[i]->release();
        EXPECT_EQ(held[i]->finished.count(), 1) << ends[i].first;
    }
}

// What a step leads to may take the cell away while the arrow is still being pressed.
TEST_F(Cell, AStepThatDisablesTheCellIsTheLast) {
    WatchedCell watched(window);
    QObject::connect(&watched.cell, &ValueCell::stepped, &watched.cell,
                     [&] { watched.cell.setEnabled(false); });
    watched.press(1);
    EXPECT_EQ(watched.finished.count(), 1);
    watched.cell.setEnabled(true);
    QTest::qWait(480);
    EXPECT_EQ(watched.takeSteps(), Steps{1});
    watched.release();
    EXPECT_EQ(watched.finished.count(), 1);
}

TEST_F(Cell, KeysStepAndActivate) {
    struct Case {
        Kind kind;
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        Steps steps;
        int activated;
    };
    const Case cases[] = {
        {Kind::Spin, Qt::Key_Up, {}, {1}, 0},
        {Kind::Spin, Qt::Key_Down, Qt::KeypadModifier, {-1}, 0},
        {Kind::Choice, Qt::Key_Down, {}, {-1}, 0},
        {Kind::Spin, Qt::Key_Up, Qt::ControlModifier, {}, 0},
        {Kind::Spin, Qt::Key_Down, Qt::ShiftModifier, {}, 0},
        {Kind::Spin, Qt::Key_Left, {}, {}, 0},
        {Kind::Linked, Qt::Key_Up, {}, {}, 0},
        {Kind::ReadOnly, Qt::Key_Down, {}, {}, 0},
        {Kind::Spin, Qt::Key_Return, {}, {}, 1},
        {Kind::Linked, Qt::Key_Enter, Qt::KeypadModifier, {}, 1},
    };
    for (const Case& expected : cases) {
        WatchedCell watched(window, expected.kind);
        QTest::keyClick(&watched.cell, expected.key, expected.modifiers);
        EXPECT_EQ(watched.takeSteps(), expected.steps) << expected.key << ' ' << expected.modifiers;
        EXPECT_EQ(watched.activated.count(), expected.activated) << expected.key;
        EXPECT_EQ(watched.takeFinished(), static_cast<qsizetype>(expected.steps.size())) << expected.key;
    }
}

TEST_F(Cell, AHeldKeyFinishesOnceAtItsRelease) {
    for (const Qt::KeyboardModifiers atRelease :
         {Qt::KeyboardModifiers(), Qt::KeyboardModifiers(Qt::ControlModifier)}) {
        WatchedCell watched(window);
        watched.key(QEvent::KeyPress, false);
        watched.key(QEvent::KeyRelease, true);
        watched.key(QEvent::KeyPress, true);
        EXPECT_EQ(watched.finished.count(), 0);
        watched.key(QEvent::KeyRelease, false, atRelease);
        EXPECT_EQ(watched.takeSteps(), (Steps{1, 1}));
        EXPECT_EQ(watched.takeFinished(), 1) << "with modifiers " << atRelease;
    }
}

TEST_F(Cell, TheWheelStepsWithCtrlByWholeNotches) {
    struct Turn {
        Qt::KeyboardModifiers modifiers;
        int angle;
        Steps steps;
    };
    const Turn turns[] = {
        {{}, 120, {}},
        {Qt::ShiftModifier, -120, {}},
        {Qt::ControlModifier, 60, {}},
        {Qt::ControlModifier, 60, {1}},
        {Qt::ControlModifier, -240, {-1, -1}},
    };
    WatchedCell watched(window);
    for (const Turn& turn : turns) {
        const bool taken = watched.wheel(turn.modifiers, turn.angle);
        EXPECT_EQ(taken, turn.modifiers == Qt::ControlModifier) << "left to what scrolls otherwise";
        EXPECT_EQ(watched.takeSteps(), turn.steps) << turn.angle;
        EXPECT_EQ(watched.takeFinished(), static_cast<qsizetype>(turn.steps.size())) << turn.angle;
    }
    WatchedCell linked(window, Kind::Linked);
    EXPECT_FALSE(linked.wheel(Qt::ControlModifier, 120));
    EXPECT_EQ(linked.takeSteps(), Steps{});
}

TEST_F(Cell, ADoubleClickActivatesExceptOnAnArrow) {
    WatchedCell watched(window);
    const auto doubleClick = [&](Qt::MouseButton button, const QPoint& place) {
        QTest::mouseClick(&watched.cell, button, {}, place);
        QTest::mouseDClick(&watched.cell, button, {}, place);
        watched.release(button);
    };
    doubleClick(Qt::LeftButton, {20, 12});
    EXPECT_EQ(watched.activated.count(), 1);
    EXPECT_EQ(watched.takeSteps(), Steps{});
    doubleClick(Qt::RightButton, {20, 12});
    doubleClick(Qt::LeftButton, watched.arrow(-1));
    EXPECT_EQ(watched.activated.count(), 1);
    EXPECT_EQ(watched.takeSteps(), (Steps{-1, -1}));
    EXPECT_EQ(watched.takeFinished(), 2);
}

TEST_F(Cell, TheMenuOpensAtThePointerOrBelowTheCell) {
    WatchedCell watched(window);
    const QPoint below = watched.cell.mapToGlobal(QPoint(0, watched.cell.height()));
    for (const auto& [reason, place] : {std::pair(QContextMenuEvent::Mouse, QPoint(77, 78)),
                                        std::pair(QContextMenuEvent::Keyboard, below)}) {
        QContextMenuEvent event(reason, {5, 5}, {77, 78});
        QCoreApplication::sendEvent(&watched.cell, &event);
        ASSERT_EQ(watched.menu.count(), 1);
        EXPECT_EQ(watched.menu.takeFirst()[0].toPoint(), place);
    }
}

TEST_F(Cell, TabStopsAndRolesFollowTheKind) {
    struct Case {
        Kind kind;
        bool tabStop;
        bool changeable;
        QAccessible::Role role;
    };
    const Case cases[] = {
        {Kind::Linked, true, false, QAccessible::SpinBox},
        {Kind::ReadOnly, false, false, QAccessible::StaticText},
        {Kind::Choice, true, true, QAccessible::ComboBox},
        {Kind::FixedChoice, false, false, QAccessible::StaticText},
        {Kind::Spin, true, true, QAccessible::SpinBox},
    };
    ValueCell changed(Kind::Spin, &window);
    for (const Case& expected : cases) {
        ValueCell made(expected.kind, &window);
        changed.setKind(expected.kind);
        for (ValueCell* cell : {&made, &changed}) {
            EXPECT_EQ(cell->focusPolicy() == Qt::StrongFocus, expected.tabStop);
            EXPECT_TRUE(cell->focusPolicy() & Qt::ClickFocus);
            EXPECT_EQ(cell->isChangeable(), expected.changeable);
            QAccessibleInterface& spoken = *QAccessible::queryAccessibleInterface(cell);
            EXPECT_EQ(spoken.role(), expected.role);
            EXPECT_EQ(bool(spoken.state().readOnly), !expected.changeable);
            const bool steps = spoken.actionInterface()->actionNames().contains(
                QAccessibleActionInterface::increaseAction());
            EXPECT_EQ(steps, expected.changeable);
        }
    }
}

TEST_F(Cell, AScreenReaderReadsStepsAndOpensIt) {
    WatchedCell watched(window);
    watched.cell.setAccessibleName(QStringLiteral("ICC of Schools"));
    QAccessibleInterface& spoken = *QAccessible::queryAccessibleInterface(&watched.cell);
    EXPECT_EQ(spoken.text(QAccessible::Name), QStringLiteral("ICC of Schools"));
    EXPECT_EQ(spoken.text(QAccessible::Value), QStringLiteral("0.10"));
    ASSERT_TRUE(spoken.textInterface());
    EXPECT_EQ(spoken.textInterface()->text(2, 4), QStringLiteral("10"));
    EXPECT_EQ(spoken.textInterface()->characterCount(), 4);
    EXPECT_FALSE(spoken.state().invalid);
    watched.cell.setProblem(ValueCell::Problem::Tinted);
    EXPECT_TRUE(spoken.state().invalid);
    for (const bool enabled : {true, false}) {
        watched.cell.setEnabled(enabled);
        watched.activated.clear();
        for (const QString& action :
             {QAccessibleActionInterface::increaseAction(), QAccessibleActionInterface::decreaseAction(),
              QAccessibleActionInterface::pressAction()})
            spoken.actionInterface()->doAction(action);
        EXPECT_EQ(watched.takeSteps(), enabled ? (Steps{1, -1}) : Steps{});
        EXPECT_EQ(watched.activated.count(), enabled);
    }
}

TEST_F(Cell, PaintsOnceForAChangeAndNotForNone) {
    WatchedCell watched(window);
    ValueCell& cell = watched.cell;
    const std::pair<const char*, std::function<void()>> changes[] = {
        {"text", [&] { cell.setText(QStringLiteral("0.11")); }},
        {"problem", [&] { cell.setProblem(ValueCell::Problem::Outlined); }},
        {"size", [&] { cell.setLarge(true); }},
        {"kind", [&] { cell.setKind(Kind::Choice); }},
        {"focus", [&] { cell.setFocus(); }},
        {"state", [&] { cell.setEnabled(false); }},
    };
    QImage before = painted(cell);
    for (const auto& [name, change] : changes) {
        EXPECT_EQ(paintsAfter(cell, change), 1) << name;
        EXPECT_NE(painted(cell), before) << name;
        before = painted(cell);
        EXPECT_EQ(paintsAfter(cell, change), 0) << name << " again";
    }
}

TEST_F(Cell, TheArrowUnderThePointerIsLit) {
    WatchedCell watched(window);
    QTest::mouseMove(window.windowHandle(), watched.cell.mapTo(&window, QPoint(20, 12)));
    settle();
    const QImage hovered = painted(watched.cell);
    QImage last = hovered;
    for (const int direction : {1, -1}) {
        const QPoint place = watched.cell.mapTo(&window, watched.arrow(direction));
        EXPECT_EQ(paintsAfter(watched.cell, [&] { QTest::mouseMove(window.windowHandle(), place); }), 1);
        EXPECT_NE(painted(watched.cell), last);
        last = painted(watched.cell);
        EXPECT_EQ(
            paintsAfter(watched.cell, [&] { QTest::mouseMove(window.windowHandle(), place + QPoint(1, 0)); }),
            0);
    }
    QTest::mouseMove(window.windowHandle(), QPoint(300, 200));
    settle();
    EXPECT_NE(painted(watched.cell), hovered) << "the field is no longer lit";
}

TEST_F(Cell, ALargeOneAsksForMoreRoom) {
    ValueCell cell(Kind::Spin, &window);
    const QSize usual = cell.sizeHint();
    cell.setLarge(true);
    EXPECT_GT(cell.sizeHint().width(), usual.width());
    EXPECT_GT(cell.sizeHint().height(), usual.height());
    EXPECT_EQ(usual.boundedTo(cell.minimumSizeHint()), cell.minimumSizeHint());
}

}  // namespace
}  // namespace lorvane::desktop
