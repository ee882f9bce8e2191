// The floating windows of the study screen.
#include "desktop/panels.h"

#include <QGuiApplication>
#include <QScreen>

#include "desktop/dialog_views.h"
#include "desktop/dispersion_views.h"
#include "desktop/main_window.h"
#include "desktop/message_views.h"
#include "desktop/table_view.h"

namespace lorvane::desktop {

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

// The first place of a window is a share of the screen; later it comes back where it was.
void PanelView::follow() {
    const bool open = isOpen();
    if (open || panel_->isVisible())
        sync();
    if (open == panel_->isVisible())
        return;
    if (open && !panel_->place()) {
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        panel_->adjustSize();
        const int left =
            std::min(static_cast<int>(x_ * screen.width()), screen.width() - panel_->width() - 20);
        const int top =
            std::min(static_cast<int>(y_ * screen.height()), screen.height() - panel_->height() - 50);
        panel_->setPlace(screen.topLeft() + QPoint(std::max(left, 0), std::max(top, 0)));
    }
    panel_->setVisible(open);
    if (open)
        sync();
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
    add<ProblemView>(0.42, 0.42, "frmProblems", WindowId::frmProblems, design.problems().pnlErrTitle,
                     design.problems().pnlErr);
    add<ProblemView>(0.42, 0.42, "frmProblemES", WindowId::frmProblemES,
                     design.effectProblems().pnlErrESTitle, design.effectProblems().pnlErrES);
    add<CountsView>(0.3, 0.5);
    add<DetailsView>(0.7, 0.15);
    const SmallDialogs& dialogs = desk.application().dialogs();
    add<TableView>(0.2, 0.3, "frmSpreadICC", "Table of the ICC", design.spreadICC(),
                   [&dialogs] { return dialogs.spreadICCIsOpen(); });
    add<TableView>(0.2, 0.4, "frmSpreadTauSq", "Table of the effects", design.spreadTauSq(),
                   [&dialogs] { return dialogs.spreadTauSqIsOpen(); });
    for (DialogModel& model : dialogModels(desk))
        add<DialogView>(0.4, 0.35, std::move(model));
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
