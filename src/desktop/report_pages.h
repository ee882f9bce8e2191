// The pages of a report below each other: where they stand, which of them is read, and what is painted.
// Scrolling is all that it decides.
#pragma once

#include <QAbstractScrollArea>
#include <QList>
#include <memory>
#include <optional>
#include <utility>

#include "qt/document_pages.h"
#include "reporting/report_view.h"

namespace lorvane::desktop {

/// The owner gives it its accessible name and description. Pages are counted from 1.
class ReportPages final : public QAbstractScrollArea {
    Q_OBJECT

public:
    explicit ReportPages(QWidget* parent = nullptr);

    /// Other pages, shown as told; what was in view stays in view. An empty document has none.
    void setDocument(const Document& document, const ReportView& view);

    /// The same pages, shown as told.
    void setView(const ReportView& view);

    /// Where a page stands in the viewport.
    QRect pageRect(int page) const;

    /// Where the current match stands in the viewport; empty without one.
    QRect matchRect() const;

    QSize sizeHint() const override { return {900, 800}; }

signals:
    /// The user scrolled to another page.
    void pageReached(int page);

    /// The pages were made to fit the window, in percent of the true size.
    void fitted(int percent);

    /// The wheel turned by a step with Ctrl held: larger (1) or smaller (-1).
    void zoomTurned(int direction);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int right, int down) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    /// Where the upper edge of the viewport lies beside that of the current page.
    struct Place {
        double inside = 0;  ///< below it, in heights of the page
        int before = 0;     ///< above it, in pixels
    };

    int count() const { return pages_ ? pages_->pages() : 0; }
    QSize room() const;
    double scaleFor() const;
    int topOf(int page) const;
    int leftOfPages() const;
    void arrange();
    void setRanges();
    void toPlace();
    void notePlace();
    void noteAcross();
    int pageInView() const;
    void tellPage();
    void goToCurrent();
    void readMatches();
    void showMatch();
    QRect rectOf(const DocumentPages::Spot& spot) const;
    void setRing(bool shown);
    void paintPage(QPainter& painter, int page) const;
    void paintMatches(QPainter& painter, int page) const;

    std::unique_ptr<DocumentPages> pages_;
    ReportView view_;
    double scale_ = 1;       ///< pixels for a point
    double leftMargin_ = 0;  ///< of the text, in points
    QSize page_;             ///< pixels
    Place place_;
    double across_ = 0.5;  ///< of the content, what stands in the middle of the viewport
    bool arranging_ = false;
    bool ring_ = false;  ///< it was reached by the keyboard
    int turned_ = 0;     ///< what the wheel turned with Ctrl since its last step
    QList<QList<DocumentPages::Spot>> matches_;
};

}  // namespace lorvane::desktop
