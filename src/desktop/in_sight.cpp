// What floating panels must not cover.
#include "desktop/in_sight.h"

#include <QScreen>
#include <QWidget>

#include "desktop/kit/figure_card.h"
#include "desktop/kit/outline_overlay.h"
#include "desktop/kit/panel_dock.h"
#include "desktop/kit/value_cell.h"

namespace lorvane::desktop {

namespace {

QRect onScreen(const QWidget& widget, const QRect& part) {
    return {widget.mapToGlobal(part.topLeft()), part.size()};
}

}  // namespace

Surroundings surroundingsOf(const QWidget& mainWindow) {
    Surroundings around{mainWindow.screen()->availableGeometry(), mainWindow.frameGeometry(), {}, {}};
    const auto* cell = qobject_cast<const ValueCell*>(mainWindow.focusWidget());
    if (cell != nullptr && cell->isVisible())
        around.pointedAt.append(onScreen(*cell, cell->rect()));
    for (const OutlineOverlay* overlay : mainWindow.findChildren<OutlineOverlay*>()) {
        for (const Outline& outline : overlay->outlines()) {
            const int out = outline.distance;
            if (overlay->isVisible() && overlay->window() == &mainWindow && !outline.around.isEmpty())
                around.pointedAt.append(onScreen(*overlay, outline.around.adjusted(-out, -out, out, out)));
        }
    }
    for (const PanelDock* dock : mainWindow.findChildren<PanelDock*>()) {
        if (dock->isVisible() && !dock->isFloating())
            around.pointedAt.append(onScreen(*dock, dock->rect()));
    }
    for (const FigureCard* card : mainWindow.findChildren<FigureCard*>()) {
        if (card->isVisible() && card->window() == &mainWindow)
            around.results.append(onScreen(*card, card->rect()));
    }
    return around;
}

}  // namespace lorvane::desktop
