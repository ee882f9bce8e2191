// The floating windows of the study screen.
#include "desktop/panels.h"

#include <QGuiApplication>
#include <QScreen>
#include <QVBoxLayout>

#include "desktop/dialog_views.h"
#include "desktop/dispersion_views.h"
#include "desktop/main_window.h"
#include "desktop/mdes_view.h"
#include "desktop/message_views.h"
#include "desktop/optimal_view.h"
#include "desktop/scenario_view.h"
#include "desktop/start_view.h"
#include "desktop/table_view.h"

namespace lorvane::desktop {

namespace {

constexpr int frameRoom = 50;   // for the frame of the window system
constexpr double centred = -1;  // in place of a share of the screen

}  // namespace

PanelView::PanelView(Desk& desk, ToolPanel* panel, const std::string& name)
    : QObject(panel), desk_(desk), panel_(panel) {
    panel->setObjectName(QString::fromStdString(name));
    // A window that opens by itself leaves the keyboard where it is, and a held arrow held.
    panel->setAttribute(Qt::WA_ShowWithoutActivating);
    connect(panel, &ToolPanel::closeRequested, this, [this, name] {
        prepareClose();
        desk_.close(name);
    });
}

void PanelView::setFirstPlace(double x, double y) {
    x_ = x;
    y_ = y;
}

// The first place of a window is a share of the screen or its middle; later it comes back where it was.
void PanelView::follow() {
    const bool open = isOpen();
    if (open || panel_->isVisible())
        sync();
    if (open == panel_->isVisible())
        return;
    if (open && !panel_->place()) {
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        if (panel_->content()->sizeConstraint() == QLayout::SetFixedSize)
            panel_->adjustSize();
        const QSize room = screen.size() - panel_->size();
        const auto at = [](double share, int size, int space) {
            const int wanted = share < 0 ? space / 2 : static_cast<int>(share * size);
            return std::max(0, std::min(wanted, space - frameRoom));
        };
        panel_->setPlace(screen.topLeft() + QPoint(at(x_, screen.width(), room.width()),
                                                   at(y_, screen.height(), room.height())));
    }
    panel_->setVisible(open);
    if (!open)
        return;
    sync();
    // A window that is there to be answered takes the keyboard.
    if (!panel_->testAttribute(Qt::WA_ShowWithoutActivating))
        panel_->activateWindow();
}

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
    add<TableView>(0.2, 0.3, "frmSpreadICC", "Table of the ICC", design.spreadICC(),
                   [&dialogs] { return dialogs.spreadICCIsOpen(); });
    add<TableView>(0.2, 0.4, "frmSpreadTauSq", "Table of the effects", design.spreadTauSq(),
                   [&dialogs] { return dialogs.spreadTauSqIsOpen(); });
    add<ScenarioView>(0.5, 0.45);
    add<MdesView>(centred, centred);
    add<StartView>(centred, centred);
    add<OptimalView>(centred, 0.15, window_.menus());
    for (DialogModel& model : dialogModels(desk))
        add<DialogView>(centred, centred, std::move(model));
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
