// A strip of short lines, one a step of a way, which tells how far one has come. Knows nothing of the steps.
#pragma once

#include <QWidget>

namespace lorvane::desktop {

class StepStrip : public QWidget {
    Q_OBJECT

public:
    explicit StepStrip(QWidget* parent = nullptr);

    /// How many steps there are, how many are behind, and whether the last of those is the present one.
    void setSteps(int count, int begun, bool isOnLast);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int count_ = 0;
    int begun_ = 0;
    bool isOnLast_ = false;
};

}  // namespace lorvane::desktop
