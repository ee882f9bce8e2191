// Counts what fits and moves the rest.
#include "desktop/menu_overflow.h"

#include <QEvent>
#include <QFontMetrics>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>
#include <QStyle>

#include "desktop/kit/icons.h"

namespace lorvane::desktop {

namespace {

// As the style sheet has them: the air around a word, between two, and at both ends of the bar.
struct Padding {
    int word, between, ends;
};
constexpr Padding wide{12, 0, 8};
constexpr Padding narrowPadding{7, 6, 7};
constexpr int signWidth = 36;

const Padding& paddingOf(bool narrow) { return narrow ? narrowPadding : wide; }

}  // namespace

MenuOverflow::MenuOverflow(QMenuBar* bar)
    : QObject(bar), bar_(bar), more_(new QMenu(bar)), line_(new QAction(this)) {
    for (QAction* action : bar->actions()) {
        QMenu* menu = action->menu();
        auto* letter = new QShortcut(QKeySequence::mnemonic(menu->title()), bar);
        connect(letter, &QShortcut::activated, this, [this, menu] { open(menu); });
        menus_.append(menu);
        letters_.append(letter);
    }
    more_->setTitle(tr("More menus"));
    more_->menuAction()->setIcon(icon(Icon::MoreMenus));
    // What follows a line stands at the right end of the bar.
    line_->setSeparator(true);
    bar->installEventFilter(this);
    fit();
}

void MenuOverflow::setNarrow(bool narrow) {
    if (narrow == narrow_)
        return;
    narrow_ = narrow;
    fit();
}

bool MenuOverflow::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::Resize || event->type() == QEvent::FontChange)
        fit();
    return false;
}

int MenuOverflow::widthOf(const QMenu& menu, bool narrow) const {
    const Padding& padding = paddingOf(narrow);
    const QSize words = bar_->fontMetrics().size(Qt::TextShowMnemonic, menu.title());
    return words.width() + 2 * padding.word + padding.between;
}

qsizetype MenuOverflow::countThatFits(bool narrow) const {
    const int room = bar_->width() - 2 * paddingOf(narrow).ends;
    int width = paddingOf(narrow).between;
    qsizetype withSign = 0;
    for (qsizetype i = 0; i < menus_.size(); ++i) {
        width += widthOf(*menus_[i], narrow);
        if (width + signWidth <= room)
            withSign = i + 1;
    }
    return width <= room ? menus_.size() : withSign;
}

void MenuOverflow::fit() {
    const bool narrow = narrow_ || countThatFits(false) < menus_.size();
    setPadding(narrow);
    fill(countThatFits(narrow));
}

void MenuOverflow::setPadding(bool narrow) {
    if (bar_->property("narrow").toBool() == narrow)
        return;
    bar_->setProperty("narrow", narrow);
    bar_->style()->unpolish(bar_);
    bar_->style()->polish(bar_);
}

void MenuOverflow::fill(qsizetype count) {
    if (count == count_)
        return;
    count_ = count;
    more_->clear();
    bar_->clear();
    for (qsizetype i = 0; i < menus_.size(); ++i) {
        QMenu* menu = menus_[i];
        letters_[i]->setEnabled(i >= count);
        if (i < count)
            bar_->addMenu(menu);
        else
            more_->addMenu(menu);
    }
    if (count == menus_.size())
        return;
    bar_->addAction(line_);
    bar_->addMenu(more_);
}

void MenuOverflow::open(QMenu* menu) {
    bar_->setActiveAction(more_->menuAction());
    more_->setActiveAction(menu->menuAction());
}

}  // namespace lorvane::desktop
