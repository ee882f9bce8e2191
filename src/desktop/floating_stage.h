// Panels that float over the main window as windows of their own.
#pragma once

#include "desktop/panel_stage.h"

class QRect;
class QWidget;

namespace lorvane::desktop {

/// Where a floating window opens first.
enum class FirstPlace {
    centre,      ///< over the middle of the main window
    besideCell,  ///< there, but beside the cell that is worked on
    clearSight   ///< where it covers neither what is worked on nor the results
};

/// A window comes back where it was, as long as that is on a screen.
class FloatingStage final : public PanelStage {
public:
    FloatingStage(QWidget& mainWindow, FirstPlace place) : mainWindow_(mainWindow), place_(place) {}

    bool isShown(const PanelView& view) const override;
    void show(PanelView& view) override;
    void hide(PanelView& view) override;
    bool standsAside(const PanelView&) const override { return false; }
    void raise(PanelView& view) override;

private:
    QWidget& mainWindow_;
    FirstPlace place_;
};

/// Moves a shown floating window of a main window away from what is worked on and outlined, where there is a
/// place that covers none of it.
void keepClear(QWidget& floating, const QWidget& mainWindow);

/// Puts a window that is about to be shown where it covers least of what has to stay in sight.
void placeClear(QWidget& floating, const QWidget& mainWindow);

}  // namespace lorvane::desktop
