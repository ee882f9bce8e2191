// The two panels of the dispersion: a row a level with its values, the sentence, the picture, the message.
#pragma once

#include <vector>

#include "desktop/kit/value_cell.h"
#include "desktop/panel_view.h"

class QGridLayout;
class QLabel;

namespace lorvane::desktop {

class Menus;
class MessageCard;
class PushButton;
class SpanPlot;

/// What a column of a panel shows: its heading, its cells, and the arrows where the value can be changed.
struct PanelColumn {
    const Panel* heading;
    const PerLevel<Panel>* cells;
    const PerLevel<bool>* spins;  ///< null where the column is only read
    const char* spin;             ///< stem of the arrows, "frmDisplayICC.spnIcc"
    const char* field;            ///< stem of the field
    const char* popup;            ///< band of a right click
};

/// The models behind one of the two panels.
struct DispersionModel {
    const Panel* title;
    const Panel* unit;  ///< heading of the names
    const PerLevel<Panel>* units;
    std::vector<PanelColumn> columns;
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
    struct Row {
        int level;
        QLabel* unit;
        std::vector<ValueCell*> cells;
    };
    void addRow(QGridLayout* grid, int level);
    ValueCell* addCell(const PanelColumn& column, int level);
    void syncRow(const Row& row);
    void syncPicture();

    Menus& menus_;
    WindowId window_;
    DispersionModel model_;
    std::vector<QLabel*> heads_;
    std::vector<Row> rows_;
    QLabel* sentence_;
    SpanPlot* plot_;
    QLabel* footer_;
    QLabel* note_;
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
