// The floating windows of the study screen.
#include "desktop/panels.h"

#include "desktop/dialog_views.h"
#include "desktop/dispersion_views.h"
#include "desktop/graph_table_view.h"
#include "desktop/graph_view.h"
#include "desktop/main_window.h"
#include "desktop/mdes_view.h"
#include "desktop/message_views.h"
#include "desktop/optimal_view.h"
#include "desktop/report_viewer.h"
#include "desktop/scenario_view.h"
#include "desktop/start_view.h"
#include "desktop/table_view.h"

namespace lorvane::desktop {

namespace {

constexpr double centred = -1;  // in place of a share of the screen

}  // namespace

template <typename View, typename... More>
void Panels::add(double x, double y, More&&... more) {
    auto* panel = new ToolPanel(QString(), &window_);
    views_.push_back(std::make_unique<View>(desk_, panel, std::forward<More>(more)...));
    views_.back()->setParent(nullptr);
    views_.back()->setFirstPlace(x, y);
}

Panels::Panels(Desk& desk, MainWindow& window) : desk_(desk), window_(window) {
    const Design& design = desk.design();
    add<IccView>(0.5, 0.2, window.menus());
    add<TauSqView>(0.5, 0.3, window.menus());
    add<ProblemView>(centred, centred, "frmProblems", WindowId::frmProblems, design.problems().pnlErrTitle,
                     design.problems().pnlErr);
    add<ProblemView>(centred, centred, "frmProblemES", WindowId::frmProblemES,
                     design.effectProblems().pnlErrESTitle, design.effectProblems().pnlErrES);
    add<CountsView>(0.3, 0.5);
    add<DetailsView>(0.7, 0.15);
    const SmallDialogs& dialogs = desk.application().dialogs();
    add<TableView>(0.2, 0.3, dialogs.spreadICC(), design.spreadICC());
    add<TableView>(0.2, 0.4, dialogs.spreadTauSq(), design.spreadTauSq());
    add<ScenarioView>(0.5, 0.45);
    add<MdesView>(centred, centred);
    add<StartView>(centred, centred);
    add<OptimalView>(centred, 0.15, window_.menus());
    add<GraphView>(centred, centred);
    add<GraphTableView>(0.2, 0.6);
    add<ReportViewer>(centred, centred);
    const GraphScreen& graph = desk.application().graph();
    const auto addGraphDialog = [&](const auto& dialog) {
        add<DialogView>(centred, centred, dialog.dialog(), [&dialog] { return dialog.isOpen(); });
    };
    addGraphDialog(graph.axisDialog());
    addGraphDialog(graph.lineDialog());
    for (const Dialog* dialog : dialogs.all())
        add<DialogView>(centred, centred, *dialog, [&dialogs, dialog] { return dialogs.isOpen(*dialog); });
    const ScenarioWindow& scenarios = desk.application().scenarioWindow();
    add<DialogView>(centred, centred, scenarios.nameDialog(),
                    [&scenarios] { return scenarios.nameIsOpen(); });
    connect(&desk_, &Desk::shown, this, &Panels::follow);
    follow();
}

void Panels::follow() {
    for (const auto& view : views_)
        view->follow();
}

ToolPanel* Panels::panel(const QString& name) const {
    for (const auto& view : views_) {
        if (view->panel()->objectName() == name)
            return view->panel();
    }
    return nullptr;
}

}  // namespace lorvane::desktop
