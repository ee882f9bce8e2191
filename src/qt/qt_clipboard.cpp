// The clipboard of the system.
#include "qt/qt_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>

namespace lorvane {

void QtClipboard::put(const ClipboardContent& content) {
    auto* data = new QMimeData;
    if (!content.text.empty())
        data->setText(QString::fromStdString(content.text));
    if (!content.html.empty())
        data->setHtml(QString::fromStdString(content.html));
    if (!content.png.empty())
        data->setImageData(QImage::fromData(QByteArray::fromStdString(content.png)));
    QGuiApplication::clipboard()->setMimeData(data);
}

}  // namespace lorvane
