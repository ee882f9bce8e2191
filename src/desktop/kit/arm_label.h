// The name of a group beside its field, with a dot in the colour of the group. Shows a plain word too.
#pragma once

#include <QString>

#include "desktop/kit/painted_text.h"

namespace lorvane::desktop {

/// One line of caption text. The text is not cut, so the layout must give it the width it asks for.
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
