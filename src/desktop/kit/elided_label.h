// A line of text that gives way: it is cut with an ellipsis where there is no room, and its tip has the rest.
#pragma once

#include <QLabel>

namespace lorvane::desktop {

class ElidedLabel : public QLabel {
    Q_OBJECT

public:
    /// Asks for at most so much width; any smaller one will do.
    explicit ElidedLabel(int widest = QWIDGETSIZE_MAX, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QRect room() const;
    QString fitting() const;

    int widest_;
};

}  // namespace lorvane::desktop
