// The yellow sheet of a guide.
#include "desktop/kit/guide_sheet.h"

#include <QAccessible>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

#include "desktop/kit/push_button.h"
#include "desktop/kit/step_strip.h"
#include "desktop/kit/theme.h"
#include "desktop/kit/wrapped_label.h"
#include "desktop/kit/zoom.h"

namespace lorvane::desktop {

namespace {

constexpr QMargins Margins(22, 20, 22, 15);
constexpr int SignSize = 16;
constexpr int ToolsInARow = 3;

// A drawing in one colour, sharp on all screens.
QIcon signOf(Icon name, Role role) {
    QIcon sign;
    for (const int scale : {1, 2, 3}) {
        QPixmap pixmap(SignSize * scale, SignSize * scale);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        drawIcon(painter, name, QRectF(pixmap.rect()), colour(role));
        painter.end();
        pixmap.setDevicePixelRatio(scale);
        sign.addPixmap(pixmap);
    }
    return sign;
}

PushButton* makeButton(Icon sign, const QString& control, bool primary) {
    PushButton* button = primary ? primaryButton(QString()) : plainButton(QString());
    button->setObjectName(control);
    button->setIcon(signOf(sign, primary ? Role::GuidePaper : Role::GuideText));
    button->setIconSize({SignSize, SignSize});
    return button;
}

QWidget* makeRule() {
    auto* rule = new QWidget;
    rule->setAttribute(Qt::WA_StyledBackground);
    rule->setProperty("guideRule", true);
    rule->setFixedHeight(1);
    return rule;
}

}  // namespace

QString GuideContent::words() const {
    QStringList parts;
    for (const QString& part : {caption, position, title}) {
        if (!part.isEmpty())
            parts << part + QLatin1Char('.');
    }
    for (const ShownParagraph& paragraph : text) {
        QString letters;
        for (const ShownRun& run : paragraph)
            letters += run.text;
        parts << letters;
    }
    return parts.join(QLatin1Char('\n'));
}

GuideSheet::GuideSheet(QWidget* parent)
    : QWidget(parent), strip_(new StepStrip), title_(new WrappedLabel), text_(new ParagraphView),
      choices_(new QVBoxLayout), tools_(new QGridLayout), steps_(new QHBoxLayout) {
    setAttribute(Qt::WA_StyledBackground);
    setProperty("guidePaper", true);
    setFocusPolicy(Qt::TabFocus);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Margins);
    column->setSpacing(0);
    auto* head = new QHBoxLayout;
    caption_ = addLabel(head, TextStyle::CaptionStrong, 1);
    position_ = addLabel(head, TextStyle::Caption, 0);
    column->addLayout(head);
    column->addSpacing(5);
    column->addWidget(strip_);
    column->addSpacing(18);
    lorvane::desktop::setTextStyle(*title_, TextStyle::Heading);
    column->addWidget(title_);
    column->addSpacing(4);
    text_->setFitted();
    paintText();
    column->addWidget(text_);
    column->addLayout(choices_);
    choices_->setSpacing(6);
    column->addSpacing(8);
    tools_->setSpacing(8);
    for (int place = 0; place < ToolsInARow; ++place)
        tools_->setColumnStretch(place, 1);
    column->addLayout(tools_);
    column->addStretch(1);
    column->addSpacing(12);
    column->addWidget(makeRule());
    steps_->setContentsMargins(0, 12, 0, 0);
    steps_->setSpacing(6);
    column->addLayout(steps_);
}

// A rule of the style sheet would take its own size of letters with it.
void GuideSheet::paintText() {
    QPalette palette = text_->palette();
    if (palette.color(QPalette::Text) == colour(Role::GuideText))
        return;
    palette.setColor(QPalette::Text, colour(Role::GuideText));
    text_->setPalette(palette);
}

void GuideSheet::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange)
        paintText();
}

QLabel* GuideSheet::addLabel(QHBoxLayout* row, TextStyle style, int stretch) {
    auto* label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    lorvane::desktop::setTextStyle(*label, style);
    row->addWidget(label, stretch);
    return label;
}

PushButton* GuideSheet::addTool(Icon sign, const QString& control) {
    toolButtons_ << makeButton(sign, control, false);
    toolButtons_.back()->setParent(this);
    return toolButtons_.back();
}

PushButton* GuideSheet::addStep(Icon sign, const QString& control, bool primary, bool signIsLast) {
    PushButton* button = makeButton(sign, control, primary);
    if (signIsLast)
        button->setLayoutDirection(Qt::RightToLeft);
    steps_->addWidget(button, 1);
    if (primary)
        setFocusProxy(button);
    return button;
}

void GuideSheet::orderKeys(const QList<QWidget*>& choices) {
    QList<QWidget*> order;
    for (int i = steps_->count(); i > 0; --i)
        order << steps_->itemAt(i - 1)->widget();
    order << choices;
    for (PushButton* button : toolButtons_)
        order << button;
    for (qsizetype i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
}

void GuideSheet::arrangeTools() {
    while (QLayoutItem* item = tools_->takeAt(0))
        delete item;
    int place = 0;
    for (PushButton* button : toolButtons_) {
        if (button->isHidden())
            continue;
        tools_->addWidget(button, place / ToolsInARow, place % ToolsInARow);
        ++place;
    }
}

void GuideSheet::setTextStyle(TextStyle style) { lorvane::desktop::setTextStyle(*text_, style); }

void GuideSheet::setContent(const GuideContent& content) {
    caption_->setText(content.caption);
    position_->setText(content.position);
    strip_->setSteps(content.steps, content.begun, content.isOnLast);
    title_->setText(content.title);
    title_->setVisible(!content.title.isEmpty());
    text_->setParagraphs(content.text);
    text_->setAccessibleName(content.title);
    tell(content.words());
}

void GuideSheet::tell(const QString& words) {
    if (words == told_)
        return;
    told_ = words;
    setAccessibleName(words);
    for (const QAccessible::Event event : {QAccessible::NameChanged, QAccessible::Alert}) {
        QAccessibleEvent change(this, event);
        QAccessible::updateAccessibility(&change);
    }
}

}  // namespace lorvane::desktop
