// The clipboard of the system.
#include "qt/qt_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace lorvane {

void QtClipboard::put(const ClipboardText& content) {
    auto* data = new QMimeData;
    data->setText(QString::fromStdString(content.text));
    if (!content.html.empty())
        data->setHtml(QString::fromStdString(content.html));
    QGuiApplication::clipboard()->setMimeData(data);
}

}  // namespace lorvane
