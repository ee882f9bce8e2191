// Texts are shown letter by letter: a name that a user gave may hold markup, and markup can name files.
#pragma once

#include <QString>

class QWidget;

namespace lorvane::desktop {

/// Makes a label plain, whatever its text looks like. The style calls it for every widget before it is shown
/// or asked for its size, so it holds for tips and message boxes as well. Who asks a new label for its height
/// at a width calls ensurePolished first.
void keepPlain(QWidget& widget);

/// The text for a tab, a button or an entry of a menu, where a single "&" would mark a key.
QString literalCaption(QString text);

/// The text for the title of a window, where "[*]" would stand for a mark of unsaved work.
QString literalTitle(QString text);

}  // namespace lorvane::desktop
