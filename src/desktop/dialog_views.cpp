// The small dialogs.
#include "desktop/dialog_views.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QShortcut>
#include <QStyle>
#include <QVBoxLayout>
#include <utility>

#include "desktop/kit/plain_text.h"
#include "desktop/kit/push_button.h"
#include "desktop/kit/text_field.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"

namespace lorvane::desktop {

namespace {

constexpr int dialogWidth = 320;

QLabel* styled(TextStyle style) {
    auto* label = new QLabel;
    label->setFont(textFont(style));
    label->setWordWrap(true);
    label->setFixedWidth(dialogWidth);
    return label;
}

}  // namespace

DialogView::DialogView(Desk& desk, ToolPanel* panel, const Dialog& model, std::function<bool()> isOpen)
    : PanelView(desk, panel, model.name), model_(model), isOpen_(std::move(isOpen)),
      heading_(styled(TextStyle::PanelHeading)), sense_(styled(TextStyle::Caption)),
      limits_(styled(TextStyle::Caption)) {
    for (QLabel* label : {sense_, limits_})
        label->setProperty("second", true);
    QVBoxLayout* box = panel->content();
    box->setSpacing(8);
    box->addWidget(heading_);
    box->addWidget(sense_);
    addOptions();
    for (const DialogField& field : model_.fields)
        addField(field);
    if (!model_.fieldButtons.empty())
        box->addLayout(makeRow(model_.fieldButtons));
    box->addWidget(limits_);
    box->addSpacing(6);
    box->addLayout(makeRow(model_.buttons, true));
    panel->setAttribute(Qt::WA_ShowWithoutActivating, false);
    // Escape is Cancel where there is one, and the frame's close otherwise.
    auto* escape = new QShortcut(Qt::Key_Escape, panel);
    connect(escape, &QShortcut::activated, this, [this] {
        if (model_.buttons.size() == 1)
            desk_.close(model_.name);
        else
            press(model_.buttons.front());
    });
}

void DialogView::addOptions() {
    for (const DialogOption& option : model_.options) {
        auto* button = new QRadioButton(shownText(option.option.Caption));
        button->setObjectName(QString::fromStdString(option.control));
        button->setFont(textFont(TextStyle::Body));
        connect(button, &QRadioButton::clicked, this, [this, &option] { desk_.click(option.control); });
        panel()->content()->addWidget(button);
        options_.push_back({&option, button});
    }
}

void DialogView::addField(const DialogField& model) {
    const bool single = model_.fields.size() == 1;
    FieldView view{styled(TextStyle::CaptionStrong),
                   new TextField(single ? TextField::Size::Large : TextField::Size::Usual), ""};
    view.field->setObjectName(QString::fromStdString(model.control));
    view.field->setFixedWidth(dialogWidth);
    view.label->setVisible(!single);
    panel()->content()->addWidget(view.label);
    panel()->content()->addWidget(view.field);
    connect(view.field, &TextField::returnPressed, this, [this] { press(model_.buttons.back()); });
    fields_.push_back(view);
}

PushButton* DialogView::makeButton(const DialogButton& button, bool primary) {
    PushButton* made =
        primary ? primaryButton(shownText(button.caption)) : plainButton(shownText(button.caption));
    made->setObjectName(QString::fromStdString(button.control));
    connect(made, &PushButton::clicked, this, [this, &button] { press(button); });
    return made;
}

QLayout* DialogView::makeRow(const std::vector<DialogButton>& buttons, bool ends) {
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    if (ends)
        row->addStretch(1);
    for (const DialogButton& button : buttons)
        row->addWidget(makeButton(button, ends && &button == &buttons.back()));
    if (!ends)
        row->addStretch(1);
    return row;
}

void DialogView::press(const DialogButton& button) {
    prepareClose();
    desk_.click(button.control);
}

// The program knows what was typed before it is asked whether anything would be lost.
void DialogView::prepareClose() {
    for (std::size_t i = 0; i < fields_.size(); ++i)
        desk_.type(model_.fields[i].control, fields_[i].field->text());
    for (std::size_t i = 0; i < fields_.size(); ++i)
        fields_[i].shown = model_.fields[i].box.Text;
}

void DialogView::sync() {
    panel()->setWindowTitle(literalTitle(shownText(model_.title.Caption)));
    heading_->setText(shownText(model_.title.Caption));
    sense_->setText(shownText(model_.sense.Caption));
    syncNote();
    for (const OptionView& option : options_)
        option.button->setChecked(option.model->option.Value);
    const bool opened = isOpen() && (!wasOpen_ || openings_ != model_.openings);
    for (std::size_t i = 0; i < fields_.size(); ++i)
        syncField(i, opened);
    wasOpen_ = isOpen();
    openings_ = model_.openings;
    if (opened)
        focusFirst();
}

void DialogView::syncNote() {
    limits_->setText(shownText(model_.note.Caption));
    limits_->setVisible(!model_.note.Caption.empty());
    if (limits_->property("problem").toBool() == model_.note.trouble)
        return;
    limits_->setProperty("problem", model_.note.trouble);
    limits_->setProperty("second", !model_.note.trouble);
    limits_->style()->unpolish(limits_);
    limits_->style()->polish(limits_);
}

// What was typed stays until the program changes the text itself or the dialog opens anew.
void DialogView::syncField(std::size_t number, bool opened) {
    const DialogField& model = model_.fields[number];
    FieldView& view = fields_[number];
    if (opened || view.shown != model.box.Text) {
        view.field->setText(shownText(model.box.Text));
        view.shown = model.box.Text;
    }
    view.label->setText(shownText(model.label.Caption));
    view.field->setAccessibleName(view.label->text());
    view.label->setVisible(model.box.Visible && fields_.size() > 1);
    view.field->setVisible(model.box.Visible);
    view.field->setEnabled(model.box.Enabled);
    view.field->setProblem(model.trouble);
}

void DialogView::focusFirst() {
    for (FieldView& view : fields_) {
        if (view.field->isHidden() || !view.field->isEnabled())
            continue;
        if (panel()->isVisible())
            panel()->activateWindow();
        view.field->setFocus();
        if (!model_.isBegun)
            view.field->selectAll();
        return;
    }
}

}  // namespace lorvane::desktop
