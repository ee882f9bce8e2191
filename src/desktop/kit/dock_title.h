// The row over a docked panel: its name, and the signs that make it float and close it.
#pragma once

#include <QWidget>

class QAbstractButton;

namespace lorvane::desktop {

class ElidedLabel;

/// A place to drag the dock by; a double click makes it float or puts it back.
class DockTitle : public QWidget {
    Q_OBJECT

public:
    explicit DockTitle(QWidget* parent);

    /// The name of the panel, and whether the panel has the keyboard.
    void setName(const QString& name);
    void setInUse(bool inUse);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void floatRequested();
    void closeRequested();

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void placeAtZoom();

    ElidedLabel* name_;
    QAbstractButton* float_;
    QAbstractButton* close_;
};

}  // namespace lorvane::desktop
