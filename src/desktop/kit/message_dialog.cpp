// Places, buttons and keys of a message.
#include "desktop/kit/message_dialog.h"

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/kit/copy_key.h"
#include "desktop/kit/painting.h"
#include "desktop/kit/plain_text.h"
#include "desktop/kit/push_button.h"
#include "desktop/kit/theme.h"
#include "desktop/kit/wrapped_text.h"

namespace lorvane::desktop {

namespace {

constexpr int Width = 500;
constexpr int PlateSize = 44;
constexpr double SignSize = 24;
constexpr double TextLine = 20;
constexpr int SmallestButton = 84;
constexpr QSize FrameRoom(16, 60);  ///< for the frame of the window system

/// The sign on its plate.
class SignPlate : public QWidget {
public:
    SignPlate(Icon sign, bool warns) : sign_(sign), warns_(warns) { setFixedSize(PlateSize, PlateSize); }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        fillPlate(painter, QRectF(rect()), CardRadius, colour(warns_ ? Role::ProblemTint : Role::AccentTint));
        const double inset = (PlateSize - SignSize) / 2;
        drawIcon(painter, sign_, QRectF(rect()).adjusted(inset, inset, -inset, -inset),
                 colour(warns_ ? Role::ProblemText : Role::Accent));
    }

private:
    Icon sign_;
    bool warns_;
};

/// Puts the mark of a key before the first letter that no button before has.
QString withKey(const QString& words, QString& taken) {
    for (qsizetype i = 0; i < words.size(); ++i) {
        const QChar letter = words[i].toLower();
        if (!letter.isLetter() || taken.contains(letter))
            continue;
        taken += letter;
        return literalCaption(words.left(i)) + QLatin1Char('&') + literalCaption(words.mid(i));
    }
    return literalCaption(words);
}

}  // namespace

MessageDialog::MessageDialog(const MessageContent& content, QWidget* over)
    : QDialog(over), words_(new QWidget), scroll_(new QScrollArea), chosen_(content.escape) {
    setWindowTitle(literalTitle(content.title));
    setAccessibleName(content.heading);
    setAccessibleDescription(content.text);
    addWords(content);
    auto* head = new QHBoxLayout;
    head->setSpacing(16);
    head->addWidget(new SignPlate(content.sign, content.warns), 0, Qt::AlignTop);
    head->addWidget(scroll_, 1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(22, 22, 22, 18);
    column->setSpacing(22);
    column->addLayout(head);
    column->addWidget(makeButtons(content));
    const QString all = content.heading + QLatin1Char('\n') + content.text;
    new CopyKey(this, [all] { QGuiApplication::clipboard()->setText(all.trimmed()); });
    fit();
}

void MessageDialog::addWords(const MessageContent& content) {
    auto* column = new QVBoxLayout(words_);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(1);
    auto* heading = new WrappedText(TextStyle::LevelName);
    heading->setText(content.heading);
    column->addWidget(heading);
    if (!content.text.isEmpty()) {
        auto* text = new WrappedText(TextStyle::Body, Role::SecondText);
        text->setText(content.text);
        text->setLineHeight(TextLine);
        column->addWidget(text);
    }
    scroll_->setWidget(words_);
    scroll_->setWidgetResizable(true);
    scroll_->setFrameShape(QFrame::NoFrame);
    scroll_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    for (QWidget* part : {static_cast<QWidget*>(scroll_), scroll_->viewport(), words_})
        part->setAutoFillBackground(false);
}

QDialogButtonBox* MessageDialog::makeButtons(const MessageContent& content) {
    auto* box = new QDialogButtonBox;
    QString taken;
    for (std::size_t i = 0; i < content.choices.size(); ++i) {
        const bool isPreset = i == content.preset;
        const QString words = withKey(content.choices[i].words, taken);
        PushButton* button = isPreset ? primaryButton(words) : plainButton(words);
        button->setMinimumWidth(SmallestButton);
        box->addButton(button, content.choices[i].role);
        connect(button, &PushButton::clicked, this, [this, i] {
            chosen_ = i;
            accept();
        });
        button->setDefault(isPreset);
        preset_ = isPreset ? button : preset_;
    }
    return box;
}

// The words get the height that they take, as far as the screen has it.
void MessageDialog::fit() {
    const QSize room = screen()->availableGeometry().size() - FrameRoom;
    const int width = std::min(Width, room.width());
    scroll_->setFixedHeight(0);
    setFixedWidth(width);
    const QMargins margins = layout()->contentsMargins();
    const int text = width - margins.left() - margins.right() - PlateSize - 16;
    const int wanted = std::max(PlateSize, words_->layout()->heightForWidth(text));
    const int others = layout()->totalSizeHint().height() - PlateSize;
    const int height = std::clamp(room.height() - others, PlateSize, wanted);
    scroll_->setFixedHeight(height);
    scroll_->setFocusPolicy(height < wanted ? Qt::StrongFocus : Qt::NoFocus);
    setFixedHeight(others + height);
}

std::size_t MessageDialog::ask() {
    exec();
    return chosen_;
}

void MessageDialog::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    preset_->setFocus();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void MessageDialog::paintEvent(QPaintEvent*) { QPainter(this).fillRect(rect(), colour(Role::Card)); }

}  // namespace lorvane::desktop
