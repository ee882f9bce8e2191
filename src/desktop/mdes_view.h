// The panel of the smallest detectable effect.
#pragma once

#include "desktop/panel_view.h"

namespace lorvane::desktop {

class Card;
class FittedLine;
class WrappedLabel;

/// "frmMDES": Enter computes, Escape closes, and Ctrl+C copies the answer.
class MdesView final : public PanelView {
    Q_OBJECT

public:
    MdesView(Desk& desk, ToolPanel* panel);

    bool isOpen() const override;
    void sync() override;

private:
    QWidget* makeBand();
    QLayout* makeButtons();
    void addShortcuts();
    void copy() const;

    WrappedLabel* prompt_;
    Card* band_;
    FittedLine* figure_;
    WrappedLabel* first_;
    WrappedLabel* second_;
    WrappedLabel* note_;
    bool wasOpen_ = false;
};

}  // namespace lorvane::desktop
