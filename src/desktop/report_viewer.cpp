// The viewer of the report.
#include "desktop/report_viewer.h"

#include <QAction>
#include <QEvent>
#include <QVBoxLayout>
#include <utility>

#include "desktop/kit/elided_label.h"
#include "desktop/kit/text_style.h"
#include "desktop/menus.h"
#include "desktop/report_find.h"
#include "desktop/report_pages.h"
#include "reporting/document_text.h"

namespace lorvane::desktop {

namespace {

constexpr const char* screenName = "frmPrint";
constexpr QSize firstSize(1080, 1000);
constexpr QSize smallestSize(600, 420);
constexpr int statusHeight = 28;
constexpr int statusMargin = 20;
constexpr int narrow = 1060;  // below, the words of the tool bar go

}  // namespace

ReportViewer::ReportViewer(Desk& desk, ToolPanel* panel)
    : PanelView(desk, panel, screenName), menus_(new Menus(desk, panel, screenName)),
      find_(new ReportFind(desk, *menus_)), pages_(new ReportPages), status_(new ElidedLabel) {
    panel->setWindowTitle(QString::fromLatin1(ReportScreen::title));
    panel->installEventFilter(this);
    QVBoxLayout* column = makeScreen(firstSize, smallestSize);
    menus_->addTo(column);
    column->addWidget(find_);
    column->addWidget(pages_, 1);
    addStatus();
    connect(pages_, &ReportPages::pageReached, this,
            [this](int page) { desk_.setNumber("frmPrint.CurrentPage", page); });
    // What fits the window is told when the program is done with what it is about.
    connect(
        pages_, &ReportPages::fitted, this,
        [this](int percent) {
            if (percent != model().view().percent)
                desk_.setNumber("frmPrint.Zoom", percent);
        },
        Qt::QueuedConnection);
    connect(pages_, &ReportPages::zoomTurned, this,
            [this](int direction) { desk_.tool(direction > 0 ? "Zoom in" : "Zoom out"); });
    // Also while it is open already.
    connect(menus_->action("Find"), &QAction::triggered, find_, &ReportFind::takeFocus);
}

void ReportViewer::addStatus() {
    status_->setFont(textFont(TextStyle::Caption));
    status_->setProperty("second", true);
    status_->setFixedHeight(statusHeight);
    status_->setContentsMargins(statusMargin, 0, statusMargin, 0);
    status_->setBackgroundRole(QPalette::Window);
    status_->setAutoFillBackground(true);
    panel()->content()->addWidget(status_);
}

// A narrow window has no room for the words of its bar.
bool ReportViewer::eventFilter(QObject* watched, QEvent* event) {
    if (watched == panel() && event->type() == QEvent::Resize)
        menus_->setNarrow(panel()->width() < narrow);
    return PanelView::eventFilter(watched, event);
}

bool ReportViewer::isOpen() const { return model().isOpen(); }

void ReportViewer::syncPages() {
    if (revision_ == model().revision())
        return pages_->setView(model().view());
    revision_ = model().revision();
    pages_->setDocument(model().document(), model().view());
    pages_->setAccessibleDescription(shownText(plainTextOf(model().document())));
}

// The keyboard is with the pages, and while a text is looked for with its field. It goes before the field is
// hidden, or it would go to whatever is next.
void ReportViewer::syncFocus() {
    const bool opens = !std::exchange(wasOpen_, isOpen()) && isOpen();
    const bool finding = model().view().isFinding;
    const bool wasFinding = std::exchange(wasFinding_, finding);
    if (opens || (wasFinding && !finding))
        pages_->setFocus(Qt::OtherFocusReason);
    find_->sync();
    if (finding && !wasFinding)
        find_->takeFocus();
}

void ReportViewer::sync() {
    menus_->sync();
    syncFocus();
    const QString status = shownText(model().pnlStatus().Caption);
    status_->setText(status);
    status_->setVisible(!status.isEmpty());
    syncPages();
    pages_->setAccessibleName(
        QStringLiteral("%1, %2").arg(panel()->windowTitle(), shownText(model().caption().Caption)));
}

}  // namespace lorvane::desktop
