// The name of a level with its role below. Knows both as words only.
#pragma once

#include <QString>

#include "desktop/kit/painted_text.h"

namespace lorvane::desktop {

/// Words that are too long for the width end in three dots.
class LevelName : public PaintedText {
    Q_OBJECT

public:
    explicit LevelName(QWidget* parent = nullptr);

    /// The name and the role below it. An accented role, that of the randomized level, is stronger and in the
    /// colour of accent.
    void setLevel(const QString& name, const QString& role, bool accented);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void tellRest();

    QString name_;
    QString role_;
    bool accented_ = false;
};

}  // namespace lorvane::desktop
