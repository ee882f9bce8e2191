// The two panels of the dispersion: a row a level with its values, the sentence, the picture, the message.
#pragma once

#include <vector>

#include "desktop/dispersion_table.h"
#include "desktop/panel_view.h"

namespace lorvane::desktop {

class Menus;
class MessageCard;
class PushButton;
class SpanPlot;
class WrappedLabel;

/// The models behind one of the two panels.
struct DispersionModel {
    const Panel* title;
    DispersionRows rows;
    const Schematic* picture;
    const Panel* messageOuter;
    const Panel* messageInner;
};

/// What the two panels share; they differ in their models alone.
class DispersionView : public PanelView {
    Q_OBJECT

public:
    DispersionView(Desk& desk, ToolPanel* panel, Menus& menus, const std::string& name, WindowId window,
                   DispersionModel model);

    bool isOpen() const override;
    void sync() override;

protected:
    /// A button below the message, shown as its model says.
    void addButton(const Button& model, const std::string& control);

private:
    void syncPicture();
    void syncMessage();

    WindowId window_;
    DispersionModel model_;
    DispersionTable* table_;
    WrappedLabel* sentence_;
    SpanPlot* plot_;
    WrappedLabel* footer_;
    WrappedLabel* note_;
    MessageCard* message_;
    std::vector<std::pair<PushButton*, const Button*>> buttons_;
};

/// The dispersion of the outcome, "frmDisplayICC".
class IccView final : public DispersionView {
    Q_OBJECT

public:
    IccView(Desk& desk, ToolPanel* panel, Menus& menus);
};

/// The dispersion of the effect, "frmDisplayTauSq".
class TauSqView final : public DispersionView {
    Q_OBJECT

public:
    TauSqView(Desk& desk, ToolPanel* panel, Menus& menus);
};

}  // namespace lorvane::desktop
