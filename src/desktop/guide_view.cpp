// The windows of the two guides.
#include "desktop/guide_view.h"

#include <QApplication>
#include <QButtonGroup>
#include <QHBoxLayout>
#include <QMenu>
#include <QPointer>
#include <QRadioButton>
#include <QScreen>
#include <QShortcut>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

#include "base/names.h"
#include "desktop/kit/guide_sheet.h"
#include "desktop/kit/plain_text.h"
#include "desktop/kit/push_button.h"
#include "desktop/menus.h"
#include "desktop/shown_paragraphs.h"

namespace lorvane::desktop {

namespace {

constexpr int panelWidth = 340;
constexpr const char* backControl = "frmTips.frmClusterWizbutton(2)";
constexpr const char* nextControl = "frmTips.frmClusterWizbutton(3)";

// In the order of GuideTextSize.
constexpr TextStyle textStyles[] = {TextStyle::Caption, TextStyle::Body, TextStyle::LevelName};

}  // namespace

// Both guides ----------------------------------------------------------------------------------------------

GuideBase::GuideBase(Desk& desk, ToolPanel* panel, const std::string& name, Menus& menus)
    : PanelView(desk, panel, name), sheet_(new GuideSheet), menus_(menus) {
    panel->content()->setContentsMargins(0, 0, 0, 0);
    panel->content()->addWidget(sheet_);
    panel->content()->addSpacerItem(
        new QSpacerItem(panelWidth, 0, QSizePolicy::Preferred, QSizePolicy::Fixed));
}

void GuideBase::listen(PushButton* button, const std::string& control, const Button& model) {
    buttons_.push_back({button, &model});
    connect(button, &PushButton::clicked, this, [this, control] { desk_.click(control); });
}

void GuideBase::addTool(Icon sign, const std::string& control, const Button& model) {
    listen(sheet_->addTool(sign, QString::fromStdString(control)), control, model);
}

PushButton* GuideBase::addStep(Icon sign, const std::string& control, const Button& model, bool primary,
                               bool signIsLast) {
    PushButton* button = sheet_->addStep(sign, QString::fromStdString(control), primary, signIsLast);
    buttons_.push_back({button, &model});
    connect(button, &PushButton::clicked, this, [this, control] { move(control); });
    return button;
}

// A window that a frame opens takes the keyboard; whoever turns the pages keeps it.
void GuideBase::move(const std::string& control) {
    const QPointer<QWidget> focus = QApplication::focusWidget();
    const bool isOurs = focus && sheet_->isAncestorOf(focus);
    desk_.click(control);
    if (!isOurs || !isOpen())
        return;
    QTimer::singleShot(0, sheet_, [this, focus] {
        sheet_->activateWindow();
        (focus && focus->isEnabled() ? focus.data() : sheet_)->setFocus();
    });
}

void GuideBase::addMenuButton(const std::string& control, const Button& model) {
    PushButton* button = sheet_->addTool(Icon::More, QString::fromStdString(control));
    buttons_.push_back({button, &model});
    connect(button, &PushButton::clicked, this,
            [this, button] { menus_.popup(menu(), button->mapToGlobal(QPoint(0, button->height()))); });
}

void GuideBase::addKeys(const std::string& back, const std::string& next) {
    const auto press = [this](const QKeySequence& key, const std::string& control) {
        auto* shortcut = new QShortcut(key, panel());
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, this, [this, control] { move(control); });
    };
    press(QKeySequence(Qt::ALT | Qt::Key_Left), back);
    press(QKeySequence(Qt::ALT | Qt::Key_Right), next);
}

void GuideBase::syncButtons() {
    for (const Row& row : buttons_) {
        row.button->setText(literalCaption(shownText(row.model->Caption)));
        row.button->setAccessibleName(shownText(row.model->Caption));
        row.button->setEnabled(row.model->Enabled);
        row.button->setVisible(row.model->Visible);
    }
    sheet_->arrangeTools();
}

// Through a study ------------------------------------------------------------------------------------------

GuideView::GuideView(Desk& desk, ToolPanel* panel, Menus& menus) : GuideBase(desk, panel, "frmTips", menus) {
    const Guide& guide = desk.application().guide();
    panel->setWindowTitle(shownText(windowTitle(WindowId::frmTips)));
    addChoices();
    addTool(Icon::Book, "frmTips.cmdPDF", guide.cmdPDF());
    addTool(Icon::Film, "frmTips.cmdVideo", guide.cmdVideo());
    addTool(Icon::Details, "frmTips.cmdDetails", guide.cmdDetails());
    addMenuButton("frmTips.cmdMenu", guide.cmdMenu());
    addSections();
    addStep(Icon::ChevronLeft, backControl, guide.cmdBack());
    addStep(Icon::ChevronRight, nextControl, guide.cmdNext(), true, true);
    addKeys(backControl, nextControl);
    QList<QWidget*> choices;
    for (const Choice& choice : choices_)
        choices << choice.button;
    sheet()->orderKeys(choices);
}

void GuideView::addSections() {
    PushButton* button =
        addStep(Icon::Sections, "frmTips.frmClusterWizbutton(0)", desk_.application().guide().cmdSections());
    button->disconnect(this);
    connect(button, &PushButton::clicked, this, [this, button] { showSections(button); });
}

// The jump list is made when it opens, since the titles follow the study.
void GuideView::showSections(QWidget* below) {
    const Guide& guide = desk_.application().guide();
    auto* list = new QMenu(below);
    list->setAttribute(Qt::WA_DeleteOnClose);
    int number = 0;
    for (const int frame : guideSections()) {
        const std::string control = indexedName("frmTips.Section", ++number);
        QAction* entry = list->addAction(literalCaption(shownText(guide.sectionCaption(frame))));
        connect(entry, &QAction::triggered, this, [this, control] { desk_.click(control); });
    }
    list->popup(below->mapToGlobal(QPoint(0, below->height())));
}

void GuideView::addChoices() {
    const Guide& guide = desk_.application().guide();
    addChoices({{"frmTips.optdatatype(1)", &guide.optdatatype(1)},
                {"frmTips.optdatatype(2)", &guide.optdatatype(2)}});
    addChoices({{"frmTips.optDType(1)", &guide.optDType(1)}, {"frmTips.optDType(2)", &guide.optDType(2)}});
    addChoices({{"frmTips.optBinaryType(1)", &guide.optBinaryType(1)},
                {"frmTips.optBinaryType(3)", &guide.optBinaryType(3)}});
}

// A row of options of which one is chosen.
QButtonGroup* GuideView::addChoices(const std::vector<std::pair<std::string, const Option*>>& options) {
    auto* group = new QButtonGroup(this);
    auto* row = new QHBoxLayout;
    for (const auto& [control, model] : options) {
        auto* button = new QRadioButton;
        button->setObjectName(QString::fromStdString(control));
        group->addButton(button);
        row->addWidget(button, 1);
        choices_.push_back({button, model});
        connect(button, &QRadioButton::clicked, this, [this, name = control] { desk_.click(name); });
    }
    sheet()->choices()->addLayout(row);
    return group;
}

bool GuideView::isOpen() const { return desk_.application().guide().isOpen(); }

std::string GuideView::menu() const { return desk_.application().guide().menu(); }

// A question that is answered by Cancel leaves the choice as it was, whatever was clicked.
void GuideView::sync() {
    const Guide& guide = desk_.application().guide();
    const GuidePart& part = guide.part();
    const QString caption = part.caption.empty() ? QString() : shownText(std::string(part.caption));
    sheet()->setTextStyle(textStyles[static_cast<std::size_t>(guide.textSize())]);
    sheet()->setContent({caption, shownText(guide.position()), guidePartCount, partsBegun(guide.CurrentTip()),
                         !caption.isEmpty(), shownText(guide.title()), shownParagraphs(guide.text())});
    for (const Choice& choice : choices_) {
        choice.button->setText(literalCaption(shownText(choice.model->Caption)));
        choice.button->setVisible(choice.model->Visible);
        choice.button->group()->setExclusive(false);
        choice.button->setChecked(choice.model->Value);
        choice.button->group()->setExclusive(true);
    }
    syncButtons();
}

// Through the graph ----------------------------------------------------------------------------------------

GraphGuideView::GraphGuideView(Desk& desk, ToolPanel* panel, Menus& graphMenus, const QWidget& graph)
    : GuideBase(desk, panel, "frmTipsGraph", graphMenus), graph_(graph) {
    const GraphGuide& guide = desk.application().graphGuide();
    panel->setWindowTitle(shownText(windowTitle(WindowId::frmTipsGraph)));
    addMenuButton("frmTipsGraph.cmdMenu", guide.cmdMenu());
    addStep(Icon::Close, "frmTipsGraph.cmdClose", guide.cmdClose());
    addStep(Icon::ChevronLeft, "frmTipsGraph.cmdBack", guide.cmdBack());
    addStep(Icon::ChevronRight, "frmTipsGraph.cmdNext", guide.cmdNext(), true, true);
    addKeys("frmTipsGraph.cmdBack", "frmTipsGraph.cmdNext");
    sheet()->orderKeys();
}

bool GraphGuideView::isOpen() const { return desk_.design().isOpen(WindowId::frmTipsGraph); }

// At the right of the graph, or at its left, or as far at the right as the screen goes.
void GraphGuideView::standBeside() {
    const QRect room = graph_.screen()->availableGeometry();
    const QRect graph = graph_.frameGeometry();
    int left = graph.right() + 1;
    if (left + panelWidth > room.right())
        left = graph.left() - panelWidth;
    if (left < room.left())
        left = room.right() - panelWidth;
    panel()->setPlace({left, std::max(graph.top(), room.top())});
}

std::string GraphGuideView::menu() const { return desk_.application().graphGuide().frame().menu; }

void GraphGuideView::sync() {
    const GraphGuide& guide = desk_.application().graphGuide();
    const GuideFrame frame = guide.frame();
    if (!panel()->isVisible() && !panel()->place())
        standBeside();
    QList<ShownParagraph> text;
    for (const std::string& paragraph : frame.text)
        text.append(ShownParagraph{{shownText(paragraph), false}});
    sheet()->setContent({shownText(frame.caption), shownText(guide.pnlPosition().Caption),
                         static_cast<int>(frame.frames.size()), frame.frame, true, shownText(frame.title),
                         text});
    syncButtons();
}

}  // namespace lorvane::desktop
