// Places of the parts of the start screen and how they work together.
#include "desktop/kit/start_page.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

#include "desktop/kit/logo.h"
#include "desktop/kit/push_button.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"
#include "desktop/kit/trial_drawing.h"

namespace lorvane::desktop {

namespace {

constexpr QSize PageSize(740, 470);
constexpr int ChoicesWidth = 356;
constexpr QMargins ChoicesMargins(32, 36, 28, 24);
constexpr QMargins FilesMargins(20, 30, 20, 28);
constexpr int ButtonSpace = 8;
constexpr int NameSpace = 10;

QFont nameFont() {
    QFont font = textFont(TextStyle::Message);
    font.setWeight(QFont::DemiBold);
    return font;
}

QLabel* label(const QFont& font, int height) {
    auto* result = new QLabel;
    result->setFont(font);
    result->setFixedHeight(height);
    return result;
}

QHBoxLayout* row(std::initializer_list<QWidget*> parts, int space) {
    auto* result = new QHBoxLayout;
    result->setSpacing(space);
    for (QWidget* part : parts)
        result->addWidget(part);
    return result;
}

}  // namespace

StartPage::StartPage(QWidget* parent)
    : QWidget(parent), name_(label(nameFont(), 32)), sense_(label(textFont(TextStyle::Body), 20)),
      question_(label(textFont(TextStyle::LevelName), 24)), first_(new ChoiceCard), second_(new ChoiceCard),
      accept_(primaryButton({})), cancel_(plainButton({})), drawing_(new TrialDrawing), files_(new FileList) {
    setFixedSize(PageSize);
    sense_->setProperty("second", true);
    auto* halves = row({makeChoices(), makeRightPane()}, 0);
    halves->setContentsMargins({});
    setLayout(halves);
    connectParts();
    setChoice(1);
}

QWidget* StartPage::makeChoices() {
    auto* half = new QWidget;
    half->setFixedWidth(ChoicesWidth);
    auto* column = new QVBoxLayout(half);
    column->setContentsMargins(ChoicesMargins);
    column->setSpacing(0);
    auto* head = row({new Logo, name_}, NameSpace);
    head->setStretch(1, 1);
    column->addLayout(head);
    column->addSpacing(6);
    column->addWidget(sense_);
    column->addSpacing(30);
    column->addWidget(question_);
    column->addSpacing(12);
    column->addWidget(first_);
    column->addSpacing(12);
    column->addWidget(second_);
    column->addStretch();
    column->addLayout(row({accept_, cancel_}, ButtonSpace));
    return half;
}

QWidget* StartPage::makeRightPane() {
    auto* half = new QWidget;
    auto* column = new QVBoxLayout(half);
    column->setContentsMargins(FilesMargins);
    column->addWidget(files_);
    column->addWidget(drawing_);
    return half;
}

void StartPage::connectParts() {
    connect(first_, &ChoiceCard::clicked, this, [this] { choose(1); });
    connect(second_, &ChoiceCard::clicked, this, [this] { choose(2); });
    connect(files_, &FileList::currentChanged, this, &StartPage::fileChosen);
    connect(files_, &FileList::activated, this, &StartPage::accepted);
    connect(accept_, &PushButton::clicked, this, &StartPage::accepted);
    connect(cancel_, &PushButton::clicked, this, &StartPage::cancelled);
}

void StartPage::setTitle(const QString& name, const QString& sense) {
    name_->setText(name);
    sense_->setText(sense);
}

void StartPage::setQuestion(const QString& question) {
    question_->setText(question);
    setAccessibleName(question);
}

void StartPage::setChoices(const Choice& first, const Choice& second) {
    first_->setChoice(first);
    second_->setChoice(second);
}

void StartPage::setButtons(const QString& accept, const QString& cancel) {
    accept_->setText(accept);
    cancel_->setText(cancel);
}

void StartPage::setFiles(const QString& heading, const QString& more, const std::vector<FileEntry>& files) {
    files_->setTexts(heading, more);
    files_->setEntries(files);
}

void StartPage::setChoice(int choice) {
    (choice == 1 ? first_ : second_)->setChecked(true);
    showChoice();
}

int StartPage::choice() const { return first_->isChecked() ? 1 : 2; }

void StartPage::setCurrentFile(int file) { files_->setCurrent(file); }

int StartPage::currentFile() const { return files_->current(); }

void StartPage::focusFiles() { files_->setFocus(); }

void StartPage::choose(int choice) {
    showChoice();
    emit choiceChosen(choice);
}

void StartPage::showChoice() {
    drawing_->setVisible(choice() == 1);
    files_->setVisible(choice() == 2);
    setFocusProxy(choice() == 1 ? first_ : second_);
}

void StartPage::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape || (isEnter && cancel_->hasFocus()))
        emit cancelled();
    else if (isEnter)
        emit accepted();
    else
        QWidget::keyPressEvent(event);
}

void StartPage::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), colour(Role::Page));
    painter.fillRect(QRect(0, 0, ChoicesWidth, height()), colour(Role::Card));
}

}  // namespace lorvane::desktop
