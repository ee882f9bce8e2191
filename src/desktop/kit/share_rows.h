// Rows of shares: a name, a number, a bar and an amount each, in one line or in two. All texts are given.
#pragma once

#include <QList>

#include "desktop/kit/painted_text.h"

namespace lorvane::desktop {

/// One row.
struct ShareRow {
    QString name;     ///< cut where it is too long; the tip has it in full
    QString number;   ///< beside the name; only while the row has one line
    QString details;  ///< below the bar; only in two lines
    QString amount;
    QString percent;   ///< below the bar at its right end; only in two lines
    double share = 0;  ///< how far the bar is filled, 0 to 1
    bool operator==(const ShareRow&) const = default;
};

/// The rows share the height, up to a point; high rows have two lines.
class ShareRows : public PaintedText {
    Q_OBJECT

public:
    explicit ShareRows(QWidget* parent = nullptr);

    void setRows(const QList<ShareRow>& rows);
    const QList<ShareRow>& rows() const { return rows_; }

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    double rowHeight() const;
    QRectF boundsOf(int row) const;
    void paintLine(QPainter& painter, const ShareRow& row, const QRectF& bounds) const;
    void paintTwoLines(QPainter& painter, const ShareRow& row, const QRectF& bounds) const;

    QList<ShareRow> rows_;
};

}  // namespace lorvane::desktop
