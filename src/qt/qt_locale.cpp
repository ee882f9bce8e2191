// The regional settings of the desktop.
#include "qt/qt_locale.h"

#include <QLocale>

namespace lorvane {

std::string QtLocale::currencyOfZero() const { return QLocale::system().toCurrencyString(0.0).toStdString(); }

}  // namespace lorvane
