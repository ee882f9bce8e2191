// The field in which text and numbers are typed. Judges nothing of what is typed.
#pragma once

#include <QLineEdit>

namespace lorvane::desktop {

/// Sizes are in pixels.
class TextField : public QLineEdit {
    Q_OBJECT

public:
    /// Height and type.
    enum class Size {
        Usual,  ///< 32 high
        Large,  ///< 38 high, larger type at the right: the one field of a small dialog
    };

    explicit TextField(Size size = Size::Usual, QWidget* parent = nullptr);

    /// Shows the tint and outline of a value that cannot be taken, or takes them off.
    void setProblem(bool problem);
};

}  // namespace lorvane::desktop
