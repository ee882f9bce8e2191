// Starting Qt without a display.
#include "qt/offscreen_application.h"

#include <QApplication>
#include <clocale>
#include <cstdio>
#include <string>

namespace lorvane {

namespace {

// Qt warns of locales that are not of UTF-8; only text is drawn here.
void onlyFatal(QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", text.toLocal8Bit().constData());
}

constexpr const char* withoutWindows = "lorvane without windows";

}  // namespace

OffscreenApplication::OffscreenApplication() = default;

OffscreenApplication::~OffscreenApplication() = default;

void OffscreenApplication::ensure() {
    if (QCoreApplication::instance() != nullptr)
        return;
    static char name[] = "lorvane";
    static char option[] = "-platform";
    static char platform[] = "offscreen";
    static char* arguments[] = {name, option, platform, nullptr};
    static int count = 3;
    const std::string locale = std::setlocale(LC_ALL, nullptr);
    const QtMessageHandler before = qInstallMessageHandler(onlyFatal);
    own_ = std::make_unique<QApplication>(count, arguments);
    qInstallMessageHandler(before);
    own_->setProperty(withoutWindows, true);
    std::setlocale(LC_ALL, locale.c_str());
}

bool OffscreenApplication::hasWindows() {
    const QCoreApplication* const application = QCoreApplication::instance();
    return application != nullptr && !application->property(withoutWindows).toBool();
}

}  // namespace lorvane
