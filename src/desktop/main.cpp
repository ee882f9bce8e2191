// Lorvane with its window.
#include <QFile>
#include <QFileInfo>

#include "app/application.h"
#include "desktop/crash_guard.h"
#include "desktop/desk.h"
#include "desktop/desk_application.h"
#include "desktop/desk_message_boxes.h"
#include "desktop/desk_progress.h"
#include "desktop/kit/logo.h"
#include "desktop/kit/theme.h"
#include "desktop/main_window.h"
#include "desktop/panels.h"
#include "desktop/program_facts.h"
#include "desktop/window_memory.h"
#include "numerics/numeric_distribution_library.h"
#include "os/disk_file_store.h"
#include "os/program_folder.h"
#include "os/unsaved_folder.h"
#include "platform/failure_words.h"
#include "qt/qt_chart.h"
#include "qt/qt_clipboard.h"
#include "qt/qt_document_press.h"
#include "qt/qt_file_dialogs.h"
#include "qt/qt_hourglass.h"
#include "qt/qt_locale.h"
#include "qt/qt_settings_store.h"
#include "qt/qt_shell.h"
#include "sheets/sheet_files.h"

namespace {

using namespace lorvane;

int run(desktop::DeskApplication& qt, const QString& file) {
    QApplication::setApplicationName(QStringLiteral("Lorvane"));
    QApplication::setApplicationVersion(QStringLiteral(LORVANE_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("lorvane"));
    desktop::applyTheme(qt);
    QApplication::setWindowIcon(desktop::logoIcon());

    NumericDistributionLibrary distributions;
    const QtLocale locale;
    DiskFileStore files;
    desktop::DeskMessageBoxes messages;
    QtFileDialogs dialogs;
    QtSettingsStore settings;
    UnsavedFolder unsaved(userStateFolder());
    desktop::DeskProgress progress;
    QtClipboard clipboard;
    QtHourglass hourglass;
    QtChart chart;
    QtDocumentPress press;
    SheetFiles sheets;
    QtShell shell;
    Application application({distributions, locale, files, messages, dialogs, settings, programFolder(),
                             &unsaved, &progress, &clipboard, nullptr, &hourglass, &chart, &sheets, &shell,
                             &press, desktop::programFacts()});
    desktop::Desk desk(application, messages);
    desktop::MainWindow window(desk);
    desktop::Panels panels(desk, window);
    messages.setOwner(&window);
    messages.beforeShowing([&panels] { panels.follow(); });
    dialogs.setOwner(&window);
    dialogs.beforeShowing([&panels] { panels.follow(); });
    progress.setRedraw([&panels] { panels.follow(); });
    qt.whenFailed(
        [&messages](const std::string& words) { messages.show(failureMessage(failureTitle, words)); });
    desktop::CrashGuard guard(desk, unsaved);
    desktop::WindowMemory memory(settings);
    memory.restore(window);
    panels.docks().restore(memory.state("Docks"));
    window.show();
    desk.start(file);
    const int code = QApplication::exec();
    memory.setState("Docks", panels.docks().state());
    panels.docks().shrinkWindow();
    memory.save(window);
    guard.finish();
    return code;
}

}  // namespace

// A failure that leaves nothing to go on with is told at least; what was not saved is offered next time.
int main(int argc, char** argv) {
    desktop::DeskApplication qt(argc, argv);
    try {
        return run(qt, argc > 1 ? QFileInfo(QFile::decodeName(argv[1])).absoluteFilePath() : QString());
    } catch (...) {
        desktop::DeskMessageBoxes().show(failureMessage(failureTitle, failureWords()));
        return 1;
    }
}
