// Lorvane with its window.
#include <QApplication>

#include "app/application.h"
#include "desktop/desk.h"
#include "desktop/kit/theme.h"
#include "desktop/main_window.h"
#include "desktop/panels.h"
#include "numerics/numeric_distribution_library.h"
#include "os/disk_file_store.h"
#include "qt/qt_locale.h"
#include "qt/qt_message_boxes.h"

int main(int argc, char** argv) {
    using namespace lorvane;
    QApplication qt(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Lorvane"));
    QApplication::setApplicationVersion(QStringLiteral(LORVANE_VERSION));
    desktop::applyTheme(qt);

    NumericDistributionLibrary distributions;
    const QtLocale locale;
    DiskFileStore files;
    QtMessageBoxes messages;
    Application application({distributions, locale, files, messages});
    desktop::Desk desk(application, messages);
    desktop::MainWindow window(desk);
    desktop::Panels panels(desk, window);
    messages.setOwner(&window);
    messages.beforeShowing([&panels] { panels.follow(); });
    if (argc > 1)
        desk.open(QString::fromLocal8Bit(argv[1]));
    window.show();
    return QApplication::exec();
}
