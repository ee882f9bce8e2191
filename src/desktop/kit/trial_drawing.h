// The picture of a trial: chance parts the clusters into two arms, and each holds its individuals. A
// decoration, the same for every study.
#pragma once

#include <QWidget>

namespace lorvane::desktop {

/// Keeps its shape: in a smaller place it is drawn smaller, in a larger one as large as sizeHint().
class TrialDrawing : public QWidget {
    Q_OBJECT

public:
    explicit TrialDrawing(QWidget* parent = nullptr) : QWidget(parent) {}

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace lorvane::desktop
