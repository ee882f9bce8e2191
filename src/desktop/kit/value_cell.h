// The cell of tables and strips: a value with arrows, a linked or fixed one, or a choice. It shows a text and
// forwards what the user does; it knows no number, no limit and no unit.
#pragma once

#include <QAccessible>
#include <QBasicTimer>
#include <QElapsedTimer>
#include <QString>
#include <QWidget>

namespace lorvane::desktop {

/// The owner sets kind, text and problem, listens to the signals, and sets the new text itself.
class ValueCell : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    /// What the cell looks like and what the user can do with it.
    enum class Kind {
        Spin,         ///< number at the right, field and arrows
        Linked,       ///< number at the right, link sign, no field
        ReadOnly,     ///< number at the right, nothing else
        Choice,       ///< word at the left, field and arrows
        FixedChoice,  ///< word at the left, nothing else
    };

    /// How the cell shows that its value is at fault.
    enum class Problem {
        None,
        Tinted,    ///< for cells that an outline surrounds
        Outlined,  ///< tinted, with the outline inside its own bounds
    };

    explicit ValueCell(Kind kind = Kind::Spin, QWidget* parent = nullptr);

    /// The kind also decides the keys that the cell takes and whether Tab stops at it. Tab passes ReadOnly
    /// and FixedChoice.
    void setKind(Kind kind);
    Kind kind() const { return kind_; }

    /// The text as it is shown, currency and all. Where the cell is too narrow, the type becomes smaller.
    void setText(const QString& text);
    const QString& text() const { return text_; }

    /// The problem shown; screen readers get a field with a problem as invalid.
    void setProblem(Problem problem);
    bool hasProblem() const { return problem_ != Problem::None; }

    /// The larger type of the effect size.
    void setLarge(bool large);
    bool isLarge() const { return large_; }

    /// Shows the value in quiet text: it counts only after the user has turned to it. It can be changed all
    /// the same.
    void setAtRest(bool atRest);
    bool isAtRest() const { return atRest_; }

    /// Whether it takes steps: by its arrows, by the keys Up, Down, PageUp and PageDown, and by the wheel
    /// with Ctrl. Spin and Choice do.
    bool isChangeable() const;

    /// Whether the value has a twin that it can be linked to, and what the link does at the moment, as the
    /// tip of the sign. Empty: it has none, and neither sign nor key asks for it.
    void setLinkWords(const QString& words);
    bool isLinkable() const { return !linkWords_.isEmpty(); }

    /// What the cell is to screen readers, by its kind.
    QAccessible::Role accessibleRole() const;

    /// Does what a single push on an arrow does: sends stepped and stepFinished. The direction is 1 or -1.
    /// Does nothing when the cell is not changeable or disabled.
    void step(int direction);

    /// Does what a double click does: sends activated, unless the cell is disabled.
    void activate();

    /// Does what a click on the link sign does: sends linkToggled, where there is a link to toggle.
    void toggleLink();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// The user asks for steps up (1) or down (-1). Sent again and again while an arrow or a key is held, and
    /// after a second of that with ten steps at a time.
    void stepped(int direction, int steps);
    /// Follows the last of one or more stepped: the arrow or key is released, or the notch of the wheel is
    /// over. Also sent when the cell loses focus, is hidden or is disabled while one is held.
    void stepFinished();
    /// The user asks to open the value: double click, Enter or Return. Sent whatever the kind.
    void activated();
    /// The user types over the number: a digit, a sign or a point.
    void typed(const QString& text);
    /// The user asks to link or unlink the value: a click on the sign, or the key L.
    void linkToggled();
    /// A click on the value that no double click followed.
    void clicked();
    /// Right click, the Menu key or Shift+F10, and Space on a choice. The place is where a menu belongs, on
    /// the screen.
    void contextMenuRequested(const QPoint& global);
    /// The cell has got the focus.
    void focused();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    /// The arrow at a point: 1, -1, or 0 for none.
    int arrowAt(const QPointF& point) const;
    bool isOnLink(const QPointF& point) const;
    void setArrowUnderPointer(int arrow);
    void setPointer(const QPointF& point);
    void beginHold(int direction, int steps = 1);
    void sendSteps();
    void endHold();
    bool pushArrow(const QMouseEvent& event);
    bool pressKey(const QKeyEvent& event);
    bool typeKey(const QKeyEvent& event);
    void openMenuBelow();

    bool isLit() const;
    bool needsLine() const;
    QColor plateColour() const;
    QColor textColour() const;
    void paintPlate(QPainter& painter) const;
    void paintText(QPainter& painter) const;
    void paintArrow(QPainter& painter, int direction) const;
    void paintLink(QPainter& painter) const;

    Kind kind_;
    Problem problem_ = Problem::None;
    bool large_ = false;
    bool atRest_ = false;
    QString text_;
    QString linkWords_;
    int arrowUnderPointer_ = 0;
    bool linkUnderPointer_ = false;
    int held_ = 0;
    int heldSteps_ = 1;
    QElapsedTimer sinceHeld_;
    int wheelRest_ = 0;
    QBasicTimer repeat_;
    QBasicTimer click_;
};

}  // namespace lorvane::desktop
