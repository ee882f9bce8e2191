// Painting and width of words with numbers.
#include "desktop/kit/stressed_label.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QRegularExpression>
#include <algorithm>
#include <cmath>

#include "desktop/kit/number_text.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"
#include "desktop/kit/zoom.h"

namespace lorvane::desktop {

namespace {

struct Run {
    QString text;
    bool isNumber;

    QFont font() const { return textFont(isNumber ? TextStyle::BodyStrong : TextStyle::Body); }
    double width() const { return numberWidth(font(), text); }
};

QList<Run> runsOf(const QString& text) {
    static const QRegularExpression run(QStringLiteral("\\d+|\\D+"));
    QList<Run> runs;
    for (auto found = run.globalMatch(text); found.hasNext();) {
        const QString words = found.next().captured();
        runs.append({words, words[0].isDigit()});
    }
    return runs;
}

double widthOf(const QList<Run>& runs) {
    double width = 0;
    for (const Run& run : runs)
        width += run.width();
    return width;
}

}  // namespace

void StressedLabel::setText(const QString& text) {
    if (text == text_)
        return;
    text_ = text;
    setAccessibleName(text);
    updateGeometry();
    update();
}

QSize StressedLabel::sizeHint() const {
    QList<Run> runs = runsOf(text_);
    qsizetype longest = 0;
    for (const Run& run : runs)
        longest = std::max(longest, run.isNumber ? run.text.size() : 0);
    for (Run& run : runs) {
        if (run.isNumber)
            run.text.fill(QLatin1Char('0'), longest);
    }
    const double height = QFontMetricsF(textFont(TextStyle::BodyStrong)).height();
    const QSizeF text(std::ceil(widthOf(runs)), std::ceil(height));
    return QSize(zoomed(*this, text.width()), zoomed(*this, text.height())).grownBy(contentsMargins());
}

void StressedLabel::paintEvent(QPaintEvent*) {
    const QList<Run> runs = runsOf(text_);
    const QRectF room(QPointF(contentsRect().topLeft()) / zoomOf(*this),
                      QSizeF(contentsRect().size()) / zoomOf(*this));
    ZoomedPainter painter(*this);
    double x = room.center().x() - widthOf(runs) / 2;
    for (const Run& run : runs) {
        painter.setFont(run.font());
        painter.setPen(colour(run.isNumber ? Role::Text : Role::SecondText));
        drawNumber(painter, QPointF(x, centredBaseline(run.font(), room)), run.text);
        x += run.width();
    }
}

}  // namespace lorvane::desktop
