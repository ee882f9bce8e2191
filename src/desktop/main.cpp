// Lorvane with its window.
#include <QApplication>
#include <QFile>
#include <QFileInfo>

#include "app/application.h"
#include "desktop/crash_guard.h"
#include "desktop/desk.h"
#include "desktop/desk_progress.h"
#include "desktop/kit/logo.h"
#include "desktop/kit/theme.h"
#include "desktop/main_window.h"
#include "desktop/panels.h"
#include "numerics/numeric_distribution_library.h"
#include "os/disk_file_store.h"
#include "os/program_folder.h"
#include "os/unsaved_folder.h"
#include "qt/qt_clipboard.h"
#include "qt/qt_file_dialogs.h"
#include "qt/qt_locale.h"
#include "qt/qt_message_boxes.h"
#include "qt/qt_settings_store.h"

int main(int argc, char** argv) {
    using namespace lorvane;
    QApplication qt(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Lorvane"));
    QApplication::setApplicationVersion(QStringLiteral(LORVANE_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("lorvane"));
    desktop::applyTheme(qt);
    QApplication::setWindowIcon(desktop::logoIcon());

    NumericDistributionLibrary distributions;
    const QtLocale locale;
    DiskFileStore files;
    QtMessageBoxes messages;
    QtFileDialogs dialogs;
    QtSettingsStore settings;
    UnsavedFolder unsaved(userStateFolder());
    desktop::DeskProgress progress;
    QtClipboard clipboard;
    Application application({distributions, locale, files, messages, dialogs, settings, programFolder(),
                             &unsaved, &progress, &clipboard});
    desktop::Desk desk(application, messages);
    desktop::MainWindow window(desk);
    desktop::Panels panels(desk, window);
    messages.setOwner(&window);
    messages.beforeShowing([&panels] { panels.follow(); });
    dialogs.setOwner(&window);
    dialogs.beforeShowing([&panels] { panels.follow(); });
    progress.setRedraw([&panels] { panels.follow(); });
    desktop::CrashGuard guard(desk, unsaved);
    window.show();
    desk.start(argc > 1 ? QFileInfo(QFile::decodeName(argv[1])).absoluteFilePath() : QString());
    const int code = QApplication::exec();
    guard.finish();
    return code;
}
