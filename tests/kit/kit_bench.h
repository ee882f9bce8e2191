// A window for widgets under test, and what tells whether they painted. Knows no single widget.
#pragma once

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QImage>
#include <QSignalSpy>
#include <QTest>
#include <QWidget>

#include "desktop/kit/theme.h"

namespace lorvane::desktop {

/// Counts the paintings of a widget.
class PaintCounter : public QObject {
public:
    explicit PaintCounter(QWidget& widget) { widget.installEventFilter(this); }
    int count = 0;

private:
    bool eventFilter(QObject*, QEvent* event) override {
        count += event->type() == QEvent::Paint;
        return false;
    }
};

class KitBench : public testing::Test {
protected:
    void SetUp() override {
        window.resize(400, 300);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    /// Long enough for what is to be painted to be painted.
    static void settle() { QTest::qWait(15); }

    /// How often a change makes a widget paint.
    template <typename Change>
    static int paintsAfter(QWidget& widget, Change change) {
        settle();
        PaintCounter paints(widget);
        change();
        settle();
        return paints.count;
    }

    static QAccessibleInterface& speaker(QWidget& widget) {
        return *QAccessible::queryAccessibleInterface(&widget);
    }
    static std::string spoken(QWidget& widget, QAccessible::Text kind = QAccessible::Name) {
        return speaker(widget).text(kind).toStdString();
    }

    QWidget window;
};

/// The same in the light and in the dark theme.
template <typename Check>
void inBothThemes(Check check) {
    for (const bool dark : {false, true}) {
        setDark(dark);
        check();
    }
    setDark(std::nullopt);
}

/// What a widget paints by itself, on nothing.
inline QImage painted(QWidget& widget) {
    QImage image(widget.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    widget.render(&image, {}, {}, QWidget::DrawChildren);
    return image;
}

/// The number of pixels of a colour; of any colour without one.
inline int pixels(const QImage& image, const QColor& wanted = {}) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            count += wanted.isValid() ? pixel.rgba() == wanted.rgba() : pixel.alpha() > 0;
        }
    return count;
}

}  // namespace lorvane::desktop
