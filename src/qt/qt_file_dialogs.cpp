// File dialogs of the desktop.
#include "qt/qt_file_dialogs.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QStandardPaths>

namespace lorvane {

namespace {

// A filter, "(*.txt)|*.txt", as a dialog words it: "(*.txt) (*.txt)", of which it shows the first part.
QString nameFilter(const std::string& filter) {
    const QString text = QString::fromStdString(filter);
    return QStringLiteral("%1 (%2)").arg(text.section(QLatin1Char('|'), 0, 0),
                                         text.section(QLatin1Char('|'), 1));
}

QString endingOf(const QString& text) { return text.section(QLatin1Char('.'), -1).remove(QLatin1Char(')')); }

// The ending that a name without one gets. A name for saving gets the one of the filter where none is told.
QString suffixOf(const FileDialog& dialog) {
    const bool saves = dialog.kind == FileDialog::Kind::save;
    return endingOf(QString::fromStdString(
        dialog.defaultExtension.empty() && saves ? dialog.filter : dialog.defaultExtension));
}

// A name that is saved gets the ending of the filter that is chosen.
void offerFilters(QFileDialog& box, const FileDialog& dialog) {
    QStringList filters(nameFilter(dialog.filter));
    for (const std::string& other : dialog.otherFilters)
        filters << nameFilter(other);
    box.setNameFilters(filters);
    box.setDefaultSuffix(suffixOf(dialog));
    if (!dialog.otherFilters.empty())
        QObject::connect(&box, &QFileDialog::filterSelected,
                         [&box](const QString& filter) { box.setDefaultSuffix(endingOf(filter)); });
}

// A home without a folder for documents is one itself.
QString firstFolder() {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QDir(documents).exists() ? documents : QDir::homePath();
}

// Stays open with a reason for a path that cannot be taken. The dialogs of a desktop look after that
// themselves; they have no field of ours.
class FileBox : public QFileDialog {
public:
    using QFileDialog::QFileDialog;

protected:
    void accept() override {
        const QString why = findChild<QLineEdit*>() == nullptr ? QString() : problem();
        if (why.isEmpty())
            QFileDialog::accept();
        else
            QMessageBox::information(this, windowTitle(), why);
    }

private:
    QString problem() const {
        const QFileInfo path(selectedFiles().value(0));
        if (path.fileName().size() > longestFileName)
            return QString::fromUtf8(nameTooLong);
        return path.dir().exists() ? QString() : QString::fromUtf8(folderMissing);
    }
};

}  // namespace

std::optional<std::string> QtFileDialogs::choose(const FileDialog& dialog) {
    if (redraw_)
        redraw_();
    if (folder_.isEmpty())
        folder_ = firstFolder();
    const QPointer<QWidget> over = owner_ ? owner_->window() : nullptr;
    FileBox box(over, QString::fromStdString(dialog.title), folder_);
    // Without its details a filter shows what stands before the last bracket.
    box.setOption(QFileDialog::HideNameFilterDetails);
    box.setOption(QFileDialog::DontConfirmOverwrite, !dialog.asksBeforeReplacing);
    offerFilters(box, dialog);
    if (dialog.kind == FileDialog::Kind::save)
        box.setAcceptMode(QFileDialog::AcceptSave);
    else
        box.setFileMode(QFileDialog::ExistingFile);
    if (!dialog.suggestedName.empty())
        box.selectFile(QString::fromStdString(dialog.suggestedName));
    const bool isChosen = box.exec() == QDialog::Accepted;
    giveKeyboard(over);
    if (!isChosen || box.selectedFiles().isEmpty())
        return std::nullopt;
    const QString path = box.selectedFiles().constFirst();
    folder_ = QFileInfo(path).absolutePath();
    return QFile::encodeName(path).toStdString();
}

}  // namespace lorvane
