// The floating windows of the study screen.
#include "desktop/panels.h"

#include "desktop/about_view.h"
#include "desktop/dialog_views.h"
#include "desktop/dispersion_views.h"
#include "desktop/graph_table_view.h"
#include "desktop/graph_view.h"
#include "desktop/guide_view.h"
#include "desktop/keyboard_view.h"
#include "desktop/limits_view.h"
#include "desktop/main_window.h"
#include "desktop/mdes_view.h"
#include "desktop/message_views.h"
#include "desktop/optimal_view.h"
#include "desktop/report_viewer.h"
#include "desktop/scenario_view.h"
#include "desktop/start_view.h"
#include "desktop/table_view.h"

namespace lorvane::desktop {

template <typename View, typename... More>
void Panels::add(FirstPlace place, More&&... more) {
    auto* panel = new ToolPanel(QString(), &window_);
    views_.push_back(std::make_unique<View>(desk_, panel, std::forward<More>(more)...));
    PanelView& view = *views_.back();
    view.setParent(nullptr);
    const DockRow* row = dockRowOf(panel->objectName().toStdString());
    if (row != nullptr) {
        docks_.add(view, *row);
        view.setStage(docks_);
    } else {
        view.setStage(floating_[static_cast<std::size_t>(place)]);
    }
    ring_.add(view, docks_.dockOf(view));
}

Panels::Panels(Desk& desk, MainWindow& window)
    : desk_(desk), window_(window), docks_(window), floating_{FloatingStage(window, FirstPlace::centre),
                                                              FloatingStage(window, FirstPlace::besideCell),
                                                              FloatingStage(window, FirstPlace::clearSight)},
      ring_(window), pointer_(desk, window) {
    addStudyPanels();
    addScreens();
    addDialogs();
    connect(&desk_, &Desk::shown, this, &Panels::follow);
    connect(&window_, &MainWindow::zoomChanged, &docks_, &Docks::setZoom);
    connect(&ring_, &FocusRing::movedInMainWindow, this, &Panels::keepClear);
    follow();
}

void Panels::addStudyPanels() {
    using enum FirstPlace;
    const Design& design = desk_.design();
    add<ProblemView>(clearSight, "frmProblems", WindowId::frmProblems, design.problems().pnlErrTitle,
                     design.problems().pnlErr);
    add<ProblemView>(clearSight, "frmProblemES", WindowId::frmProblemES,
                     design.effectProblems().pnlErrESTitle, design.effectProblems().pnlErrES);
    add<IccView>(clearSight, window_.menus());
    add<TauSqView>(clearSight, window_.menus());
    add<CountsView>(clearSight);
    add<MdesView>(clearSight);
    add<ScenarioView>(clearSight);
    add<DetailsView>(clearSight);
    add<GuideView>(clearSight, window_.menus());
    add<OptimalView>(clearSight, window_.menus());
}

void Panels::addScreens() {
    using enum FirstPlace;
    const SmallDialogs& dialogs = desk_.application().dialogs();
    add<TableView>(centre, dialogs.spreadICC(), desk_.design().spreadICC());
    add<TableView>(centre, dialogs.spreadTauSq(), desk_.design().spreadTauSq());
    add<StartView>(centre);
    add<GraphView>(centre);
    auto& graph = static_cast<GraphView&>(*views_.back());
    add<GraphGuideView>(centre, graph.menus(), *graph.panel());
    add<GraphTableView>(clearSight);
    add<ReportViewer>(centre);
    add<AboutView>(centre);
    add<KeyboardView>(centre);
}

void Panels::addDialogs() {
    using enum FirstPlace;
    const auto addDialog = [this](const Dialog& dialog, std::function<bool()> isOpen) {
        add<DialogView>(besideCell, dialog, std::move(isOpen));
    };
    const GraphScreen& graph = desk_.application().graph();
    addDialog(graph.axisDialog().dialog(), [&graph] { return graph.axisDialog().isOpen(); });
    addDialog(graph.lineDialog().dialog(), [&graph] { return graph.lineDialog().isOpen(); });
    add<LimitsView>(centre);
    const SmallDialogs& dialogs = desk_.application().dialogs();
    for (const Dialog* dialog : dialogs.all())
        addDialog(*dialog, [&dialogs, dialog] { return dialogs.isOpen(*dialog); });
    const ScenarioWindow& scenarios = desk_.application().scenarioWindow();
    addDialog(scenarios.nameDialog(), [&scenarios] { return scenarios.nameIsOpen(); });
}

void Panels::follow() {
    for (const auto& view : views_)
        view->follow();
    keepClear();
}

// Also the wizard outlines cells of the main window.
void Panels::keepClear() {
    docks_.keepClear();
    for (const char* name : {"frmOptimal"}) {
        ToolPanel* floating = panel(QLatin1String(name));
        if (floating != nullptr && floating->isVisible())
            lorvane::desktop::keepClear(*floating, window_);
    }
}

ToolPanel* Panels::panel(const QString& name) const {
    for (const auto& view : views_) {
        if (view->panel()->objectName() == name)
            return view->panel();
    }
    return nullptr;
}

}  // namespace lorvane::desktop
