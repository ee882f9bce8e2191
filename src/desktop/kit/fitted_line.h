// A line of words and a number, to be read only, that becomes smaller where there is no room.
#pragma once

#include <QStringList>

#include "desktop/kit/painted_text.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"

namespace lorvane::desktop {

/// How a fitted line looks: the words, the number after them, and where they stand.
struct LineLook {
    TextStyle words = TextStyle::Value;
    TextStyle number = TextStyle::Value;
    Role wordsRole = Role::SecondText;
    Role numberRole = Role::Text;
    Qt::Alignment alignment = Qt::AlignRight;
};

/// Takes any width. Screen readers get words and number.
class FittedLine : public PaintedText {
    Q_OBJECT

public:
    explicit FittedLine(const LineLook& look, QWidget* parent = nullptr);

    /// The words, which may be empty, and the number behind them.
    void setText(const QString& words, const QString& number);

    /// What would have to fit as well, so that lines below one another have one size.
    void setCompanions(const QStringList& texts);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    double wholeWidth() const;
    double shareOf(double width) const;

    LineLook look_;
    QString words_;
    QString number_;
    QStringList companions_;
};

}  // namespace lorvane::desktop
