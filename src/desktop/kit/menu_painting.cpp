// The sheet and the entries of menus.
#include "desktop/kit/menu_painting.h"

#include <algorithm>

#include <QPainter>
#include <QStyleOptionMenuItem>

#include "desktop/kit/icons.h"
#include "desktop/kit/painting.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"

namespace lorvane::desktop {

namespace {

constexpr int RowHeight = 32;
constexpr int SeparatorHeight = 11;
constexpr int SignSize = 18;
constexpr int SubmenuSize = 14;
constexpr int Inset = 12;    ///< from the plate of a row to its sign or key
constexpr int SignGap = 11;  ///< between sign and text
constexpr int KeyGap = 28;   ///< between text and key
constexpr int SmallestWidth = 180;
constexpr int TextLeft = MenuPadding + Inset + SignSize + SignGap;

bool isEnabled(const QStyleOptionMenuItem& entry) { return entry.state & QStyle::State_Enabled; }

bool isChecked(const QStyleOptionMenuItem& entry) {
    return entry.checkType != QStyleOptionMenuItem::NotCheckable && entry.checked;
}

void paintSign(QPainter& painter, const QStyleOptionMenuItem& entry, const QRect& row) {
    const QRect area(row.left() + Inset, row.center().y() - SignSize / 2 + 1, SignSize, SignSize);
    if (isChecked(entry))
        drawIcon(painter, Icon::Check, area, colour(isEnabled(entry) ? Role::Accent : Role::Quiet));
    else
        entry.icon.paint(&painter, area, Qt::AlignCenter, isEnabled(entry) ? QIcon::Normal : QIcon::Disabled);
}

void paintWords(QPainter& painter, const QStyleOptionMenuItem& entry, const QRect& row, int mnemonicFlag) {
    const qsizetype tab = entry.text.indexOf(QLatin1Char('\t'));
    const QString words = tab < 0 ? entry.text : entry.text.left(tab);
    const QString key = tab < 0 ? QString() : entry.text.mid(tab + 1);
    const int flags = Qt::AlignVCenter | Qt::TextSingleLine;
    painter.setFont(entry.font);
    painter.setPen(colour(isEnabled(entry) ? Role::Text : Role::Quiet));
    painter.drawText(row.adjusted(TextLeft - MenuPadding, 0, -Inset, 0), flags | Qt::AlignLeft | mnemonicFlag,
                     words);
    painter.setFont(textFont(TextStyle::Caption));
    painter.setPen(colour(isEnabled(entry) ? Role::SecondText : Role::Quiet));
    painter.drawText(row.adjusted(0, 0, -Inset, 0), flags | Qt::AlignRight, key);
}

}  // namespace

void paintMenuSheet(QPainter& painter, const QRect& bounds) {
    drawPlate(painter, bounds, CardRadius, colour(Role::Card), colour(Role::Line));
}

QSize menuEntrySize(const QStyleOptionMenuItem& entry, int textWidth) {
    if (entry.menuItemType == QStyleOptionMenuItem::Separator)
        return {SmallestWidth, SeparatorHeight};
    const bool hasEnd =
        entry.menuItemType == QStyleOptionMenuItem::SubMenu || entry.reservedShortcutWidth > 0;
    const int width = TextLeft + textWidth + (hasEnd ? KeyGap : 0) + Inset + MenuPadding;
    return {std::max(width, SmallestWidth), RowHeight};
}

void paintMenuEntry(QPainter& painter, const QStyleOptionMenuItem& entry, bool showsMnemonic) {
    if (entry.menuItemType == QStyleOptionMenuItem::Separator) {
        painter.fillRect(QRect(entry.rect.left(), entry.rect.center().y(), entry.rect.width(), 1),
                         colour(Role::Line));
        return;
    }
    const QRect row = entry.rect.adjusted(MenuPadding, 0, -MenuPadding, 0);
    if ((entry.state & QStyle::State_Selected) && isEnabled(entry))
        fillPlate(painter, row, FieldRadius, colour(Role::Field));
    paintSign(painter, entry, row);
    paintWords(painter, entry, row, showsMnemonic ? Qt::TextShowMnemonic : Qt::TextHideMnemonic);
    if (entry.menuItemType == QStyleOptionMenuItem::SubMenu)
        drawIcon(painter, Icon::ChevronRight,
                 QRect(row.right() + 1 - Inset - SubmenuSize, row.center().y() - SubmenuSize / 2 + 1,
                       SubmenuSize, SubmenuSize),
                 colour(isEnabled(entry) ? Role::SecondText : Role::Quiet));
}

}  // namespace lorvane::desktop
