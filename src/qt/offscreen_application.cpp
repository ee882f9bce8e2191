// Starting Qt without a display.
#include "qt/offscreen_application.h"

#include <QApplication>
#include <algorithm>
#include <array>
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
    // Qt takes its options out of what it is given, and one application may follow another.
    static char* arguments[4];
    static int count;
    std::copy_n(std::array{name, option, platform, static_cast<char*>(nullptr)}.begin(), 4, arguments);
    count = 3;
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
