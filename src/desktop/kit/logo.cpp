// Paints the mark from its one drawing.
#include "desktop/kit/logo.h"

#include <QFile>
#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

#include "desktop/kit/theme.h"

/// The resources of a static library are reachable only once named; this has to happen outside namespaces.
static void loadLogoResource() { Q_INIT_RESOURCE(lorvane_icons); }

namespace lorvane::desktop {

namespace {

constexpr int Width = 30;
constexpr int Height = 31;
constexpr int IconSizes[] = {16, 20, 24, 32, 48, 64, 128, 256};

/// A colour of the drawing and what it means.
struct Ink {
    const char* drawn;
    Role role;
};

constexpr Ink Inks[] = {{"#181b22", Role::Text}, {"#4254c5", Role::Treated}, {"#b47b2b", Role::Control}};

QByteArray drawing() {
    loadLogoResource();
    QFile source(QStringLiteral(":/icons/lorvane.svg"));
    return source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray();
}

/// The largest area of the shape of the mark in the middle of another.
QRectF fitted(const QSizeF& shape, const QRectF& area) {
    QRectF result(QPointF(0, 0), shape.scaled(area.size(), Qt::KeepAspectRatio));
    result.moveCenter(area.center());
    return result;
}

}  // namespace

void drawLogo(QPainter& painter, const QRectF& area) {
    const QString mark = QStringLiteral("mark");
    QByteArray svg = drawing();
    for (const Ink& ink : Inks)
        svg.replace(ink.drawn, colour(ink.role).name().toLatin1());
    QSvgRenderer renderer(svg);
    renderer.render(&painter, mark, fitted(renderer.boundsOnElement(mark).size(), area));
}

QIcon logoIcon() {
    QSvgRenderer renderer(drawing());
    QIcon icon;
    for (const int size : IconSizes) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        renderer.render(&painter);
        icon.addPixmap(pixmap);
    }
    return icon;
}

Logo::Logo(QWidget* parent) : QWidget(parent) { setFixedSize(Width, Height); }

void Logo::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    drawLogo(painter, QRectF(rect()));
}

}  // namespace lorvane::desktop
