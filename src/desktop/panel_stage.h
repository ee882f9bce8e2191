// How a view of the program comes onto the screen.
#pragma once

namespace lorvane::desktop {

class PanelView;

/// Shows and hides the panels of views: floating over the main window, or docked at its edge.
class PanelStage {
public:
    PanelStage() = default;
    PanelStage(const PanelStage&) = delete;
    PanelStage& operator=(const PanelStage&) = delete;
    virtual ~PanelStage() = default;

    virtual bool isShown(const PanelView& view) const = 0;
    virtual void show(PanelView& view) = 0;
    virtual void hide(PanelView& view) = 0;

    /// Whether a panel that makes way for a message may stay, since it stands over nothing.
    virtual bool standsAside(const PanelView& view) const = 0;

    /// Brings a shown one to the front.
    virtual void raise(PanelView& view) = 0;
};

}  // namespace lorvane::desktop
