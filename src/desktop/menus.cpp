// Menus, popups and tool bar made from the bands.
#include "desktop/menus.h"

#include <QMenuBar>
#include <QToolBar>

#include "desktop/kit/icons.h"
#include "desktop/kit/menu_button.h"
#include "desktop/kit/tool_button.h"
#include "screen/tool_book.h"

namespace lorvane::desktop {

namespace {

constexpr const char* mainBar = "Band1";
constexpr const char* powerTool = "Set power";
constexpr const char* powerBand = "popSetPower";

struct Shortcut {
    std::string_view tool;
    QKeySequence keys;
};

const Shortcut shortcuts[] = {{"Clear", Qt::CTRL | Qt::Key_N}, {"Open", Qt::CTRL | Qt::Key_O},
                              {"Save", Qt::CTRL | Qt::Key_S},  {"SaveAs", Qt::CTRL | Qt::SHIFT | Qt::Key_S},
                              {"Exit", Qt::CTRL | Qt::Key_Q},  {"gfrmTips", Qt::Key_F1}};

struct Sign {
    std::string_view tool;
    Icon icon;
    bool withWord;  ///< the tool bar shows its caption beside the sign
};

constexpr Sign signs[] = {{"Open", Icon::Open, false},
                          {"Clear", Icon::New, false},
                          {"Save", Icon::Save, false},
                          {"Show power using digits", Icon::PowerDigits, false},
                          {"Show power using graph", Icon::PowerBar, false},
                          {"Show cost using digits", Icon::CostDigits, false},
                          {"Show cost using graph", Icon::CostBar, false},
                          {"Set maximum cost", Icon::MaxCost, false},
                          {"gfrmOptimal", Icon::Optimal, true},
                          {"gfrmMDES", Icon::Mdes, true},
                          {"gfrmScenarios", Icon::Scenarios, true},
                          {"Add scenario", Icon::AddScenario, false},
                          {"gfrmPrint", Icon::Report, true},
                          {"Graph", Icon::Graph, true},
                          {"gfrmTips", Icon::Guide, true},
                          {"gfrmDetails", Icon::Details, true}};

const Sign* signOf(const std::string& tool) {
    for (const Sign& sign : signs) {
        if (sign.tool == tool)
            return &sign;
    }
    return nullptr;
}

bool isCheckable(const Tool& tool) {
    return tool.Category == ToolCategory::choice || tool.Category == ToolCategory::increment ||
           tool.Category == ToolCategory::window;
}

void addStretch(QToolBar* bar) {
    auto* spacer = new QWidget(bar);
    spacer->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bar->addWidget(spacer);
}

void addSpace(QToolBar* bar) {
    auto* spacer = new QWidget(bar);
    spacer->setFixedWidth(10);
    bar->addWidget(spacer);
}

}  // namespace

Menus::Menus(Desk& desk, QWidget* window) : QObject(window), desk_(desk), window_(window) {}

QAction* Menus::action(const std::string& name) {
    const auto found = actions_.find(name);
    if (found != actions_.end())
        return found->second;
    auto* action = new QAction(window_);
    const Tool& tool = *desk_.design().tools().find(name);
    action->setCheckable(isCheckable(tool));
    action->setObjectName(QString::fromStdString(name));
    if (const Sign* sign = signOf(name))
        action->setIcon(icon(sign->icon));
    for (const Shortcut& shortcut : shortcuts) {
        if (shortcut.tool == name)
            action->setShortcut(shortcut.keys);
    }
    // The tool decides what is checked, so a click that changes nothing leaves the check as it was.
    connect(action, &QAction::triggered, this, [this, name] {
        desk_.tool(name);
        sync(actions_.at(name), *desk_.design().tools().find(name));
    });
    actions_.emplace(name, action);
    sync(action, tool);
    return action;
}

void Menus::sync(QAction* action, const Tool& tool) {
    action->setText(shownText(tool.Caption));
    action->setToolTip(shownText(tool.ToolTipText));
    action->setStatusTip(shownText(tool.ToolTipText));
    action->setVisible(tool.Visible);
    action->setEnabled(tool.Enabled);
    if (action->isCheckable())
        action->setChecked(tool.Checked && tool.Enabled);
}

void Menus::sync() {
    for (const auto& [name, action] : actions_)
        sync(action, *desk_.design().tools().find(name));
    if (power_ != nullptr)
        power_->setText(shownText(desk_.design().tools().find(powerTool)->Caption));
}

void Menus::addEntries(QMenu* menu, const Band& band) {
    for (const BandEntry& entry : band.entries) {
        if (entry.kind == BandEntry::Kind::line)
            menu->addSeparator();
        else if (entry.kind == BandEntry::Kind::band)
            menu->addMenu(this->menu(entry.name));
        else
            menu->addAction(action(entry.name));
    }
}

QMenu* Menus::menu(const std::string& name) {
    const auto found = menus_.find(name);
    if (found != menus_.end())
        return found->second;
    const Band* band = desk_.design().tools().band(name);
    if (band == nullptr)
        return nullptr;
    auto* menu = new QMenu(shownText(band->Caption), window_);
    menu->setToolTipsVisible(true);
    menu->setSeparatorsCollapsible(true);
    menus_.emplace(name, menu);
    addEntries(menu, *band);
    return menu;
}

void Menus::fill(QMenuBar* bar) {
    for (const Band& band : desk_.design().tools().bands()) {
        if (band.kind == BandKind::menu)
            bar->addMenu(menu(band.Name));
    }
}

void Menus::addPowerButton(QToolBar* bar) {
    power_ = new MenuButton(shownText(desk_.design().tools().find(powerTool)->Caption), bar);
    power_->setSign(Icon::Target);
    power_->setMenu(menu(powerBand));
    power_->setAccessibleName(tr("Required power"));
    power_->setToolTip(shownText(desk_.design().tools().find(powerTool)->ToolTipText));
    bar->addWidget(power_);
}

void Menus::addButton(QToolBar* bar, const std::string& tool) {
    const Sign* sign = signOf(tool);
    const bool withWord = sign != nullptr && sign->withWord;
    QAction* action = this->action(tool);
    auto* button =
        new ToolButton(action, withWord ? ToolButton::Words::Beside : ToolButton::Words::None, bar);
    button->setFocusPolicy(Qt::TabFocus);
    if (withWord)
        words_.push_back(button);
    QAction* place = bar->addWidget(button);
    place->setVisible(action->isVisible());
    connect(action, &QAction::changed, place, [place, action] { place->setVisible(action->isVisible()); });
}

void Menus::setWordsShown(bool shown) {
    for (ToolButton* button : words_)
        button->setWords(shown ? ToolButton::Words::Beside : ToolButton::Words::None);
}

void Menus::fill(QToolBar* bar) {
    addSpace(bar);
    for (const BandEntry& entry : desk_.design().tools().band(mainBar)->entries) {
        if (entry.kind == BandEntry::Kind::line)
            bar->addSeparator();
        else if (entry.kind == BandEntry::Kind::stretch)
            addStretch(bar);
        else if (entry.name == powerTool)
            addPowerButton(bar);
        else
            addButton(bar, entry.name);
    }
    addSpace(bar);
}

void Menus::popup(const std::string& band, const QPoint& place) {
    if (QMenu* popup = band.empty() ? nullptr : menu(band))
        popup->popup(place);
}

}  // namespace lorvane::desktop
