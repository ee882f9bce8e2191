// The pointer of all windows.
#include "qt/qt_hourglass.h"

#include <QCursor>
#include <QGuiApplication>

namespace lorvane {

void QtHourglass::begin() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }

void QtHourglass::end() { QGuiApplication::restoreOverrideCursor(); }

}  // namespace lorvane
