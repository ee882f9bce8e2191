// The name of a group beside its field, with a dot in the colour of the group. Shows a plain word too.
#pragma once

#include <QString>

#include "desktop/kit/painted_text.h"

namespace lorvane::desktop {

/// One line of caption text. Words that are too long for the width end in three dots, or leave the dot alone,
/// and stand whole in the tip.
class ArmLabel : public PaintedText {
    Q_OBJECT

public:
    /// The dot before the name: none, or one in the colour of an arm.
    enum class Dot { None, Treated, Control };

    explicit ArmLabel(QWidget* parent = nullptr);

    /// The dot and the text behind it; screen readers get the text.
    void setArm(Dot dot, const QString& name);

    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void tellRest();

    Dot dot_ = Dot::None;
    QString name_;
};

}  // namespace lorvane::desktop
