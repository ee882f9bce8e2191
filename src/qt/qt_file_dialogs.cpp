// File dialogs of the desktop.
#include "qt/qt_file_dialogs.h"

#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>

namespace lorvane {

namespace {

// The pattern of a filter, "*.txt" of "(*.txt)|*.txt".
QString patternOf(const FileDialog& dialog) {
    return QString::fromStdString(dialog.filter).section(QLatin1Char('|'), 1);
}

QString suffixOf(const FileDialog& dialog) {
    const QString named = QString::fromStdString(dialog.defaultExtension);
    return (named.isEmpty() ? patternOf(dialog) : named).section(QLatin1Char('.'), -1);
}

}  // namespace

std::optional<std::string> QtFileDialogs::choose(const FileDialog& dialog) {
    if (redraw_)
        redraw_();
    if (folder_.isEmpty())
        folder_ = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    QFileDialog box(owner_, QString::fromStdString(dialog.title), folder_);
    box.setNameFilter(QLatin1Char('(') + patternOf(dialog) + QLatin1Char(')'));
    if (dialog.kind == FileDialog::Kind::save) {
        box.setAcceptMode(QFileDialog::AcceptSave);
        box.setDefaultSuffix(suffixOf(dialog));
    } else {
        box.setFileMode(QFileDialog::ExistingFile);
    }
    if (box.exec() != QDialog::Accepted || box.selectedFiles().isEmpty())
        return std::nullopt;
    const QString path = box.selectedFiles().constFirst();
    folder_ = QFileInfo(path).absolutePath();
    return QFile::encodeName(path).toStdString();
}

}  // namespace lorvane
