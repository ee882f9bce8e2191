// The table of levels: a rail at the left, a row a level, a column what can be said of it.
#pragma once

#include <memory>
#include <vector>

#include "desktop/cell_binding.h"
#include "desktop/kit/arm_label.h"
#include "desktop/kit/card.h"
#include "desktop/kit/level_name.h"
#include "desktop/kit/level_rail.h"
#include "desktop/kit/outline_overlay.h"
#include "desktop/page_sizes.h"
#include "desktop/table_columns.h"

class QLabel;
class QScrollBar;

namespace lorvane::desktop {

/// A card that paints heads, lines and rail itself and places the cells of all levels in columns. Where they
/// do not all fit, whole columns scroll behind a line, and the cell with the focus is always in sight.
class LevelTable : public Card {
    Q_OBJECT

public:
    LevelTable(Desk& desk, Menus& menus, QWidget* parent = nullptr);

    /// Copies what has changed from the models.
    void sync();

    /// The height of head, rows and fields.
    void setSizes(const PageSizes& sizes);

    /// What the columns depend on, at 100 %.
    TableShape shape() const;

    /// The cell of a panel's name, such as "pnlNT(2)"; null when there is none.
    ValueCell* cell(const std::string& panel) const;

    /// The name of the group beside a cell, "pnlNT(2)"; null for a cell without one.
    QWidget* armBeside(const std::string& panel) const;

    /// Scrolls the column of a cell into sight; nothing for a name without a cell.
    void reveal(const std::string& panel);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    int rowCount() const { return desk_.study().NumLevels; }
    int rowTop(int level) const { return sizes_.head + (rowCount() - level) * sizes_.row; }
    QRect inPixels(int left, int top, int width, int height) const;

    void addHeads();
    void addLevel(Menus& menus, int level);
    void placeAll();
    void placeLevel(int level);
    void placeArms(int level);
    int topOf(int level, int arm) const;
    void placeCells();
    void placeHeads();
    void placeRail();
    QList<QWidget*> tint(const std::vector<std::string>& panels);
    void syncOutlines();
    CellBinding* binding(std::string_view stem, int level) const;

    int fieldsWidth() const;
    void scrollTo(int position);
    void bringInSight(const CellBinding& cell);
    void placeBar();

    Desk& desk_;
    Menus& menus_;
    PageSizes sizes_ = pageSizes({});
    TableColumns columns_;  ///< while nothing is scrolled
    TableColumns shifted_;  ///< as they stand on the widget of the fields
    int shift_ = 0;         ///< how far the columns are scrolled
    LevelRail* rail_;
    QWidget* fields_;  ///< behind the names; what stands out of it is not seen
    QScrollBar* bar_;
    std::vector<QLabel*> heads_;
    PerLevel<LevelName*> names_;
    PerLevel<ArmLabel*> unitArms_[2];
    PerLevel<ArmLabel*> costArms_[2];
    std::vector<std::unique_ptr<CellBinding>> cells_;
    OutlineOverlay* overlay_;
};

}  // namespace lorvane::desktop
