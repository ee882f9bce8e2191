// The small dialogs.
#include "desktop/dialog_views.h"

#include <QGridLayout>
#include <QRadioButton>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "desktop/kit/elided_label.h"
#include "desktop/kit/text_field.h"
#include "desktop/kit/theme.h"
#include "desktop/kit/zoom.h"

namespace lorvane::desktop {

namespace {

constexpr int narrow = 314;  // pixels of content
constexpr int wide = 394;
constexpr int numberWidth = 110;
constexpr int columnGap = 12;
constexpr int widestLabel = 150;
constexpr int mostTyped = 2000;  // letters, so that a pasted book is cut before the program reads it

// A single number without a unit needs little room.
int widthOf(const Dialog& model) {
    const bool small = model.fields.size() == 1 && !model.fields[0].unit;
    return small && model.note.Caption.size() < 40 ? narrow : wide;
}

ElidedLabel* styled(int widest) {
    auto* label = new ElidedLabel(widest);
    setTextStyle(*label, TextStyle::Body);
    label->setProperty("second", true);
    return label;
}

}  // namespace

DialogView::DialogView(Desk& desk, ToolPanel* panel, const Dialog& model, std::function<bool()> isOpen)
    : PanelView(desk, panel, model.name), model_(model), isOpen_(std::move(isOpen)),
      frame_(panel, model, widthOf(model), [this](const DialogButton& button) { press(button); }) {
    addOptions();
    addFields();
    if (!model_.fieldButtons.empty())
        frame_.fields()->addLayout(frame_.makeRow(model_.fieldButtons));
    frame_.finish();
    panel->setAttribute(Qt::WA_ShowWithoutActivating, false);
    // Escape is Cancel where there is one, and the frame's close otherwise.
    auto* escape = new QShortcut(Qt::Key_Escape, panel);
    connect(escape, &QShortcut::activated, this, [this] {
        if (model_.buttons.size() == 1)
            desk_.close(model_.name);
        else
            press(model_.buttons[model_.cancel]);
    });
}

void DialogView::addOptions() {
    for (const DialogOption& option : model_.options) {
        auto* button = new QRadioButton(shownText(option.option.Caption));
        button->setObjectName(QString::fromStdString(option.control));
        setTextStyle(*button, TextStyle::Body);
        connect(button, &QRadioButton::clicked, this, [this, &option] { desk_.click(option.control); });
        frame_.fields()->addWidget(button);
        options_.push_back({&option, button});
    }
}

void DialogView::addFields() {
    if (model_.fields.empty())
        return;
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(columnGap);
    grid->setVerticalSpacing(8);
    for (const DialogField& field : model_.fields)
        addField(grid, field);
    grid->setColumnStretch(2, 1);
    frame_.fields()->addLayout(grid);
}

// Numbers stand at the right of a narrow field, before their unit; a text takes the width of both.
void DialogView::addField(QGridLayout* grid, const DialogField& model) {
    const bool single = model_.fields.size() == 1;
    const bool number = model.entry == DialogEntry::number;
    const int row = grid->rowCount();
    FieldView view{styled(widestLabel),
                   new TextField(single ? TextField::Size::Large : TextField::Size::Usual),
                   styled(wide - numberWidth - columnGap), ""};
    view.field->setObjectName(QString::fromStdString(model.control));
    view.field->setMaxLength(mostTyped);
    view.field->setAlignment(number ? Qt::AlignRight : Qt::AlignLeft);
    if (number)
        view.field->setFixedWidth(numberWidth);
    view.label->setVisible(!single);
    if (!single)
        grid->addWidget(view.label, row, 0);
    else
        view.label->setParent(panel());
    grid->addWidget(view.field, row, 1, 1, number ? 1 : 2);
    if (number)
        grid->addWidget(view.unit, row, 2);
    else
        view.unit->setParent(panel());
    connect(view.field, &TextField::returnPressed, this, [this] { press(model_.buttons.back()); });
    connect(view.field, &TextField::textEdited, this,
            [this, &model](const QString& text) { desk_.type(model.control, text); });
    fields_.push_back(view);
}

void DialogView::press(const DialogButton& button) {
    typeAll();
    desk_.click(button.control);
}

// The program knows what was typed before it is asked whether anything would be lost. Where nothing was, the
// frame is Cancel.
void DialogView::prepareClose() {
    typeAll();
    if (!model_.isChanged() && model_.buttons.size() > 1)
        desk_.click(model_.buttons[model_.cancel].control);
}

void DialogView::typeAll() {
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        if (model_.fields[i].box.Text != fields_[i].field->text().toStdString())
            desk_.type(model_.fields[i].control, fields_[i].field->text());
    }
}

void DialogView::sync() {
    for (const OptionView& option : options_)
        option.button->setChecked(option.model->option.Value);
    const bool opened = isOpen() && (!wasOpen_ || openings_ != model_.openings);
    for (std::size_t i = 0; i < fields_.size(); ++i)
        syncField(i, opened);
    frame_.sync();
    wasOpen_ = isOpen();
    openings_ = model_.openings;
    if (opened)
        focusFirst();
    showRefusal();
}

// What was typed stays until the program changes the text itself or the dialog opens anew.
void DialogView::syncField(std::size_t number, bool opened) {
    const DialogField& model = model_.fields[number];
    FieldView& view = fields_[number];
    const QString text = shownText(model.box.Text);
    if ((opened || view.shown != model.box.Text) && view.field->text() != text) {
        const int cursor = view.field->cursorPosition();
        view.field->setText(text);
        view.field->setCursorPosition(opened ? static_cast<int>(text.size()) : cursor);
    }
    view.shown = model.box.Text;
    view.label->setText(shownText(model.label.Caption));
    view.unit->setText(shownText(model.unit.value_or("")));
    view.field->setAccessibleName(view.label->text());
    view.field->setAccessibleDescription(
        shownText(model_.refusal.empty() ? model_.note.Caption : model_.refusal));
    view.label->setVisible(model.box.Visible && fields_.size() > 1);
    view.unit->setVisible(model.box.Visible && model.unit);
    view.field->setVisible(model.box.Visible);
    view.field->setEnabled(model.box.Enabled);
    view.field->setProblem(model.trouble);
}

// A refused value keeps the focus, also when a button was pressed by the pointer.
void DialogView::showRefusal() {
    const bool isNew = model_.refusal != refusal_ && !model_.refusal.empty();
    refusal_ = model_.refusal;
    const auto faulty = std::find_if(model_.fields.begin(), model_.fields.end(),
                                     [](const DialogField& field) { return field.trouble; });
    if (isNew && faulty != model_.fields.end())
        fields_[static_cast<std::size_t>(faulty - model_.fields.begin())].field->setFocus();
}

void DialogView::focusFirst() {
    if (panel()->isVisible())
        panel()->activateWindow();
    for (FieldView& view : fields_) {
        if (view.field->isHidden() || !view.field->isEnabled())
            continue;
        view.field->setFocus();
        if (model_.isBegun)
            view.field->end(false);
        else
            view.field->selectAll();
        return;
    }
}

}  // namespace lorvane::desktop
