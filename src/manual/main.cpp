// lorvane-manual: a Markdown file becomes a manual as PDF. The build runs it.
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <exception>
#include <iostream>

#include "manual/manual_document.h"
#include "manual/source_list.h"
#include "qt/qt_document_press.h"

namespace {

using namespace lorvane;

void write(const QString& path, const std::string& bytes) {
    QDir().mkpath(QFileInfo(path).path());
    QSaveFile file(path);
    const bool isWritten =
        file.open(QIODevice::WriteOnly) && file.write(QByteArray::fromStdString(bytes)) >= 0 && file.commit();
    if (!isWritten)
        throw std::runtime_error("The file " + path.toStdString() + " cannot be written.");
}

void makeManual(const std::string& from, const std::string& to, const std::string& listOfSources) {
    const SourceList sources =
        listOfSources.empty() ? SourceList() : sourcesOf(contentOf(listOfSources), listOfSources);
    const std::string markdown = withSources(contentOf(from), sources, from);
    QtDocumentPress press;
    press.start(PageSetup());  // Qt reads Markdown only once there is an application
    const ManualText text(from, markdown);
    const Document manual = manualOf(text, "Lorvane " LORVANE_VERSION, press);
    write(QString::fromStdString(to), press.pdf(manual));
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3 || argc > 4) {
        std::cerr << "Use: lorvane-manual IN.md OUT.pdf [SOURCES.txt]\n";
        return 2;
    }
    try {
        makeManual(argv[1], argv[2], argc > 3 ? argv[3] : "");
        return 0;
    } catch (const std::exception& problem) {
        std::cerr << problem.what() << '\n';
        return 1;
    }
}
