// The name of a group beside its field, with the group's dot, or a plain word. Knows no group but by colour.
#pragma once

#include <QString>

#include "desktop/kit/painted_text.h"

namespace lorvane::desktop {

class ArmLabel : public PaintedText {
    Q_OBJECT

public:
    enum class Dot { None, Treated, Control };

    explicit ArmLabel(QWidget* parent = nullptr);

    void setArm(Dot dot, const QString& name);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Dot dot_ = Dot::None;
    QString name_;
};

}  // namespace lorvane::desktop
