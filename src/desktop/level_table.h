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

class QLabel;

namespace lorvane::desktop {

/// A card that paints heads, lines and rail itself and places the cells of all levels in columns.
class LevelTable : public Card {
    Q_OBJECT

public:
    LevelTable(Desk& desk, Menus& menus, QWidget* parent = nullptr);

    /// Copies what has changed from the models.
    void sync();

    /// Smaller rows, for small screens.
    void setCompact(bool compact);
    int heightOf(bool compact) const;

    /// The cell of a panel's name, such as "pnlNT(2)"; null when there is none.
    ValueCell* cell(const std::string& panel) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Metrics {
        int head, row, field, gap;
    };
    Metrics metrics(bool compact) const;
    int rowCount() const { return desk_.study().NumLevels; }
    int rowTop(int level) const;

    void addHeads();
    void addLevel(Menus& menus, int level);
    void placeAll();
    void placeRow(int level);
    void placePair(CellBinding* upper, CellBinding* lower, CellBinding* single, int left, int width,
                   int middle);
    void placeSingle(CellBinding* cell, int left, int width, int middle);
    void placeRail();
    QList<QWidget*> tint(const std::vector<std::string>& panels);
    void syncOutlines();
    CellBinding* binding(std::string_view stem, int level) const;

    /// A column by what stands in it, where it begins and how wide its field is.
    struct ColumnPlace {
        int left = 0;
        int width = 0;
        bool shown = false;
    };
    struct Places {
        int name = 0;
        ColumnPlace units, dispersion, effect, model, covariates, rsq, costs;
    };
    Places places() const;

    /// What the columns take at least, and the gaps between them that share the rest.
    struct Widths {
        int fixed;
        int gaps;
    };
    Widths widths() const;
    int dispersionWidth() const;
    bool hasEffect() const;

    Desk& desk_;
    Menus& menus_;
    bool compact_ = false;
    LevelRail* rail_;
    std::vector<QLabel*> heads_;
    PerLevel<LevelName*> names_;
    PerLevel<ArmLabel*> unitArms_[2];
    PerLevel<ArmLabel*> costArms_[2];
    std::vector<std::unique_ptr<CellBinding>> cells_;
    OutlineOverlay* overlay_;
};

}  // namespace lorvane::desktop
