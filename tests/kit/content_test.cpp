// What the cards, labels, drawings and buttons show, say and ask room for; the overlay and the floating
// window.
#include <QCloseEvent>
#include <QLabel>
#include <QVBoxLayout>
#include <QWindow>
#include <functional>
#include <memory>

#include "desktop/kit/arm_label.h"
#include "desktop/kit/figure_card.h"
#include "desktop/kit/level_name.h"
#include "desktop/kit/level_rail.h"
#include "desktop/kit/menu_button.h"
#include "desktop/kit/message_card.h"
#include "desktop/kit/number_label.h"
#include "desktop/kit/outline_overlay.h"
#include "desktop/kit/push_button.h"
#include "desktop/kit/span_plot.h"
#include "desktop/kit/text_field.h"
#include "desktop/kit/theme.h"
#include "desktop/kit/tool_panel.h"
#include "kit_bench.h"

namespace lorvane::desktop {
namespace {

using Content = KitBench;

const SpanScale& scale() {
    static const SpanScale value{
        0, 1, {{0, QStringLiteral("0"), true}, {1, QStringLiteral("1")}}, 0.5, QStringLiteral("d = 0.5")};
    return value;
}

SpanRow row(const char* label) {
    return {QString::fromLatin1(label), 0.2, 0.8, false, QStringLiteral("0.2"), QStringLiteral("0.8")};
}

TEST_F(Content, SaysAndPaintsWhatItWasGivenLast) {
    FigureCard figure(&window);
    NumberLabel number(Qt::AlignRight, &window);
    LevelName level(&window);
    ArmLabel arm(&window);
    MessageCard message(MessageCard::Kind::Problem, &window);
    SpanPlot spans(&window);
    struct Case {
        QWidget& widget;
        std::function<void()> change;
        const char* name;
        const char* description;
    };
    const auto text = [](const char* words) { return QString::fromLatin1(words); };
    const Case cases[] = {
        {figure,
         [&] {
             figure.setContent(Figure{text("Power = "), text("0.82"), text("alpha"), true});
         },
         "Power = 0.82", "alpha"},
        {figure,
         [&] {
             figure.setContent(Figure{text("Power = "), text("0.82"), text("alpha"), false});
         },
         "Power = 0.82", "alpha"},
        {figure,
         [&] {
             figure.setContent(FigureBar{text("Cost"), text("$5"), 0.5, text("0"), text("$9")});
         },
         "Cost $5", "$9"},
        {figure,
         [&] {
             figure.setContent(FigureBar{text("Cost"), text("$5"), 0.5, text("0"), text("$9"),
                                         FigureTick{0.7, text("limit $7")}});
         },
         "Cost $5", "limit $7"},
        {figure,
         [&] {
             figure.setContent(FigureTrouble{text("No power"), text("see the cells")});
         },
         "No power", "see the cells"},
        {number, [&] { number.setText(text("0.25")); }, "0.25", ""},
        {number, [&] { number.setText(text("0.26")); }, "0.26", ""},
        {level, [&] { level.setLevel(text("Schools"), text("nested"), false); }, "Schools", "nested"},
        {level, [&] { level.setLevel(text("Schools"), text("randomized"), false); }, "Schools", "randomized"},
        {level, [&] { level.setLevel(text("Schools"), text("randomized"), true); }, "Schools", "randomized"},
        {arm, [&] { arm.setArm(ArmLabel::Dot::None, text("Treated")); }, "Treated", ""},
        {arm, [&] { arm.setArm(ArmLabel::Dot::Treated, text("Treated")); }, "Treated", ""},
        {arm, [&] { arm.setArm(ArmLabel::Dot::Control, text("Treated")); }, "Treated", ""},
        {message, [&] { message.setText(text("Too few groups.")); }, "Too few groups.", ""},
        {message, [&] { message.setKind(MessageCard::Kind::Quiet); }, "Too few groups.", ""},
        {spans,
         [&] {
             spans.setContent({row("ICC"), row("R2")}, scale());
         },
         "d = 0.5", "ICC 0.2 0.8, R2 0.2 0.8"},
    };
    for (const Case& expected : cases) {
        QWidget& widget = expected.widget;
        widget.setGeometry(0, 0, 390, 140);
        widget.show();
        widget.raise();
        const QImage before = painted(widget);
        EXPECT_EQ(paintsAfter(widget, expected.change), 1) << expected.name;
        EXPECT_EQ(spoken(widget).toStdString(), expected.name);
        EXPECT_EQ(spoken(widget, QAccessible::Description).toStdString(), expected.description);
        EXPECT_EQ(QAccessible::queryAccessibleInterface(&widget)->role(), QAccessible::StaticText);
        EXPECT_NE(painted(widget), before) << expected.name;
        EXPECT_EQ(paintsAfter(widget, expected.change), 0) << expected.name << " again";
    }
}

TEST_F(Content, TheBarIsFilledToItsShareWithinItsEnds) {
    FigureCard card(&window);
    card.resize(400, 140);
    int last = -1;
    for (const double share : {0.0, 0.25, 0.5, 1.0}) {
        card.setContent(FigureBar{{}, {}, share, {}, {}});
        const int filled = pixels(painted(card), colour(Role::BarFill));
        EXPECT_GT(filled, last) << share;
        last = filled;
    }
    card.setContent(FigureBar{{}, {}, 7.5, {}, {}});
    EXPECT_EQ(pixels(painted(card), colour(Role::BarFill)), last);
    card.setContent(FigureBar{{}, {}, -1, {}, {}});
    EXPECT_EQ(pixels(painted(card), colour(Role::BarFill)), 0);
}

TEST_F(Content, ALongFigureStaysOnItsCard) {
    FigureCard card(&window);
    card.resize(card.minimumSizeHint());
    const QString words = QStringLiteral("Minimum detectable effect size = ");
    card.setContent(Figure{words, QStringLiteral("0.1234"), words + words, true});
    const QImage image = painted(card);
    const QRect margin(card.width() - 20, 10, 18, card.height() - 20);
    EXPECT_EQ(pixels(image.copy(margin), colour(Role::Card)), margin.width() * margin.height());
}

TEST_F(Content, AsksForRoomByItsText) {
    const auto words = [](int count) { return QStringLiteral("some words ").repeated(count); };
    NumberLabel number;
    LevelName level;
    ArmLabel arm;
    MenuButton menu;
    std::array<int, 4> last{};
    for (const int count : {1, 3, 6}) {
        number.setText(words(count));
        level.setLevel(QStringLiteral("S"), words(count), true);
        arm.setArm(ArmLabel::Dot::None, words(count));
        menu.setText(words(count));
        const std::array<int, 4> now = {number.sizeHint().width(), level.sizeHint().width(),
                                        arm.sizeHint().width(), menu.sizeHint().width()};
        for (std::size_t i = 0; i < now.size(); ++i)
            EXPECT_GT(now[i], last[i]) << i;
        last = now;
    }
    arm.setArm(ArmLabel::Dot::Control, words(6));
    EXPECT_GT(arm.sizeHint().width(), last[2]);
    menu.setSign(Icon::Gear);
    EXPECT_GT(menu.sizeHint().width(), last[3]);
    const QSize usual = number.sizeHint();
    number.setTextStyle(TextStyle::Result);
    EXPECT_GT(number.sizeHint().height(), usual.height());
}

TEST_F(Content, AMenuButtonGrowsInItsLayout) {
    auto* layout = new QHBoxLayout(&window);
    auto* button = new MenuButton(QStringLiteral("5 %"));
    layout->addWidget(button);
    settle();
    const int narrow = button->width();
    button->setText(QStringLiteral("a much longer value"));
    settle();
    EXPECT_GT(button->width(), narrow);
    EXPECT_EQ(button->size(), button->sizeHint());
}

TEST_F(Content, AMessageIsAsHighAsItsLines) {
    MessageCard card(MessageCard::Kind::Quiet, &window);
    const QString words = QStringLiteral("These groups are too few for any design. ");
    int last = 0;
    for (const int count : {1, 4, 9}) {
        card.setText(words.repeated(count));
        EXPECT_GT(card.heightForWidth(240), last) << count;
        EXPECT_EQ(card.sizeHint().height(), card.heightForWidth(card.sizeHint().width()));
        last = card.heightForWidth(240);
    }
    EXPECT_LT(card.heightForWidth(700), last);
    for (const int width : {240, 700, 300}) {
        card.resize(width, 400);
        card.show();
        EXPECT_EQ(card.minimumHeight(), card.heightForWidth(width));
    }
    // The warning sign takes room from the words.
    int width = 240;
    const auto asProblem = [&] {
        MessageCard other;
        other.setText(card.text());
        return other.heightForWidth(width);
    };
    while (asProblem() == card.heightForWidth(width) && width < 700)
        ++width;
    ASSERT_LT(width, 700);
    card.resize(width, 400);
    card.setKind(MessageCard::Kind::Problem);
    EXPECT_EQ(card.minimumHeight(), card.heightForWidth(width));
}

TEST_F(Content, ASpanPlotIsAsHighAsItsRows) {
    SpanPlot plot(&window);
    QList<SpanRow> rows;
    QList<int> heights;
    for (int i = 0; i < 5; ++i) {
        plot.setContent(rows, scale());
        heights << plot.sizeHint().height();
        rows << row("ICC");
    }
    for (int i = 1; i < 5; ++i)
        EXPECT_EQ(heights[i] - heights[i - 1], 34) << i;
    plot.resize(plot.sizeHint());
    const int bars = pixels(painted(plot).copy(0, 0, plot.width(), heights[0]));
    EXPECT_GT(bars, 0);
    rows[0].isScores = true;
    const QImage before = painted(plot);
    plot.setContent(rows, scale());
    EXPECT_NE(painted(plot), before) << "scores look different";
    plot.setContent(rows, {1, 1, {}, 1, {}});
    EXPECT_GT(pixels(painted(plot)), 0) << "a scale without length is no trouble";
}

TEST_F(Content, TheRailShowsEveryStopAndWay) {
    using Stop = LevelRail::Stop;
    const QList<Stop> all = {Stop::Blocked, Stop::Randomized, Stop::Nested};
    LevelRail rail(&window);
    rail.resize(50, 200);
    std::vector<QImage> seen;
    for (const Stop top : all)
        for (const Stop middle : all)
            for (const Stop bottom : all) {
                rail.setStops({top, middle, bottom}, {30, 100, 170});
                const QImage image = painted(rail);
                EXPECT_EQ(std::count(seen.begin(), seen.end(), image), 0) << seen.size();
                for (const int y : {30, 65, 100, 135, 170})
                    EXPECT_GT(pixels(image.copy(0, y - 5, 50, 10)), 0) << seen.size() << " at " << y;
                for (const auto& [above, y] : {std::pair(top, 65), std::pair(middle, 135)})
                    EXPECT_EQ(pixels(image.copy(23, y - 3, 4, 6)) > 0, above == Stop::Blocked)
                        << seen.size() << ": one line in the middle, or one at either side";
                EXPECT_EQ(pixels(image.copy(0, 0, 50, 19)) + pixels(image.copy(0, 181, 50, 19)), 0);
                seen.push_back(image);
            }
    rail.setStops({Stop::Randomized, Stop::Nested}, {30});
    EXPECT_GT(pixels(painted(rail)), 0) << "stops without a place are left out";
    rail.setStops({}, {});
    EXPECT_EQ(pixels(painted(rail)), 0);
    EXPECT_TRUE(rail.testAttribute(Qt::WA_TransparentForMouseEvents));
}

TEST_F(Content, AFieldShowsItsProblem) {
    TextField field(TextField::Size::Usual, &window);
    field.setText(QStringLiteral("12"));
    field.resize(120, field.height());
    field.show();
    settle();
    const QImage before = painted(field);
    for (const bool problem : {true, false}) {
        field.setProblem(problem);
        const QImage now = painted(field);
        EXPECT_EQ(now != before, problem);
        EXPECT_EQ(pixels(now, colour(Role::ProblemTint)) > 500, problem);
        EXPECT_EQ(pixels(now, colour(Role::ProblemOutline)) > 100, problem);
    }
    EXPECT_GT(TextField(TextField::Size::Large).height(), field.height());
}

TEST_F(Content, OnlyAPrimaryButtonIsFilled) {
    std::unique_ptr<PushButton> plain(plainButton(QStringLiteral("Cancel"), &window));
    std::unique_ptr<PushButton> primary(primaryButton(QStringLiteral("Cancel"), &window));
    for (PushButton* button : {plain.get(), primary.get()}) {
        button->setFocusPolicy(Qt::NoFocus);
        button->resize(button->sizeHint());
        button->show();
    }
    settle();
    const auto isFilled = [](PushButton& button) {
        return pixels(painted(button), colour(Role::AccentFill)) > 500;
    };
    EXPECT_FALSE(isFilled(*plain));
    EXPECT_TRUE(isFilled(*primary));
    EXPECT_EQ(plain->sizeHint(), primary->sizeHint());
    plain->setRank(PushButton::Rank::Primary);
    primary->setRank(PushButton::Rank::Plain);
    EXPECT_TRUE(isFilled(*plain));
    EXPECT_FALSE(isFilled(*primary));
    plain->setEnabled(false);
    EXPECT_FALSE(isFilled(*plain));
}

TEST_F(Content, TheOverlayCoversOutlinesAndLetsThrough) {
    QPushButton below(QStringLiteral("below"), &window);
    below.setGeometry(50, 40, 100, 30);
    below.show();
    OutlineOverlay overlay(&window);
    overlay.show();
    window.resize(500, 350);
    settle();
    EXPECT_EQ(overlay.geometry(), window.rect());
    QSignalSpy clicked(&below, &QPushButton::clicked);
    overlay.setOutlines({{below.geometry(), 5}, {QRect(), 5}});
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, below.geometry().center());
    EXPECT_EQ(clicked.count(), 1);

    const QImage image = painted(overlay);
    EXPECT_GT(pixels(image, colour(Role::ProblemOutline)), 2 * (90 + 25));
    EXPECT_EQ(pixels(image), pixels(image.copy(below.geometry().adjusted(-7, -7, 7, 7))));
    EXPECT_EQ(pixels(image.copy(below.geometry())), 0);

    QWidget later(&window);
    later.show();
    EXPECT_EQ(window.children().last(), &overlay) << "what is added later lies below";
    EXPECT_EQ(paintsAfter(overlay, [&] { overlay.setOutlines({}); }), 1);
    EXPECT_EQ(pixels(painted(overlay)), 0);
}

TEST_F(Content, OnlyVisibleWidgetsAreOutlined) {
    OutlineOverlay overlay(&window);
    QWidget box(&window);
    QWidget inner(&box);
    QWidget other(&window);
    box.setGeometry(20, 30, 100, 60);
    inner.setGeometry(10, 5, 40, 20);
    other.setGeometry(200, 100, 50, 20);
    box.show();
    other.show();
    EXPECT_EQ(overlay.rectangleAround({&inner}), QRect(30, 35, 40, 20));
    EXPECT_EQ(overlay.rectangleAround({&inner, &other}), QRect(QPoint(30, 35), QPoint(249, 119)));
    other.hide();
    EXPECT_EQ(overlay.rectangleAround({&inner, &other}), QRect(30, 35, 40, 20));
    box.hide();
    EXPECT_TRUE(overlay.rectangleAround({&inner, &other}).isEmpty());
}

TEST_F(Content, APanelLeavesItsClosingToTheOwner) {
    ToolPanel panel(QStringLiteral("Details"), &window);
    panel.content()->addWidget(new QLabel(QStringLiteral("text")));
    QSignalSpy asked(&panel, &ToolPanel::closeRequested);
    panel.show();
    QCloseEvent byFrame;
    QCoreApplication::sendEvent(panel.windowHandle(), &byFrame);
    EXPECT_EQ(asked.count(), 1);
    EXPECT_TRUE(panel.isVisible());
    EXPECT_FALSE(byFrame.isAccepted());
    EXPECT_TRUE(panel.close());
    EXPECT_EQ(asked.count(), 1);
    EXPECT_FALSE(panel.isVisible());
}

TEST_F(Content, APanelComesBackWhereItWas) {
    ToolPanel panel(QStringLiteral("Details"), &window, ToolPanel::Sizing::Free);
    EXPECT_FALSE(panel.place());
    panel.setPlace({60, 50});
    panel.show();
    settle();
    EXPECT_EQ(panel.pos(), QPoint(60, 50));
    panel.move(120, 90);
    settle();
    panel.hide();
    EXPECT_EQ(panel.place(), QPoint(120, 90));
    panel.move(0, 0);
    panel.show();
    settle();
    EXPECT_EQ(panel.pos(), QPoint(120, 90));
    panel.setPlace({10, 20});
    EXPECT_EQ(panel.pos(), QPoint(10, 20));
}

TEST_F(Content, APanelIsAsLargeAsItsContent) {
    ToolPanel panel(QStringLiteral("Details"), &window);
    auto* label = new QLabel(QStringLiteral("text"));
    panel.content()->addWidget(label);
    panel.show();
    settle();
    const QSize before = panel.size();
    EXPECT_EQ(before, label->sizeHint() + QSize(44, 44));
    label->setText(QStringLiteral("much more text\nin two lines"));
    settle();
    EXPECT_EQ(panel.size(), label->sizeHint() + QSize(44, 44));
    EXPECT_NE(panel.size(), before);
}

}  // namespace
}  // namespace lorvane::desktop
