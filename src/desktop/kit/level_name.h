// The name of a level with its role below. Knows neither levels nor roles but as words.
#pragma once

#include <QString>

#include "desktop/kit/painted_text.h"

namespace lorvane::desktop {

class LevelName : public PaintedText {
    Q_OBJECT

public:
    explicit LevelName(QWidget* parent = nullptr);

    /// The name and the word below it; the accented word is the randomized level's.
    void setLevel(const QString& name, const QString& role, bool accented);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString name_;
    QString role_;
    bool accented_ = false;
};

}  // namespace lorvane::desktop
