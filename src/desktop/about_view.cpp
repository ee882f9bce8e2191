// The window that tells of the program itself.
#include "desktop/about_view.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QShortcut>
#include <QToolButton>
#include <QVBoxLayout>

#include "desktop/kit/card.h"
#include "desktop/kit/icons.h"
#include "desktop/kit/link_button.h"
#include "desktop/kit/logo.h"
#include "desktop/kit/push_button.h"
#include "desktop/kit/stressed_label.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"
#include "desktop/kit/wrapped_text.h"

namespace lorvane::desktop {

namespace {

constexpr int width = 464;
constexpr int headingWidth = 96;
constexpr int smallestButton = 84;

// A line between rows.
class Separator : public QWidget {
public:
    Separator() { setFixedHeight(1); }

protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(rect(), colour(Role::Line)); }
};

class LargeLogo : public QWidget {
public:
    LargeLogo() { setFixedSize(46, 50); }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        drawLogo(painter, QRectF(rect()));
    }
};

QLabel* label(const Panel& model, TextStyle style, QFont::Weight weight, bool second = false) {
    auto* label = new QLabel(shownText(model.Caption));
    QFont font = textFont(style);
    font.setWeight(weight);
    label->setFont(font);
    label->setProperty("second", second);
    return label;
}

WrappedText* wrapped(const Panel& model, int textWidth) {
    auto* text = new WrappedText(TextStyle::Body);
    text->setText(shownText(model.Caption));
    text->setFixedWidth(textWidth);
    text->setFixedHeight(text->heightForWidth(textWidth));
    return text;
}

}  // namespace

AboutView::AboutView(Desk& desk, ToolPanel* panel)
    : PanelView(desk, panel, "frmAbout"),
      close_(primaryButton(shownText(desk.application().about().cmdClose().Caption))) {
    const AboutWindow& model = desk.application().about();
    panel->setWindowTitle(shownText(model.pnlTitle().Caption));
    panel->setAttribute(Qt::WA_ShowWithoutActivating, false);
    QVBoxLayout* column = panel->content();
    column->setContentsMargins(28, 24, 28, 18);
    column->setSpacing(12);
    column->addLayout(makeHead());
    column->addSpacing(8);
    for (const AboutFact& fact : model.facts()) {
        column->addWidget(new Separator);
        column->addLayout(makeFact(fact));
    }
    column->addWidget(new Separator);
    column->addLayout(makeButtons());
    connect(new QShortcut(Qt::Key_Escape, panel), &QShortcut::activated, this, [this] { press("cmdClose"); });
}

QBoxLayout* AboutView::makeHead() {
    const AboutWindow& model = desk_.application().about();
    auto* names = new QVBoxLayout;
    names->setSpacing(2);
    names->addWidget(label(model.pnlName(), TextStyle::Message, QFont::DemiBold));
    names->addWidget(label(model.pnlSense(), TextStyle::Body, QFont::Normal, true));
    auto* version = new StressedLabel;
    version->setText(shownText(model.pnlVersion().Caption));
    auto* head = new QHBoxLayout;
    head->setSpacing(14);
    head->addWidget(new LargeLogo);
    head->addLayout(names, 1);
    head->addWidget(version, 0, Qt::AlignTop);
    return head;
}

QBoxLayout* AboutView::makeFact(const AboutFact& fact) {
    const AboutWindow& model = desk_.application().about();
    auto* heading = label(fact.heading, TextStyle::CaptionStrong, QFont::Medium, true);
    heading->setFixedWidth(headingWidth);
    auto* row = new QHBoxLayout;
    row->setSpacing(0);
    row->addWidget(heading, 0, Qt::AlignTop);
    auto* column = new QVBoxLayout;
    column->setSpacing(2);
    if (fact.name == "pnlCite")
        column->addWidget(makeCitation(fact));
    else
        column->addWidget(wrapped(fact.text, width - headingWidth));
    if (fact.name == "pnlLicence") {
        auto* link = new LinkButton(shownText(model.cmdLicence().Caption));
        link->setObjectName(QStringLiteral("cmdLicence"));
        connect(link, &LinkButton::clicked, this, [this] { press("cmdLicence"); });
        column->addWidget(link);
    }
    row->addLayout(column, 1);
    return row;
}

QWidget* AboutView::makeCitation(const AboutFact& fact) {
    const AboutWindow& model = desk_.application().about();
    auto* copy = new QToolButton;
    copy->setObjectName(QStringLiteral("cmdCite"));
    copy->setIcon(icon(Icon::Copy));
    copy->setIconSize({18, 18});
    copy->setFixedSize(30, 30);
    copy->setFocusPolicy(Qt::TabFocus);
    copy->setToolTip(shownText(model.cmdCite().Caption));
    copy->setAccessibleName(copy->toolTip());
    connect(copy, &QToolButton::clicked, this, [this] { press("cmdCite"); });
    auto* card = new Card(CardTone::Quiet);
    auto* row = new QHBoxLayout(card);
    row->setContentsMargins(12, 9, 6, 9);
    row->setSpacing(6);
    row->addWidget(wrapped(fact.text, width - headingWidth - 54), 1);
    row->addWidget(copy);
    return card;
}

QBoxLayout* AboutView::makeButtons() {
    const AboutWindow& model = desk_.application().about();
    auto* row = new QHBoxLayout;
    const auto add = [&](PushButton* button, const char* name) {
        button->setObjectName(QString::fromUtf8(name));
        button->setMinimumWidth(smallestButton);
        connect(button, &PushButton::clicked, this, [this, name] { press(name); });
        row->addWidget(button);
    };
    add(plainButton(shownText(model.cmdCopyAll().Caption)), "cmdCopyAll");
    row->addStretch(1);
    add(close_, "cmdClose");
    return row;
}

void AboutView::sync() {
    if (isOpen() && !wasOpen_)
        close_->setFocus();
    wasOpen_ = isOpen();
}

}  // namespace lorvane::desktop
