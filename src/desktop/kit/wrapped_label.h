// Lines of text that wrap at any width. A plain label would ask for a width of its own, and for too little
// height.
#pragma once

#include <QLabel>

namespace lorvane::desktop {

/// Takes the width that it is given, and asks for the height that the text needs there. The text is plain
/// whatever it looks like.
class WrappedLabel : public QLabel {
    Q_OBJECT

public:
    explicit WrappedLabel(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace lorvane::desktop
