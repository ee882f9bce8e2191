// Reads the drawings, colours their strokes and hands them out as icons. Vectors at every size.
#include "desktop/kit/icons.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include <QFile>
#include <QIcon>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

#include "desktop/kit/theme.h"

/// The resources of a static library are reachable only once named; this has to happen outside namespaces.
static void loadIconResources() { Q_INIT_RESOURCE(lorvane_icons); }

namespace lorvane::desktop {

namespace {

/// In the order of Icon.
constexpr std::array<const char*, IconCount> Files = {
    "add-scenario",  "arrow-down",   "arrow-up", "block", "book",   "check",   "chevron-down", "chevron-left",
    "chevron-right", "chevron-up",   "close",    "coin",  "copy",   "corner",  "cost-bar",     "cost-digits",
    "details",       "edit",         "export",   "film",  "first",  "fit",     "float",        "font",
    "gear",          "graph",        "guide",    "last",  "legend", "link",    "max-cost",     "mdes",
    "more",          "more-menus",   "nest",     "new",   "note",   "open",    "optimal",      "plus",
    "power-bar",     "power-digits", "print",    "redo",  "report", "restore", "save",         "scenarios",
    "sections",      "series",       "shuffle",  "table", "target", "trash",   "undo",         "warning",
    "width",         "x-axis",
};

QByteArray drawing(Icon name) {
    static const bool loaded = (loadIconResources(), true);
    Q_UNUSED(loaded)
    const QString file = QString::fromLatin1(Files[static_cast<std::size_t>(name)]);
    QFile source(QStringLiteral(":/icons/%1.svg").arg(file));
    return source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray();
}

Role roleOf(QIcon::Mode mode, QIcon::State state) {
    if (mode == QIcon::Disabled)
        return Role::Quiet;
    return state == QIcon::On ? Role::Accent : Role::SecondText;
}

/// An icon that looks up its colour each time it is drawn.
class LineIconEngine : public QIconEngine {
public:
    explicit LineIconEngine(Icon name) : name_(name) {}

    void paint(QPainter* painter, const QRect& area, QIcon::Mode mode, QIcon::State state) override {
        drawIcon(*painter, name_, area, colour(roleOf(mode, state)));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap result(size);
        result.fill(Qt::transparent);
        QPainter painter(&result);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return result;
    }

    QIconEngine* clone() const override { return new LineIconEngine(name_); }

private:
    Icon name_;
};

}  // namespace

QIcon icon(Icon name) { return QIcon(new LineIconEngine(name)); }

void drawIcon(QPainter& painter, Icon name, const QRectF& area, const QColor& colour) {
    const double side = std::min(area.width(), area.height());
    const double top = area.center().y() - side / 2;
    QSvgRenderer renderer(drawing(name).replace("currentColor", colour.name().toLatin1()));
    renderer.render(&painter, QRectF(area.left(), top, side, side));
}

}  // namespace lorvane::desktop
