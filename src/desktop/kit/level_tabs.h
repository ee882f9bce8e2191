// Underlined tabs that share the width that there is. Knows nothing of what they stand for.
#pragma once

#include <QTabBar>

namespace lorvane::desktop {

/// Names that have no room are cut, and a tip has their rest.
class LevelTabs : public QTabBar {
    Q_OBJECT

public:
    explicit LevelTabs(QWidget* parent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    QSize minimumTabSizeHint(int index) const override;
    bool event(QEvent* event) override;
};

}  // namespace lorvane::desktop
