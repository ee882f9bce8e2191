// The letters of a menu that reach its entries by keyboard: every entry has one, and no two have the same.
#pragma once

#include <QList>
#include <QString>

class QAction;

namespace lorvane::desktop {

/// Gives each visible entry a letter. One that stands in its text already, behind an "&", stays where it can;
/// the others get one that is free, words' beginnings first.
void giveMnemonics(const QList<QAction*>& entries);

/// A text of a menu as it stands elsewhere: "&Save" is "Save", "R&&D" is "R&D".
QString withoutMnemonic(const QString& text);

}  // namespace lorvane::desktop
