// A line between parts of a panel.
#pragma once

#include <QWidget>

namespace lorvane::desktop {

/// One pixel high, as wide as it is let.
class Rule : public QWidget {
    Q_OBJECT

public:
    explicit Rule(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace lorvane::desktop
