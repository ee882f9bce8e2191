// The column of docks at the right edge of the main window: which panels dock, in which order, and where they
// are.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include <QByteArray>
#include <QObject>
#include <QRect>

#include "desktop/dock_plan.h"
#include "desktop/panel_stage.h"

namespace lorvane::desktop {

class MainWindow;
class PanelDock;

/// A panel that docks.
struct DockRow {
    std::string_view window;   ///< name of the window, "frmMDES"
    const char* shortName;     ///< on a tab
    bool takesRest;            ///< it has no height of its own
    int floatingWidth;         ///< pixels at 100 %
    bool growsToText = false;  ///< floating, it is as high as its text needs, and never lower again
};

/// The row of a window; null for one that always floats.
const DockRow* dockRowOf(std::string_view window);

/// Docks panels while screen and window have room, and lets them float otherwise or where the user has put
/// them.
class Docks final : public QObject, public PanelStage {
    Q_OBJECT

public:
    explicit Docks(MainWindow& window);

    /// Takes the panel of a view in, hidden.
    void add(PanelView& view, const DockRow& row);

    bool isShown(const PanelView& view) const override;
    void show(PanelView& view) override;
    void hide(PanelView& view) override;
    bool standsAside(const PanelView& view) const override;
    void raise(PanelView& view) override;

    /// The docks of a study screen that is shown larger.
    void setZoom(double zoom);

    /// Moves floating ones away from what is worked on and outlined.
    void keepClear();

    /// Takes back what the window has grown by for its docks, before its width is remembered.
    void shrinkWindow();

    /// Where the user has put the panels, and back again. What does not fit is left out.
    QByteArray state() const;
    void restore(const QByteArray& state);

    /// The dock of a view; null when it has none.
    PanelDock* dockOf(const PanelView& view) const;

private:
    struct Entry {
        PanelView* view;
        const DockRow* row;
        PanelDock* dock;
        std::optional<bool> floats;  ///< as the user has chosen
        QRect place;                 ///< of the floating window; empty before the first time
    };

    Entry& entryOf(const PanelView& view);
    void dockIn(Entry& entry);
    void floatOut(Entry& entry);
    void placeFloating(Entry& entry);
    void sizeFloating(Entry& entry);
    void fitFloating();
    static void growTo(PanelDock& dock, int height);
    void movedByUser(Entry& entry, bool floats);
    bool makeRoom(const Entry& newcomer, int leastMiddle);
    void giveRoomBack();
    int growth(int wanted) const;
    void widen(int by);
    std::vector<Entry*> docked();
    std::vector<DockGroup> plan(const std::vector<Entry*>& entries) const;
    void arrange();
    void stack(const std::vector<Entry*>& entries, const std::vector<DockGroup>& groups);
    void fitHeights(const std::vector<Entry*>& entries, const std::vector<DockGroup>& groups);
    void styleTabs();
    void arrangeSoon();
    int scaled(int length) const;

    MainWindow& window_;
    std::vector<Entry> entries_;
    std::vector<std::vector<PanelDock*>> arranged_;  ///< as they are stacked now
    double zoom_ = 1;
    int grown_ = 0;  ///< by how much the window has grown for its docks
    int widthGrownTo_ = 0;
    bool busy_ = false;     ///< what happens to the docks is not the user's doing
    bool waiting_ = false;  ///< arranging is on its way
};

}  // namespace lorvane::desktop
