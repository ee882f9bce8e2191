// The table of a dispersion panel: a row a level, a column a form of the dispersion, and the ranges.
#pragma once

#include <memory>
#include <vector>

#include "desktop/cell_binding.h"
#include "desktop/kit/outline_overlay.h"

class QLabel;

namespace lorvane::desktop {

class ElidedLabel;
class FittedLine;

/// What a column of a panel shows, and its lengths at 100 %.
struct PanelColumn {
    const ColumnHead* head;
    const PerLevel<Cell>* cells;  ///< null for the ranges
    const char* field;            ///< stem of the field, "txtICC"
    int derived;                  ///< width of a column of values that follow from others
    int entered;                  ///< width of a column of fields
    int givesWay;                 ///< by so much both are narrower in a narrow panel
    int lead;                     ///< left of fields and values, within the column
    int inset;                    ///< right of a value that is no field
};

/// The models behind one of the two tables.
struct DispersionRows {
    const ColumnHead* unit;  ///< over the names
    const PerLevel<Panel>* units;
    std::vector<PanelColumn> columns;
    const PerLevel<Panel>* ranges;
    const char* menu;  ///< band of a right click on the heads
};

/// Heads on one line, values at the right under them, lines between the rows. What is entered stands in
/// fields that act like those of the study screen; what is at fault has an outline.
class DispersionTable : public QWidget {
    Q_OBJECT

public:
    DispersionTable(Desk& desk, Menus& menus, DispersionRows rows, QWidget* parent = nullptr);

    /// Copies what has changed from the models.
    void sync();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    /// A value is a field while it is entered, and a line of text while it follows from others.
    struct Value {
        std::unique_ptr<CellBinding> field;
        FittedLine* line;
    };
    struct Row {
        int level;
        ElidedLabel* name;
        std::vector<Value> values;
    };
    struct Place {
        int left = 0;
        int right = 0;  ///< of its fields
        bool shown = false;
    };

    void addRow(int level);
    Value makeValue(const PanelColumn& column, int level);
    const Panel& modelOf(const PanelColumn& column, int level) const;
    bool isEntered(const PanelColumn& column, int level) const;
    QString restOf(const PanelColumn& column, int level) const;
    bool hasFields(const PanelColumn& column) const;
    void syncRow(const Row& row);
    std::vector<Place> places() const;
    void placeAll();
    void placeRow(const Row& row, const std::vector<Place>& places, int top);
    int rowCount() const;
    void syncOutlines();

    Desk& desk_;
    Menus& menus_;
    DispersionRows model_;
    std::vector<QLabel*> heads_;  ///< that of the names first
    std::vector<Row> rows_;       ///< the top level first
    OutlineOverlay* overlay_;
};

}  // namespace lorvane::desktop
