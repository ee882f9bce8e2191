// The cell of tables and strips: a value with arrows, a linked or fixed one, or a choice. It shows a text and
// forwards what the user does; it knows no number, no limit and no unit.
#pragma once

#include <QAccessible>
#include <QBasicTimer>
#include <QString>
#include <QWidget>

namespace lorvane::desktop {

class ValueCell : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    enum class Kind {
        Spin,         ///< number at the right, field and arrows
        Linked,       ///< number at the right, link sign, no field
        ReadOnly,     ///< number at the right, nothing else
        Choice,       ///< word at the left, field and arrows
        FixedChoice,  ///< word at the left, nothing else
    };

    enum class Problem {
        None,
        Tinted,    ///< for cells that an outline surrounds
        Outlined,  ///< tinted, with the outline inside its own bounds
    };

    explicit ValueCell(Kind kind = Kind::Spin, QWidget* parent = nullptr);

    /// The kind decides the look, the keys it takes and whether Tab stops here (all but ReadOnly,
    /// FixedChoice).
    void setKind(Kind kind);
    Kind kind() const { return kind_; }

    /// The text as it is shown, currency and all.
    void setText(const QString& text);
    const QString& text() const { return text_; }

    void setProblem(Problem problem);
    bool hasProblem() const { return problem_ != Problem::None; }

    /// The larger type of the effect size.
    void setLarge(bool large);
    bool isLarge() const { return large_; }

    /// Whether it takes arrows, keys and the wheel.
    bool isChangeable() const;
    QAccessible::Role accessibleRole() const;

    /// What a single push on an arrow does: stepped and stepFinished. Nothing when not changeable or
    /// disabled.
    void step(int direction);

    /// What a double click does.
    void activate();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// One step up (1) or down (-1), again and again while an arrow or key is held.
    void stepped(int direction);
    /// The arrow or key is released, or the notch of the wheel is over.
    void stepFinished();
    /// Double click, Enter or Return.
    void activated();
    /// Right click, the Menu key or Shift+F10.
    void contextMenuRequested(const QPoint& global);
    /// The cell has got the focus.
    void focused();

protected:
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
    void setArrowUnderPointer(int arrow);
    void beginHold(int direction);
    void endHold();
    bool pushArrow(const QMouseEvent& event);

    bool isLit() const;
    bool needsLine() const;
    QColor plateColour() const;
    QColor textColour() const;
    void paintPlate(QPainter& painter) const;
    void paintText(QPainter& painter) const;
    void paintArrow(QPainter& painter, int direction) const;

    Kind kind_;
    Problem problem_ = Problem::None;
    bool large_ = false;
    QString text_;
    int arrowUnderPointer_ = 0;
    int held_ = 0;
    int wheelRest_ = 0;
    QBasicTimer repeat_;
};

}  // namespace lorvane::desktop
