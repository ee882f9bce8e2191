// Painting of the selected row.
#include "desktop/kit/selected_row.h"

#include <QPainter>
#include <QWidget>

#include "desktop/kit/painting.h"
#include "desktop/kit/theme.h"

namespace lorvane::desktop {

void paintSelectedRow(QPainter& painter, const QRectF& bounds, bool ringed) {
    constexpr double RingInset = 2;
    constexpr double InnerRingWidth = 1.5;
    fillPlate(painter, bounds, FieldRadius, colour(Role::SelectedRow));
    strokePlate(painter, bounds, FieldRadius, colour(Role::SelectedRowEdge), 1);
    if (ringed)
        strokePlate(painter, bounds.adjusted(RingInset, RingInset, -RingInset, -RingInset),
                    FieldRadius - RingInset, colour(Role::OnAccent), InnerRingWidth);
}

bool showsKeyboardFocus(const QWidget& widget) {
    return widget.hasFocus() && widget.window()->testAttribute(Qt::WA_KeyboardFocusChange);
}

}  // namespace lorvane::desktop
