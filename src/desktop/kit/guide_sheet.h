// The yellow sheet of a guide: where one is, a title, paragraphs, and the buttons that lead on. Knows nothing
// of what it guides through.
#pragma once

#include <QList>
#include <QWidget>

#include "desktop/kit/icons.h"
#include "desktop/kit/paragraph_view.h"
#include "desktop/kit/text_style.h"

class QGridLayout;
class QHBoxLayout;
class QLabel;
class QVBoxLayout;

namespace lorvane::desktop {

class PushButton;
class StepStrip;
class WrappedLabel;

/// What is told on the sheet. A caption or a title that is empty takes no room.
struct GuideContent {
    QString caption;
    QString position;
    int steps = 0;
    int begun = 0;
    bool isOnLast = false;
    QString title;
    QList<ShownParagraph> text;

    /// All of it in the order in which it is read.
    QString words() const;
};

class GuideSheet : public QWidget {
    Q_OBJECT

public:
    explicit GuideSheet(QWidget* parent = nullptr);

    /// Another title or text is told to those who hear the screen.
    void setContent(const GuideContent& content);
    void setTextStyle(TextStyle style);

    /// A place for choices below the text.
    QVBoxLayout* choices() const { return choices_; }

    /// A button of the row below the text, in the order in which they are added, and one of the last row.
    PushButton* addTool(Icon sign, const QString& control);
    PushButton* addStep(Icon sign, const QString& control, bool primary, bool signIsLast);

    /// Leads the Tab key from Next, which takes the keyboard first, back to the first button of the last row,
    /// then to the choices and the tools.
    void orderKeys(const QList<QWidget*>& choices = {});

    /// Puts the buttons that are shown into their row, after some have come or gone.
    void arrangeTools();

protected:
    void changeEvent(QEvent* event) override;

private:
    void paintText();
    QLabel* addLabel(QHBoxLayout* row, TextStyle style, int stretch);
    void tell(const QString& words);

    QLabel* caption_;
    QLabel* position_;
    StepStrip* strip_;
    WrappedLabel* title_;
    ParagraphView* text_;
    QVBoxLayout* choices_;
    QGridLayout* tools_;
    QHBoxLayout* steps_;
    QList<PushButton*> toolButtons_;
    QString told_;
};

}  // namespace lorvane::desktop
