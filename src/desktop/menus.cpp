// Menus, popups and tool bar made from the bands.
#include "desktop/menus.h"

#include <QKeyEvent>
#include <QMenuBar>
#include <QToolBar>
#include <QVBoxLayout>
#include <algorithm>
#include <optional>
#include <utility>

#include "desktop/kit/icons.h"
#include "desktop/kit/menu_button.h"
#include "desktop/kit/stressed_label.h"
#include "desktop/kit/tool_button.h"
#include "desktop/menu_overflow.h"
#include "desktop/mnemonics.h"
#include "screen/command_book.h"

namespace lorvane::desktop {

namespace {

constexpr const char* powerTool = "Set power";
constexpr const char* powerBand = "popSetPower";
constexpr int labelMargin = 10;
constexpr int leftSpace = 10, rightSpace = 4;  // at the ends of a tool bar

struct SignIcon {
    Sign sign;
    Icon icon;
};

constexpr SignIcon signIcons[] = {{Sign::open, Icon::Open},
                                  {Sign::fresh, Icon::New},
                                  {Sign::save, Icon::Save},
                                  {Sign::powerDigits, Icon::PowerDigits},
                                  {Sign::powerBar, Icon::PowerBar},
                                  {Sign::costDigits, Icon::CostDigits},
                                  {Sign::costBar, Icon::CostBar},
                                  {Sign::maximumCost, Icon::MaxCost},
                                  {Sign::requiredPower, Icon::Target},
                                  {Sign::optimal, Icon::Optimal},
                                  {Sign::mdes, Icon::Mdes},
                                  {Sign::scenarios, Icon::Scenarios},
                                  {Sign::addScenario, Icon::AddScenario},
                                  {Sign::report, Icon::Report},
                                  {Sign::graph, Icon::Graph},
                                  {Sign::guide, Icon::Guide},
                                  {Sign::details, Icon::Details},
                                  {Sign::undo, Icon::Undo},
                                  {Sign::redo, Icon::Redo},
                                  {Sign::copy, Icon::Copy},
                                  {Sign::axis, Icon::XAxis},
                                  {Sign::series, Icon::Series},
                                  {Sign::coin, Icon::Coin},
                                  {Sign::table, Icon::Table},
                                  {Sign::saveGraph, Icon::Export},
                                  {Sign::left, Icon::ChevronLeft},
                                  {Sign::right, Icon::ChevronRight},
                                  {Sign::up, Icon::ChevronUp},
                                  {Sign::down, Icon::ChevronDown},
                                  {Sign::close, Icon::Close},
                                  {Sign::edit, Icon::Edit},
                                  {Sign::link, Icon::Link},
                                  {Sign::print, Icon::Print},
                                  {Sign::first, Icon::First},
                                  {Sign::last, Icon::Last},
                                  {Sign::pageWidth, Icon::Width},
                                  {Sign::fitPage, Icon::Fit}};

std::optional<Icon> drawingOf(Sign sign) {
    for (const SignIcon& row : signIcons) {
        if (row.sign == sign)
            return row.icon;
    }
    return std::nullopt;
}

QList<QKeySequence> keysOf(const Tool& tool) {
    QList<QKeySequence> keys;
    for (const QString& key : shownText(tool.shortcut).split(QLatin1Char(' '), Qt::SkipEmptyParts))
        keys.append(QKeySequence(key));
    return keys;
}

// A key as people read it, "Ctrl+Z"; the first one where there are several.
QString keyWords(const Tool& tool) {
    const QList<QKeySequence> keys = keysOf(tool);
    return keys.isEmpty() ? shownText(tool.keyOfCell) : keys.constFirst().toString(QKeySequence::NativeText);
}

// What a command does and its key; where it is not on offer, why.
QString tipOf(const Tool& tool) {
    const QString key = keyWords(tool);
    if (!tool.Enabled || key.isEmpty())
        return shownText(tool.Enabled ? tool.ToolTipText : tool.Reason);
    return shownText(tool.ToolTipText) + QStringLiteral("  ") + key;
}

// The caption without what belongs to menus.
QString plainWord(const Tool& tool) {
    if (!tool.word.empty())
        return shownText(tool.word);
    return withoutMnemonic(shownText(tool.Caption));
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

void addSpace(QToolBar* bar, int width) {
    auto* spacer = new QWidget(bar);
    spacer->setFixedWidth(width);
    bar->addWidget(spacer);
}

}  // namespace

Menus::Menus(Desk& desk, QWidget* window, std::string screen)
    : QObject(window), desk_(desk), window_(window), screen_(std::move(screen)) {
    if (!screen_.empty())
        window->installEventFilter(this);
}

// The action of a key that commands of other screens have too.
QAction* Menus::ownActionOf(const QKeySequence& key) const {
    const auto own = std::find_if(actions_.begin(), actions_.end(),
                                  [&](const auto& row) { return row.second->shortcuts().contains(key); });
    const std::vector<Tool>& tools = desk_.application().commands().tools();
    const bool isShared = std::any_of(tools.begin(), tools.end(), [&](const Tool& tool) {
        return !actions_.contains(tool.Name) && keysOf(tool).contains(key);
    });
    return own != actions_.end() && isShared ? own->second : nullptr;
}

// The menu that a letter with Alt opens.
QAction* Menus::ownMenuOf(const QKeySequence& key) const {
    if (menuBar_ == nullptr || key.isEmpty())
        return nullptr;
    const QList<QAction*> menus = menuBar_->actions();
    const auto found = std::find_if(menus.begin(), menus.end(), [&](const QAction* menu) {
        return QKeySequence::mnemonic(menu->text()) == key;
    });
    return found == menus.end() ? nullptr : *found;
}

// The shortcuts of the main screen hold in its floating windows as well, and two for one key would cancel
// each other. A window with menus of its own takes such a key for itself.
bool Menus::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    const QKeySequence key(static_cast<QKeyEvent*>(event)->keyCombination());
    QAction* action = ownActionOf(key);
    QAction* menu = ownMenuOf(key);
    if (action == nullptr && menu == nullptr)
        return false;
    event->accept();
    if (event->type() == QEvent::KeyPress && action != nullptr)
        action->trigger();
    else if (event->type() == QEvent::KeyPress)
        menuBar_->setActiveAction(menu);
    return true;
}

QAction* Menus::action(const std::string& name) {
    const auto found = actions_.find(name);
    if (found != actions_.end())
        return found->second;
    auto* action = new QAction(window_);
    const Tool& tool = *desk_.application().commands().find(name);
    action->setCheckable(isCheckable(tool));
    action->setObjectName(QString::fromStdString(name));
    if (const auto drawing = drawingOf(tool.sign))
        action->setIcon(icon(*drawing));
    action->setShortcuts(keysOf(tool));
    // The tool decides what is checked, so a click that changes nothing leaves the check as it was.
    connect(action, &QAction::triggered, this, [this, name] {
        desk_.tool(name);
        sync(actions_.at(name), *desk_.application().commands().find(name));
    });
    actions_.emplace(name, action);
    sync(action, tool);
    return action;
}

void Menus::sync(QAction* action, const Tool& tool) {
    show(action, tool);
    action->setVisible(tool.Visible);
    action->setEnabled(tool.Enabled);
    // A choice is marked also where it is not on offer; a window without a view counts as open in vain.
    if (action->isCheckable())
        action->setChecked(tool.Checked && (tool.Enabled || tool.Category == ToolCategory::choice));
}

// Keys that an action does not hear by itself stand behind its text.
void Menus::show(QAction* action, const Tool& tool) {
    const bool told = !action->shortcut().isEmpty() || keyWords(tool).isEmpty();
    action->setText(shownText(tool.Shown) + (told ? QString() : QLatin1Char('\t') + keyWords(tool)));
    action->setIconText(plainWord(tool));
    action->setToolTip(tipOf(tool));
    action->setStatusTip(shownText(tool.Enabled ? tool.ToolTipText : tool.Reason));
}

// An entry of the menu of all windows; one that is open can be closed, whatever opens it.
QAction* Menus::form(const std::string& name) {
    QAction*& action = forms_[name];
    if (action != nullptr)
        return action;
    action = new QAction(window_);
    action->setObjectName(QStringLiteral("toggle ") + QString::fromStdString(name));
    action->setCheckable(true);
    connect(action, &QAction::triggered, this, [this, name] {
        desk_.toggleForm(name);
        syncForm(forms_.at(name), *desk_.application().commands().find(name));
    });
    syncForm(action, *desk_.application().commands().find(name));
    return action;
}

void Menus::syncForm(QAction* action, const Tool& tool) {
    const bool closes = desk_.application().closesForm(tool.Name);
    show(action, tool);
    action->setEnabled(tool.Enabled || closes);
    action->setChecked(tool.Checked && action->isEnabled());
}

void Menus::sync() {
    for (const auto& [name, action] : forms_)
        syncForm(action, *desk_.application().commands().find(name));
    for (const auto& [name, action] : actions_)
        sync(action, *desk_.application().commands().find(name));
    if (power_ != nullptr)
        power_->setText(shownText(desk_.application().commands().find(powerTool)->Caption));
    for (const auto& [name, label] : labels_)
        label->setText(shownText(desk_.application().commands().find(name)->Caption));
}

void Menus::addEntries(QMenu* menu, const Band& band) {
    for (const BandEntry& entry : band.entries) {
        if (entry.kind == BandEntry::Kind::line)
            menu->addSeparator();
        else if (entry.kind == BandEntry::Kind::band)
            menu->addMenu(this->menu(entry.name));
        else if (desk_.application().commands().find(entry.name)->Category != ToolCategory::display)
            menu->addAction(band.toggles ? form(entry.name) : action(entry.name));
    }
}

QMenu* Menus::menu(const std::string& name) {
    const auto found = menus_.find(name);
    if (found != menus_.end())
        return found->second;
    const Band* band = desk_.application().commands().band(name);
    if (band == nullptr)
        return nullptr;
    auto* menu = new QMenu(shownText(band->Caption), window_);
    menu->setToolTipsVisible(true);
    menu->setSeparatorsCollapsible(true);
    menus_.emplace(name, menu);
    addEntries(menu, *band);
    connect(menu, &QMenu::aboutToShow, this, [menu] { giveMnemonics(menu->actions()); });
    return menu;
}

void Menus::fill(QMenuBar* bar) {
    menuBar_ = bar;
    for (const Band& band : desk_.application().commands().bands()) {
        if (band.kind == BandKind::menu && band.screen == screen_)
            bar->addMenu(menu(band.Name));
    }
    overflow_ = new MenuOverflow(bar);
    bar->setFixedHeight(menuBarHeight);
}

void Menus::addPowerButton(QToolBar* bar) {
    power_ = new MenuButton(shownText(desk_.application().commands().find(powerTool)->Caption), bar);
    power_->setObjectName(QStringLiteral("tool:") + QString::fromLatin1(powerTool));
    power_->setSign(Icon::Target);
    power_->setMenu(menu(powerBand));
    power_->setAccessibleName(tr("Required power"));
    power_->setToolTip(tipOf(*desk_.application().commands().find(powerTool)));
    bar->addWidget(power_);
}

void Menus::addMenuButton(QToolBar* bar, const std::string& name) {
    const Band& band = *desk_.application().commands().band(name);
    auto* opening = new QAction(shownText(band.word), this);
    if (const auto drawing = drawingOf(band.sign))
        opening->setIcon(icon(*drawing));
    opening->setMenu(menu(name));
    auto* button = new ToolButton(opening, ToolButton::Words::Beside, bar);
    button->setPopupMode(QToolButton::InstantPopup);
    button->setFocusPolicy(Qt::TabFocus);
    words_.push_back(button);
    bar->addWidget(button);
}

ToolButton* Menus::button(const std::string& tool, QWidget* parent) {
    const bool withWord = desk_.application().commands().find(tool)->withWord;
    auto* button =
        new ToolButton(action(tool), withWord ? ToolButton::Words::Beside : ToolButton::Words::None, parent);
    button->setObjectName(QStringLiteral("tool:") + QString::fromStdString(tool));
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

void Menus::addButton(QToolBar* bar, const std::string& tool) {
    ToolButton* button = this->button(tool, bar);
    if (desk_.application().commands().find(tool)->withWord)
        words_.push_back(button);
    QAction* action = this->action(tool);
    QAction* place = bar->addWidget(button);
    place->setVisible(action->isVisible());
    connect(action, &QAction::changed, place, [place, action] { place->setVisible(action->isVisible()); });
}

void Menus::addLabel(QToolBar* bar, const std::string& tool) {
    auto* label = new StressedLabel(bar);
    label->setContentsMargins(labelMargin, 0, labelMargin, 0);
    label->setText(shownText(desk_.application().commands().find(tool)->Caption));
    labels_.emplace(tool, label);
    bar->addWidget(label);
}

void Menus::addTool(QToolBar* bar, const std::string& tool) {
    if (tool == powerTool)
        addPowerButton(bar);
    else if (desk_.application().commands().find(tool)->Category == ToolCategory::display)
        addLabel(bar, tool);
    else
        addButton(bar, tool);
}

const Band& Menus::toolBar() const {
    const std::vector<Band>& bands = desk_.application().commands().bands();
    return *std::find_if(bands.begin(), bands.end(), [this](const Band& band) {
        return band.kind == BandKind::toolbar && band.screen == screen_;
    });
}

void Menus::setNarrow(bool narrow) {
    for (ToolButton* button : words_)
        button->setWords(narrow ? ToolButton::Words::None : ToolButton::Words::Beside);
    overflow_->setNarrow(narrow);
}

void Menus::fill(QToolBar* bar) {
    bar->setFixedHeight(toolBarHeight);
    bar->layout()->setContentsMargins(0, 0, 0, 0);
    addSpace(bar, leftSpace);
    for (const BandEntry& entry : toolBar().entries) {
        if (entry.kind == BandEntry::Kind::line)
            bar->addSeparator();
        else if (entry.kind == BandEntry::Kind::stretch)
            addStretch(bar);
        else if (entry.kind == BandEntry::Kind::band)
            addMenuButton(bar, entry.name);
        else
            addTool(bar, entry.name);
    }
    addSpace(bar, rightSpace);
}

void Menus::addTo(QVBoxLayout* column) {
    auto* menuBar = new QMenuBar;
    fill(menuBar);
    column->addWidget(menuBar);
    auto* bar = new QToolBar;
    bar->setWindowTitle(shownText(toolBar().Caption));
    fill(bar);
    column->addWidget(bar);
}

void Menus::popup(const std::string& band, const QPoint& place) {
    if (QMenu* popup = band.empty() ? nullptr : menu(band))
        popup->popup(place);
}

}  // namespace lorvane::desktop
