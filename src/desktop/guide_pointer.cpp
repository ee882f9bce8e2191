// The outline of the guide.
#include "desktop/guide_pointer.h"

#include <QEvent>
#include <utility>

#include "desktop/kit/outline_overlay.h"
#include "desktop/main_window.h"

namespace lorvane::desktop {

namespace {

// What is seen of widgets, without what lies behind the edges of their parents.
QRect seenOf(const QList<QWidget*>& widgets, const QWidget& window) {
    QRect seen;
    for (const QWidget* widget : widgets) {
        const QRect part = widget->visibleRegion().boundingRect();
        if (!part.isEmpty() && widget->window() == &window)
            seen |= QRect(widget->mapTo(&window, part.topLeft()), part.size());
    }
    return seen;
}

void outline(OutlineOverlay& overlay, const QList<QWidget*>& widgets) {
    const QRect seen = seenOf(widgets, *overlay.parentWidget()->window());
    overlay.setOutlines(seen.isEmpty() ? QList<Outline>() : QList<Outline>{{seen, GuideDistance}});
}

}  // namespace

GuidePointer::GuidePointer(Desk& desk, MainWindow& window)
    : desk_(desk), window_(window), onWindow_(new OutlineOverlay(&window)) {
    soon_.setSingleShot(true);
    connect(&soon_, &QTimer::timeout, this, &GuidePointer::draw);
    connect(&desk_, &Desk::shown, this, &GuidePointer::follow);
    window.centralWidget()->installEventFilter(this);
    window.installEventFilter(this);
    follow();
}

// Layouts move what is pointed at without a word of the program.
bool GuidePointer::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest ||
        event->type() == QEvent::Show)
        soon_.start(0);
    return QObject::eventFilter(watched, event);
}

QList<QWidget*> GuidePointer::pointedAt() const {
    QList<QWidget*> widgets;
    const Guide& guide = desk_.application().guide();
    if (!guide.isOpen())
        return widgets;
    for (const std::string& name : guide.target().around)
        widgets.append(window_.control(name));
    return widgets;
}

void GuidePointer::follow() {
    const Guide& guide = desk_.application().guide();
    const int frame = guide.isOpen() ? guide.CurrentTip() : -1;
    if (std::exchange(frame_, frame) != frame && frame >= 0)
        window_.reveal(guide.target().around);
    soon_.start(0);
}

void GuidePointer::draw() {
    const QList<QWidget*> widgets = pointedAt();
    outline(*onWindow_, widgets);
    QWidget* wizard = window_.findChild<QWidget*>(QStringLiteral("frmOptimal"));
    if (onWizard_ == nullptr && wizard != nullptr)
        onWizard_ = new OutlineOverlay(wizard);
    if (onWizard_ != nullptr)
        outline(*onWizard_, widgets);
}

}  // namespace lorvane::desktop
