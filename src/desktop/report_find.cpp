// The bar in which a text is looked for in the report.
#include "desktop/report_find.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QStyle>
#include <QToolButton>

#include "desktop/desk.h"
#include "desktop/kit/icons.h"
#include "desktop/kit/text_field.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"
#include "desktop/kit/tool_button.h"
#include "desktop/menus.h"

namespace lorvane::desktop {

namespace {

constexpr const char* fieldName = "frmPrint.txtFind";
constexpr const char* next = "Find next";
constexpr const char* previous = "Find previous";
constexpr int barHeight = 44;
constexpr int fieldWidth = 260;
constexpr int foundWidth = 84;
constexpr int longestText = 200;

}  // namespace

ReportFind::ReportFind(Desk& desk, Menus& menus) : desk_(desk), field_(new TextField), found_(new QLabel) {
    setFixedHeight(barHeight);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(10, 0, 10, 1);
    row->setSpacing(4);
    row->addStretch(1);
    addField();
    row->addWidget(found_);
    row->addWidget(menus.button(previous, this));
    row->addWidget(menus.button(next, this));
    row->addWidget(makeCloseButton());
}

void ReportFind::addField() {
    field_->setObjectName(QString::fromLatin1(fieldName));
    field_->setMaximumWidth(fieldWidth);
    field_->setMaxLength(longestText);
    field_->setPlaceholderText(QString::fromLatin1(ReportScreen::findWords));
    field_->setAccessibleName(QString::fromLatin1(ReportScreen::findWords));
    connect(field_, &QLineEdit::textEdited, this,
            [this](const QString& text) { desk_.type(fieldName, text); });
    found_->setFont(textFont(TextStyle::Caption));
    found_->setProperty("second", true);
    found_->setFixedWidth(foundWidth);
    found_->setAlignment(Qt::AlignCenter);
    layout()->addWidget(field_);
    static_cast<QHBoxLayout*>(layout())->setStretchFactor(field_, 1);
}

QToolButton* ReportFind::makeCloseButton() {
    auto* button = new QToolButton;
    button->setObjectName(QStringLiteral("frmPrint.cmdEndFind"));
    button->setIcon(icon(Icon::Close));
    button->setIconSize({16, 16});
    button->setToolTip(QString::fromLatin1(ReportScreen::endFindWords));
    button->setAccessibleName(button->toolTip());
    button->setFocusPolicy(Qt::TabFocus);
    connect(button, &QToolButton::clicked, this, &ReportFind::end);
    return button;
}

void ReportFind::end() { desk_.click("frmPrint.cmdEndFind"); }

void ReportFind::takeFocus() {
    field_->setFocus(Qt::ShortcutFocusReason);
    field_->selectAll();
}

void ReportFind::sync() {
    const ReportScreen& model = desk_.application().report();
    setVisible(model.view().isFinding);
    const QString text = shownText(model.txtFind().Text);
    if (field_->text() != text)
        field_->setText(text);
    found_->setText(shownText(model.pnlFound().Caption));
    field_->setAccessibleDescription(found_->text());
    if (found_->property("problem").toBool() == model.pnlFound().trouble)
        return;
    found_->setProperty("problem", model.pnlFound().trouble);
    found_->style()->polish(found_);
}

// The shortcut of the window for Escape would close it.
bool ReportFind::event(QEvent* event) {
    if (event->type() != QEvent::ShortcutOverride || static_cast<QKeyEvent*>(event)->key() != Qt::Key_Escape)
        return QWidget::event(event);
    event->accept();
    return true;
}

void ReportFind::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const char* tool = event->modifiers().testFlag(Qt::ShiftModifier) ? previous : next;
    if (event->key() == Qt::Key_Escape)
        end();
    else if (isEnter && desk_.application().commands().find(tool)->Enabled)
        desk_.tool(tool);
}

void ReportFind::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), colour(Role::Bar));
    painter.fillRect(QRect(0, height() - 1, width(), 1), colour(Role::Line));
}

}  // namespace lorvane::desktop
