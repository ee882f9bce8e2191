// The small dialogs.
#include "desktop/dialog_views.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QShortcut>
#include <QVBoxLayout>

#include "base/names.h"
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

std::function<std::string()> always(const char* text) {
    return [text] { return std::string(text); };
}

std::function<bool()> whileOpen(const Desk& desk, WindowId window) {
    return [&desk, window] { return desk.design().windows().state(window) == WindowStates::open; };
}

std::function<std::string()> captionOf(const Panel& panel) {
    return [&panel] { return panel.Caption; };
}

DialogModel levelNamesModel(const Desk& desk, const SmallDialogs& dialogs) {
    DialogModel model{"frmLevelNames",
                      whileOpen(desk, WindowId::frmLevelNames),
                      always("Level names"),
                      always("Name the units of every level, in the plural"),
                      always(""),
                      {},
                      {{"frmLevelNames.cmdLevelNames(1)", "Cancel", false},
                       {"frmLevelNames.cmdLevelNames(0)", "Apply", true}}};
    for (int level = highestLevel; level >= lowestLevel; --level)
        model.fields.push_back({indexedName("frmLevelNames.txtLevelNames", level), &dialogs.levelName(level),
                                captionOf(dialogs.levelLabel(level))});
    return model;
}

DialogModel limitsModel(const Desk& desk, const SmallDialogs& dialogs) {
    DialogModel model{"frmLimits",
                      [&dialogs] { return dialogs.limitsAreOpen(); },
                      always("Limits of risks"),
                      always("Enter the lower and the upper limit of the risks at each level"),
                      always(""),
                      {},
                      {{"frmLimits.Command2", "Use spans", false},
                       {"frmLimits.Command3", "Use limits", false},
                       {"frmLimits.Command1", "Apply", true}}};
    for (int level = highestLevel; level >= 2; --level) {
        const auto labelled = [&desk, level](const char* which) {
            return [&desk, level, which] { return desk.study().txtName(level) + which; };
        };
        model.fields.push_back({indexedName("frmLimits.txtLL", level), &dialogs.limits().txtLL(level),
                                labelled(", lower limit")});
        model.fields.push_back({indexedName("frmLimits.txtUL", level), &dialogs.limits().txtUL(level),
                                labelled(", upper limit")});
    }
    return model;
}

}  // namespace

std::vector<DialogModel> dialogModels(const Desk& desk) {
    const SmallDialogs& d = desk.application().dialogs();
    const ScenarioWindow& scenarios = desk.application().scenarioWindow();
    const auto group = [&desk](int which) {
        return [&desk, which] { return desk.study().txtGroupName(which); };
    };
    return {{"frmAlpha",
             whileOpen(desk, WindowId::frmAlpha),
             always("Alpha"),
             always("The criterion for statistical significance"),
             always("From 0.001 to 0.49"),
             {{"frmAlpha.txtAlpha", &d.alpha(), always("Alpha")}},
             {{"frmAlpha.cmdOK", "OK", true}}},
            {"frmDelta",
             whileOpen(desk, WindowId::frmDelta),
             always("Limits for risks"),
             always("The smallest distance of any risk from 0 and from 1"),
             always("From 0.0001 to 0.1"),
             {{"frmDelta.txtDelta", &d.delta(), always("Distance")}},
             {{"frmDelta.Command1", "OK", true}}},
            {"frmSetMean",
             whileOpen(desk, WindowId::frmSetMean),
             captionOf(d.meanAndSpan().title),
             captionOf(d.meanAndSpan().prompt),
             captionOf(d.meanAndSpan().explanation),
             {{"frmSetMean.txtMean", &d.meanAndSpan().txtMean, captionOf(d.meanAndSpan().heading)},
              {"frmSetMean.txtSpan", &d.meanAndSpan().txtSpan, always("Span")}},
             {{"frmSetMean.cmdCancel", "Cancel", false}, {"frmSetMean.cmdOK", "OK", true}}},
            {"frmGroupNames",
             whileOpen(desk, WindowId::frmGroupNames),
             always("Group names"),
             always("The names are used in labels only"),
             always(""),
             {{"frmGroupNames.txtGroupName(1)", &d.groupName(1), group(1)},
              {"frmGroupNames.txtGroupName(2)", &d.groupName(2), group(2)}},
             {{"frmGroupNames.cmdGroupNames(1)", "Cancel", false},
              {"frmGroupNames.cmdGroupNames(0)", "Apply", true}}},
            levelNamesModel(desk, d),
            limitsModel(desk, d),
            {"pic",
             [&d] { return d.maxCostIsOpen(); },
             always("Set the maximum possible cost"),
             always("The program will display the current cost as a percentage of the value"),
             always("This affects the display only, and has no impact on the computations."),
             {{"txtMaxCost", &d.maxCost(), always("Maximum cost")}},
             {{"cmdSetMaxCost(1)", "Cancel", false}, {"cmdSetMaxCost(0)", "Apply", true}}},
            {"frmScenariosName",
             whileOpen(desk, WindowId::frmScenariosName),
             always("Edit row"),
             always("Name and describe the scenario"),
             always(""),
             {{"frmScenariosName.txtScenariosName", &scenarios.name(), always("Name")},
              {"frmScenariosName.txtScenariosDesc", &scenarios.description(), always("Description")}},
             {{"frmScenariosName.cmdScenarioNameOk(1)", "Cancel", false},
              {"frmScenariosName.cmdScenarioNameOk(0)", "Apply", true}}},
            {"frmOD",
             [&d] { return d.exampleIsOpen(); },
             always("Example of the optimal design"),
             always("Two levels, randomized at the top"),
             always("The present levels are replaced."),
             {},
             {{"frmOD.optA", "Use the example", true}}},
            {"frmValue",
             [&d] { return d.valueIsOpen(); },
             captionOf(d.value().title),
             captionOf(d.value().sense),
             captionOf(d.value().limits),
             {{"frmValue.txtValue", &d.value().txtValue, captionOf(d.value().title)}},
             {{"frmValue.cmdCancel", "Cancel", false}, {"frmValue.cmdOK", "OK", true}}}};
}

DialogView::DialogView(Desk& desk, ToolPanel* panel, DialogModel model)
    : PanelView(desk, panel, model.name), model_(std::move(model)), heading_(styled(TextStyle::PanelHeading)),
      sense_(styled(TextStyle::Caption)), limits_(styled(TextStyle::Caption)) {
    for (QLabel* label : {sense_, limits_})
        label->setProperty("second", true);
    QVBoxLayout* box = panel->content();
    box->setSpacing(8);
    box->addWidget(heading_);
    box->addWidget(sense_);
    for (std::size_t i = 0; i < model_.fields.size(); ++i)
        addField();
    box->addWidget(limits_);
    addButtons();
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

void DialogView::addField() {
    const bool single = model_.fields.size() == 1;
    FieldView view{styled(TextStyle::CaptionStrong),
                   new TextField(single ? TextField::Size::Large : TextField::Size::Usual), ""};
    view.field->setFixedWidth(dialogWidth);
    view.label->setVisible(!single);
    panel()->content()->addWidget(view.label);
    panel()->content()->addWidget(view.field);
    connect(view.field, &TextField::returnPressed, this, [this] { press(model_.buttons.back()); });
    fields_.push_back(view);
}

void DialogView::addButtons() {
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    row->addStretch(1);
    for (const DialogButton& button : model_.buttons) {
        PushButton* made = button.primary ? primaryButton(QString::fromUtf8(button.caption))
                                          : plainButton(QString::fromUtf8(button.caption));
        made->setObjectName(QString::fromStdString(button.control));
        connect(made, &PushButton::clicked, this, [this, button] { press(button); });
        row->addWidget(made);
    }
    panel()->content()->addSpacing(6);
    panel()->content()->addLayout(row);
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
        fields_[i].shown = model_.fields[i].box->Text;
}

// What was typed stays until the program changes the text itself or the dialog opens anew.
void DialogView::sync() {
    panel()->setWindowTitle(shownText(model_.title()));
    heading_->setText(shownText(model_.title()));
    sense_->setText(shownText(model_.sense()));
    limits_->setText(shownText(model_.limits()));
    limits_->setVisible(!model_.limits().empty());
    const bool opened = isOpen() && !wasOpen_;
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        const TextBox& box = *model_.fields[i].box;
        FieldView& view = fields_[i];
        if (opened || view.shown != box.Text) {
            view.field->setText(shownText(box.Text));
            view.shown = box.Text;
        }
        view.label->setText(shownText(model_.fields[i].label()));
        view.field->setAccessibleName(view.label->text());
        view.field->setObjectName(QString::fromStdString(model_.fields[i].control));
        view.label->setVisible(box.Visible && fields_.size() > 1);
        view.field->setVisible(box.Visible);
    }
    wasOpen_ = isOpen();
    if (opened && !fields_.empty()) {
        for (FieldView& view : fields_) {
            if (view.field->isHidden())
                continue;
            view.field->setFocus();
            view.field->selectAll();
            break;
        }
    }
}

}  // namespace lorvane::desktop
