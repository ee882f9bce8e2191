// The page of all keys.
#include "desktop/keyboard_view.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QScrollArea>
#include <QShortcut>
#include <QVBoxLayout>

#include "desktop/kit/key_list.h"
#include "desktop/kit/push_button.h"
#include "desktop/kit/text_style.h"

namespace lorvane::desktop {

namespace {

constexpr QSize firstSize(860, 620);
constexpr QSize smallestSize(860, 320);
constexpr int margin = 28;
constexpr int betweenColumns = 40;
constexpr int betweenSections = 22;
constexpr int smallestButton = 84;

KeyList* listOf(const KeySection& section) {
    std::vector<KeyLine> lines;
    for (const KeyRow& row : section.rows) {
        KeyLine line{{}, shownText(row.words)};
        for (const QString& key : shownText(row.keys).split(QLatin1Char(' ')))
            line.caps.push_back({key, key != QLatin1String("to")});
        lines.push_back(std::move(line));
    }
    return new KeyList(shownText(section.heading), lines);
}

QLabel* label(const Panel& model, TextStyle style, bool second) {
    auto* label = new QLabel(shownText(model.Caption));
    label->setFont(textFont(style));
    label->setProperty("second", second);
    return label;
}

}  // namespace

KeyboardView::KeyboardView(Desk& desk, ToolPanel* panel)
    : PanelView(desk, panel, "frmKeyboard"),
      close_(primaryButton(shownText(desk.application().keyboard().cmdClose().Caption))) {
    const KeyboardPage& model = desk.application().keyboard();
    panel->setWindowTitle(shownText(model.pnlTitle().Caption));
    QVBoxLayout* column = makeScreen(firstSize, smallestSize);
    column->setContentsMargins(margin, 18, 0, 16);
    column->addWidget(label(model.pnlHeading(), TextStyle::LevelName, false));
    column->addWidget(label(model.pnlSense(), TextStyle::Body, true));
    column->addSpacing(14);
    column->addWidget(makeKeys(), 1);
    column->addSpacing(14);
    column->addLayout(makeButtons());
    connect(new QShortcut(Qt::Key_Escape, panel), &QShortcut::activated, this, [this] { press("cmdClose"); });
}

QScrollArea* KeyboardView::makeKeys() {
    auto* keys = new QWidget;
    auto* columns = new QHBoxLayout(keys);
    columns->setContentsMargins(0, 0, margin, 0);
    columns->setSpacing(betweenColumns);
    QVBoxLayout* sides[] = {new QVBoxLayout, new QVBoxLayout};
    for (QVBoxLayout* side : sides) {
        side->setSpacing(betweenSections);
        columns->addLayout(side);
    }
    for (const KeySection& section : desk_.application().keyboard().sections())
        sides[section.atRight ? 1 : 0]->addWidget(listOf(section));
    for (QVBoxLayout* side : sides)
        side->addStretch(1);
    auto* scroll = new QScrollArea;
    scroll->setWidget(keys);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setAccessibleName(panel()->windowTitle());
    scroll->viewport()->setAutoFillBackground(false);
    keys->setAutoFillBackground(false);
    return scroll;
}

QBoxLayout* KeyboardView::makeButtons() {
    const KeyboardPage& model = desk_.application().keyboard();
    auto* row = new QHBoxLayout;
    row->setContentsMargins(0, 0, margin, 0);
    const auto add = [&](PushButton* button, const char* name) {
        button->setObjectName(QString::fromUtf8(name));
        button->setMinimumWidth(smallestButton);
        connect(button, &PushButton::clicked, this, [this, name] { press(name); });
        row->addWidget(button);
    };
    PushButton* print = plainButton(shownText(model.cmdPrint().Caption));
    print->setEnabled(model.cmdPrint().Enabled);
    add(print, "cmdPrint");
    row->addStretch(1);
    add(close_, "cmdClose");
    return row;
}

void KeyboardView::sync() {
    if (isOpen() && !wasOpen_)
        close_->setFocus();
    wasOpen_ = isOpen();
}

}  // namespace lorvane::desktop
