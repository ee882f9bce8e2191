// The base of the windows that accompany the main one: what every one does as it opens, closes and follows
// the program.
#pragma once

#include <optional>
#include <string>

#include "desktop/desk.h"
#include "desktop/kit/tool_panel.h"
#include "desktop/panel_stage.h"

namespace lorvane::desktop {

/// One window and when it is open.
class PanelView : public QObject {
    Q_OBJECT

public:
    PanelView(Desk& desk, ToolPanel* panel, const std::string& name);

    /// Whether the program has the window open.
    virtual bool isOpen() const = 0;

    /// Copies what has changed from the models into the widgets.
    virtual void sync() = 0;

    /// The panel with the content: the window itself, or what its dock holds.
    ToolPanel* panel() const { return panel_; }

    /// How it comes onto the screen; set once, before it follows.
    void setStage(PanelStage& stage) { stage_ = &stage; }

    /// The user asks to close the window; the program decides.
    void requestClose();

    /// Opens, closes and fills the window as the program stands.
    void follow();

signals:
    /// The panel has just gone from the screen; whether it had the keyboard.
    void gone(bool hadKeyboard);

protected:
    /// Makes the window one that is worked in as long as the user likes: it takes the keyboard and has any
    /// size from the smallest on. Its column has no margins.
    QVBoxLayout* makeScreen(QSize firstSize, QSize smallestSize);

    /// What has to reach the program before the window asks to be closed.
    virtual void prepareClose() {}

    Desk& desk_;

private:
    void hide();
    bool wasAskedAgain();
    bool isWanted() const;

    ToolPanel* panel_;
    PanelStage* stage_ = nullptr;
    std::string name_;
    std::optional<WindowId> window_;
    int asked_ = 0;  ///< how often the program has been asked for it by now
};

}  // namespace lorvane::desktop
