// The menus of a menu bar in its width: padding gives way first, then whole menus go under a sign at the end.
#pragma once

#include <QList>
#include <QObject>

class QAction;
class QMenu;
class QMenuBar;
class QShortcut;

namespace lorvane::desktop {

/// Keeps every menu of a bar within reach. Those that do not fit become submenus of the last entry, in their
/// order; the arrow keys and their letters with Alt lead there too.
class MenuOverflow : public QObject {
    Q_OBJECT

public:
    /// The bar has all its menus and none that comes later; it owns this.
    explicit MenuOverflow(QMenuBar* bar);

    /// Gives the narrow padding also where the wide one fits.
    void setNarrow(bool narrow);

    /// The entry at the end, for tests.
    QMenu* more() const { return more_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fit();
    void setPadding(bool narrow);
    int widthOf(const QMenu& menu, bool narrow) const;
    qsizetype countThatFits(bool narrow) const;
    void fill(qsizetype count);
    void open(QMenu* menu);

    QMenuBar* bar_;
    QList<QMenu*> menus_;
    QMenu* more_;
    QAction* line_;
    QList<QShortcut*> letters_;  ///< with Alt, for menus under the sign
    bool narrow_ = false;
    qsizetype count_ = -1;  ///< how many stand in the bar
};

}  // namespace lorvane::desktop
