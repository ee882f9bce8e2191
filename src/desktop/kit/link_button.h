// Words that lead somewhere. Where they lead belongs to their owner.
#pragma once

#include <QAbstractButton>

namespace lorvane::desktop {

class LinkButton : public QAbstractButton {
    Q_OBJECT

public:
    explicit LinkButton(const QString& text, QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace lorvane::desktop
