// The panel of the smallest detectable effect.
#pragma once

#include "desktop/panel_view.h"

class QLabel;

namespace lorvane::desktop {

class Card;
class NumberLabel;

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

    QLabel* prompt_;
    Card* band_;
    QWidget* figure_;
    NumberLabel* figureName_;
    NumberLabel* figureNumber_;
    QLabel* first_;
    QLabel* second_;
    QLabel* note_;
    bool wasOpen_ = false;
};

}  // namespace lorvane::desktop
