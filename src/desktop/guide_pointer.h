// Outlines what the guide points at: cells, results and tools of the main window, and parts of the wizard.
#pragma once

#include <QObject>
#include <QTimer>

#include "desktop/desk.h"

namespace lorvane::desktop {

class MainWindow;
class OutlineOverlay;

/// Follows the guide and the places of what it points at. What is scrolled away comes in sight when the guide
/// begins to point at it.
class GuidePointer : public QObject {
    Q_OBJECT

public:
    GuidePointer(Desk& desk, MainWindow& window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void follow();
    void draw();
    QList<QWidget*> pointedAt() const;

    Desk& desk_;
    MainWindow& window_;
    OutlineOverlay* onWindow_;
    OutlineOverlay* onWizard_ = nullptr;
    QTimer soon_;  ///< places are known when the layouts have done their work
    int frame_ = -1;
};

}  // namespace lorvane::desktop
