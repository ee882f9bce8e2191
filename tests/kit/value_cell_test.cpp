// The cell by mouse, key, wheel and screen reader, and how often it paints.
#include "desktop/kit/value_cell.h"

#include <QContextMenuEvent>
#include <QWheelEvent>
#include <functional>
#include <memory>
#include <tuple>

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
    /// All steps since the last look, with their directions.
    QList<int> takeSteps() {
        QList<int> result;
        while (!stepped.isEmpty()) {
            const QVariantList step = stepped.takeFirst();
            result << step[0].toInt() * step[1].toInt();
        }
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
    QSignalSpy typed{&cell, &ValueCell::typed};
    QSignalSpy linked{&cell, &ValueCell::linkToggled};
    QSignalSpy clicked{&cell, &ValueCell::clicked};
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

TEST_F(Cell, AHoldGoesFasterAfterASecond) {
    WatchedCell watched(window);
    watched.press(1);
    QTest::qWait(900);
    EXPECT_FALSE(watched.takeSteps().contains(10));
    EXPECT_TRUE(QTest::qWaitFor([&] { return watched.takeSteps().contains(10); }, 1000));
    watched.release();
    watched.takeSteps();
    watched.press(1);
    watched.release();
    EXPECT_EQ(watched.takeSteps(), Steps{1}) << "the next click is slow again";
}

TEST_F(Cell, WhateverTakesTheCellAwayEndsTheHold) {
    struct Case {
        const char* name;
        bool hasFocus;  ///< else its loss would hide whether the others end the hold too
        std::function<void(ValueCell&)> end;
    };
    const Case cases[] = {
        {"disabled", false, [](ValueCell& cell) { cell.setEnabled(false); }},
        {"window disabled", false, [](ValueCell& cell) { cell.parentWidget()->setEnabled(false); }},
        {"hidden", false, [](ValueCell& cell) { cell.hide(); }},
        {"without focus", true, [](ValueCell& cell) { cell.clearFocus(); }},
        {"linked", false, [](ValueCell& cell) { cell.setKind(Kind::Linked); }},
        {"by its own step", false, nullptr},
    };
    std::vector<std::unique_ptr<WatchedCell>> held;
    for (const Case& expected : cases) {
        WatchedCell& watched = *held.emplace_back(std::make_unique<WatchedCell>(window));
        ValueCell& cell = watched.cell;
        cell.setFocusPolicy(expected.hasFocus ? Qt::StrongFocus : Qt::NoFocus);
        if (!expected.end)
            QObject::connect(&cell, &ValueCell::stepped, &cell, [&cell] { cell.setEnabled(false); });
        watched.press(1);
        EXPECT_EQ(watched.finished.count(), !expected.end) << expected.name;
        if (expected.end)
            expected.end(cell);
        EXPECT_EQ(watched.finished.count(), 1) << expected.name;
        window.setEnabled(true);
        cell.setEnabled(true);
    }
    QTest::qWait(480);
    for (std::size_t i = 0; i < held.size(); ++i) {
        EXPECT_EQ(held[i]->stepped.count(), 1) << cases[i].name;
        held[i]->release();
        EXPECT_EQ(held[i]->finished.count(), 1) << cases[i].name;
    }
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
        {Kind::Choice, Qt::Key_Down, Qt::KeypadModifier, {-1}, 0},
        {Kind::Spin, Qt::Key_Up, Qt::ControlModifier, {}, 0},
        {Kind::Spin, Qt::Key_Down, Qt::ShiftModifier, {}, 0},
        {Kind::Spin, Qt::Key_PageDown, {}, {-10}, 0},
        {Kind::Linked, Qt::Key_Up, {}, {}, 0},
        {Kind::Spin, Qt::Key_Return, {}, {}, 1},
        {Kind::Linked, Qt::Key_Enter, Qt::KeypadModifier, {}, 1},
    };
    for (const Case& expected : cases) {
        WatchedCell watched(window, expected.kind);
        QTest::keyClick(&watched.cell, expected.key, expected.modifiers);
        EXPECT_EQ(watched.takeSteps(), expected.steps) << expected.key << ' ' << expected.modifiers;
        EXPECT_EQ(watched.activated.count(), expected.activated) << expected.key;
        EXPECT_EQ(watched.takeFinished(), expected.steps.size()) << expected.key;
    }
}

TEST_F(Cell, KeysTypeLinkAndOpenTheMenu) {
    struct Case {
        Kind kind;
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        const char* typed;
        int linked;
        int menus;
    };
    const Case cases[] = {
        {Kind::Spin, Qt::Key_7, Qt::KeypadModifier, "7", 0, 0},
        {Kind::Spin, Qt::Key_Minus, {}, "-", 0, 0},
        {Kind::Linked, Qt::Key_Period, {}, ".", 0, 0},
        {Kind::Spin, Qt::Key_X, {}, "", 0, 0},
        {Kind::Spin, Qt::Key_7, Qt::ControlModifier, "", 0, 0},
        {Kind::Choice, Qt::Key_7, {}, "", 0, 0},
        {Kind::ReadOnly, Qt::Key_7, {}, "", 0, 0},
        {Kind::Linked, Qt::Key_L, {}, "", 1, 0},
        {Kind::Spin, Qt::Key_L, {}, "", 1, 0},
        {Kind::Choice, Qt::Key_Space, {}, "", 0, 1},
        {Kind::Spin, Qt::Key_Space, {}, "", 0, 0},
        {Kind::Spin, Qt::Key_F10, Qt::ShiftModifier, "", 0, 1},
        {Kind::Linked, Qt::Key_Menu, {}, "", 0, 1},
    };
    for (const Case& expected : cases) {
        WatchedCell watched(window, expected.kind);
        watched.cell.setLinkWords(QStringLiteral("Unlink"));
        QTest::keyClick(&watched.cell, expected.key, expected.modifiers);
        const QString typed = watched.typed.isEmpty() ? QString() : watched.typed[0][0].toString();
        EXPECT_EQ(typed.toStdString(), expected.typed) << expected.key;
        EXPECT_EQ(watched.linked.count(), expected.linked) << expected.key;
        EXPECT_EQ(watched.menu.count(), expected.menus) << expected.key;
    }
    WatchedCell alone(window);
    QTest::keyClick(&alone.cell, Qt::Key_L);
    EXPECT_EQ(alone.linked.count(), 0) << "a value without a twin";
}

TEST_F(Cell, TheLinkSignIsAButton) {
    WatchedCell watched(window, Kind::Linked);
    const QPoint sign(watched.cell.width() - 12, 14);
    QTest::mouseClick(&watched.cell, Qt::LeftButton, {}, sign);
    EXPECT_EQ(watched.linked.count(), 0) << "a sign without words only tells";
    watched.cell.setLinkWords(QStringLiteral("Unlink the two groups"));
    const auto moveTo = [&](QPoint place) {
        QTest::mouseMove(window.windowHandle(), watched.cell.mapTo(&window, place));
        settle();
        return watched.cell.cursor().shape();
    };
    EXPECT_EQ(moveTo({20, 12}), Qt::ArrowCursor);
    const QImage before = painted(watched.cell);
    EXPECT_EQ(moveTo(sign), Qt::PointingHandCursor);
    EXPECT_NE(painted(watched.cell), before) << "the plate";
    QTest::mouseClick(&watched.cell, Qt::LeftButton, {}, sign);
    speaker(watched.cell).actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_EQ(watched.linked.count(), 2);
    QTest::mouseDClick(&watched.cell, Qt::LeftButton, {}, sign);
    EXPECT_EQ(watched.activated.count(), 0);
}

TEST_F(Cell, AClickTellsOfItselfUnlessASecondFollows) {
    WatchedCell watched(window);
    const int later = QApplication::doubleClickInterval() + 100;
    QTest::mouseClick(&watched.cell, Qt::LeftButton, {}, {20, 12});
    EXPECT_TRUE(QTest::qWaitFor([&] { return watched.clicked.count() == 1; }, later));
    QTest::mouseClick(&watched.cell, Qt::LeftButton, {}, {20, 12});
    QTest::mouseDClick(&watched.cell, Qt::LeftButton, {}, {20, 12});
    watched.press(1);
    watched.release();
    QTest::mouseClick(&watched.cell, Qt::RightButton, {}, {20, 12});
    QTest::qWait(later);
    EXPECT_EQ(watched.clicked.count(), 1);
    EXPECT_EQ(watched.activated.count(), 1);
}

TEST_F(Cell, LeftAndRightGoAlongTheRow) {
    // Two over one another, a gap with what cannot be reached, one between the two in height.
    std::vector<std::unique_ptr<ValueCell>> cells;
    for (const auto& [kind, place] :
         {std::pair(Kind::Spin, QRect(10, 10, 60, 24)), std::pair(Kind::Linked, QRect(10, 38, 60, 24)),
          std::pair(Kind::FixedChoice, QRect(90, 24, 60, 24)), std::pair(Kind::Spin, QRect(170, 24, 60, 24)),
          std::pair(Kind::Spin, QRect(250, 80, 60, 24))}) {
        ValueCell& cell = *cells.emplace_back(std::make_unique<ValueCell>(kind, &window));
        cell.setGeometry(place);
        cell.show();
    }
    cells[1]->setFocus();
    const std::pair<Qt::Key, std::size_t> steps[] = {
        {Qt::Key_Right, 3}, {Qt::Key_Right, 3}, {Qt::Key_Left, 0}, {Qt::Key_Left, 0}};
    for (const auto& [key, wanted] : steps) {
        QTest::keyClick(window.focusWidget(), key);
        EXPECT_TRUE(cells[wanted]->hasFocus()) << wanted;
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
    const std::tuple<Qt::KeyboardModifiers, int, Steps> turns[] = {
        {Qt::NoModifier, 120, {}},      {Qt::ShiftModifier, -120, {}},         {Qt::ControlModifier, 60, {}},
        {Qt::ControlModifier, 60, {1}}, {Qt::ControlModifier, -240, {-1, -1}},
    };
    WatchedCell watched(window);
    for (const auto& [modifiers, angle, steps] : turns) {
        EXPECT_EQ(watched.wheel(modifiers, angle), modifiers == Qt::ControlModifier)
            << "left to what scrolls";
        EXPECT_EQ(watched.takeSteps(), steps) << angle;
        EXPECT_EQ(watched.takeFinished(), steps.size()) << angle;
    }
    WatchedCell linked(window, Kind::Linked);
    EXPECT_FALSE(linked.wheel(Qt::ControlModifier, 120));
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
    const std::tuple<Kind, bool, bool, QAccessible::Role> cases[] = {
        {Kind::Linked, true, false, QAccessible::SpinBox},
        {Kind::ReadOnly, false, false, QAccessible::StaticText},
        {Kind::Choice, true, true, QAccessible::ComboBox},
        {Kind::FixedChoice, false, false, QAccessible::StaticText},
        {Kind::Spin, true, true, QAccessible::SpinBox},
    };
    ValueCell changed(Kind::Spin, &window);
    for (const auto& [kind, tabStop, changeable, role] : cases) {
        ValueCell made(kind, &window);
        changed.setKind(kind);
        for (ValueCell* cell : {&made, &changed}) {
            EXPECT_EQ(cell->focusPolicy(), tabStop ? Qt::StrongFocus : Qt::ClickFocus);
            EXPECT_EQ(speaker(*cell).role(), role);
            EXPECT_EQ(bool(speaker(*cell).state().readOnly), !changeable);
            const QStringList actions = speaker(*cell).actionInterface()->actionNames();
            EXPECT_EQ(actions.contains(QAccessibleActionInterface::increaseAction()), changeable);
        }
    }
}

TEST_F(Cell, AScreenReaderReadsStepsAndOpensIt) {
    WatchedCell watched(window);
    watched.cell.setAccessibleName(QStringLiteral("ICC of Schools"));
    QAccessibleInterface& said = speaker(watched.cell);
    EXPECT_EQ(spoken(watched.cell), "ICC of Schools");
    EXPECT_EQ(spoken(watched.cell, QAccessible::Value), "0.10");
    ASSERT_TRUE(said.textInterface());
    EXPECT_EQ(said.textInterface()->text(2, 4), QStringLiteral("10"));
    EXPECT_FALSE(said.state().invalid);
    watched.cell.setProblem(ValueCell::Problem::Tinted);
    EXPECT_TRUE(said.state().invalid);
    for (const bool enabled : {true, false}) {
        watched.cell.setEnabled(enabled);
        watched.activated.clear();
        for (const QString& action :
             {QAccessibleActionInterface::increaseAction(), QAccessibleActionInterface::decreaseAction(),
              QAccessibleActionInterface::pressAction()})
            said.actionInterface()->doAction(action);
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
    const QSize usual = cell.sizeHint();
    QImage before = painted(cell);
    for (const auto& [name, change] : changes) {
        EXPECT_EQ(paintsAfter(cell, change), 1) << name;
        EXPECT_NE(painted(cell), before) << name;
        before = painted(cell);
        EXPECT_EQ(paintsAfter(cell, change), 0) << name << " again";
    }
    EXPECT_EQ(cell.sizeHint().boundedTo(usual), usual) << "a large one asks for more room";
    EXPECT_NE(cell.sizeHint(), usual);
}

TEST_F(Cell, TheArrowUnderThePointerIsLit) {
    WatchedCell watched(window);
    const auto paintsWhenAt = [&](QPoint place) {
        const QPoint inWindow = watched.cell.mapTo(&window, place);
        return paintsAfter(watched.cell, [&] { QTest::mouseMove(window.windowHandle(), inWindow); });
    };
    paintsWhenAt({20, 12});
    const QImage hovered = painted(watched.cell);
    for (const int direction : {1, -1}) {
        const QImage before = painted(watched.cell);
        EXPECT_EQ(paintsWhenAt(watched.arrow(direction)), 1);
        EXPECT_NE(painted(watched.cell), before);
        EXPECT_EQ(paintsWhenAt(watched.arrow(direction) + QPoint(1, 0)), 0);
    }
    paintsWhenAt({290, 190});
    EXPECT_NE(painted(watched.cell), hovered) << "the field is no longer lit";
}

}  // namespace
}  // namespace lorvane::desktop
