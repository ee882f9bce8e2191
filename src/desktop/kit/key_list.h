// Keys under a heading: a row of key caps, and beside them what they do. Knows no meaning of any of them.
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "desktop/kit/painted_text.h"

namespace lorvane::desktop {

/// Caps, and plain words between them.
struct KeyCap {
    QString text;
    bool isKey = true;
};

struct KeyLine {
    std::vector<KeyCap> caps;
    QString words;
};

/// Words that are too long for the width are cut.
class KeyList : public PaintedText {
    Q_OBJECT

public:
    KeyList(const QString& heading, const std::vector<KeyLine>& lines, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString heading_;
    std::vector<KeyLine> lines_;
};

}  // namespace lorvane::desktop
