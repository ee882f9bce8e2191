// The programs that the desktop has for files.
#include "qt/qt_shell.h"

#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

namespace lorvane {

bool QtShell::open(const std::string& path) {
    const QFileInfo file(QFile::decodeName(QByteArray::fromStdString(path)));
    return file.exists() && QDesktopServices::openUrl(QUrl::fromLocalFile(file.absoluteFilePath()));
}

}  // namespace lorvane
