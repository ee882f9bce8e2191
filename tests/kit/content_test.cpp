// What the cards, labels, drawings and buttons show, say and ask room for; the overlay and the floating
// window.
#include <QCloseEvent>
#include <QLabel>
#include <QTextCursor>
#include <QVBoxLayout>
#include <QWindow>
#include <functional>
#include <memory>

#include "desktop/kit/arm_label.h"
#include "desktop/kit/figure_card.h"
#include "desktop/kit/fitted_line.h"
#include "desktop/kit/level_name.h"
#include "desktop/kit/level_rail.h"
#include "desktop/kit/menu_button.h"
#include "desktop/kit/message_card.h"
#include "desktop/kit/number_label.h"
#include "desktop/kit/outline_overlay.h"
#include "desktop/kit/paragraph_view.h"
#include "desktop/kit/push_button.h"
#include "desktop/kit/share_rows.h"
#include "desktop/kit/span_plot.h"
#include "desktop/kit/stressed_label.h"
#include "desktop/kit/text_field.h"
#include "desktop/kit/theme.h"
#include "desktop/kit/tool_panel.h"
#include "desktop/kit/zoom.h"
#include "desktop/kit/wrapped_label.h"
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
    StressedLabel stressed(&window);
    LevelName level(&window);
    ArmLabel arm(&window);
    MessageCard message(MessageCard::Kind::Problem, &window);
    SpanPlot spans(&window);
    ShareRows shares(&window);
    struct Case {
        QWidget& widget;
        std::function<void()> change;
        const char* name;
        const char* description;
    };
    const auto card = [&](const FigureContent& content) {
        return [&, content] { figure.setContent(content); };
    };
    const FigureBar bar{"Cost", "$5", 0.5, "0", "$9", {}};
    const FigureBar limited{"Cost", "$5", 0.5, "0", "$9", FigureTick{0.7, "limit $7"}};
    const auto plot = [&] { spans.setContent({row("ICC"), row("R2")}, scale()); };
    const Case cases[] = {
        {figure, card(Figure{"Power = ", "0.82", "alpha", true}), "Power = 0.82", "alpha"},
        {figure, card(bar), "Cost $5", "$9"},
        {figure, card(limited), "Cost $5", "limit $7"},
        {figure, card(FigureTrouble{"No power", "see the cells"}), "No power", "see the cells"},
        {number, [&] { number.setText("0.25"); }, "0.25", ""},
        {stressed, [&] { stressed.setText("Page 1 of 4"); }, "Page 1 of 4", ""},
        {level, [&] { level.setLevel("Schools", "nested", false); }, "Schools", "nested"},
        {level, [&] { level.setLevel("Schools", "nested", true); }, "Schools", "nested"},
        {arm, [&] { arm.setArm(ArmLabel::Dot::Treated, "Treated"); }, "Treated", ""},
        {arm, [&] { arm.setArm(ArmLabel::Dot::Control, "Treated"); }, "Treated", ""},
        {message, [&] { message.setText("Too few groups."); }, "Too few groups.", ""},
        {message, [&] { message.setKind(MessageCard::Kind::Quiet); }, "Too few groups.", ""},
        {spans, plot, "d = 0.5", "ICC 0.2 0.8, R2 0.2 0.8"},
        {shares,
         [&] {
             shares.setRows({{"Schools", "30", "30 at $5", "$150", "100%", 1}});
         },
         "Schools: 30 at $5, $150, 100%", ""},
    };
    for (const Case& expected : cases) {
        QWidget& widget = expected.widget;
        widget.setGeometry(0, 0, 390, 140);
        widget.show();
        widget.raise();
        const QImage before = painted(widget);
        EXPECT_EQ(paintsAfter(widget, expected.change), 1) << expected.name;
        EXPECT_EQ(spoken(widget), expected.name);
        EXPECT_EQ(spoken(widget, QAccessible::Description), expected.description);
        EXPECT_EQ(speaker(widget).role(), QAccessible::StaticText);
        EXPECT_NE(painted(widget), before) << expected.name;
        EXPECT_EQ(paintsAfter(widget, expected.change), 0) << expected.name << " again";
    }
}

TEST_F(Content, TheBarIsFilledToItsShareWithinItsEnds) {
    FigureCard card(&window);
    card.resize(400, 140);
    const auto filled = [&](double share) {
        card.setContent(FigureBar{{}, {}, share, {}, {}, {}});
        return pixels(painted(card), colour(Role::BarFill));
    };
    EXPECT_EQ(filled(-1), 0);
    EXPECT_LT(filled(0), filled(0.25));
    EXPECT_LT(filled(0.25), filled(1));
    EXPECT_EQ(filled(1), filled(7.5));
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

TEST_F(Content, TheQuietLineOfAProblemGoesFirst) {
    FigureCard card(&window);
    const QString reason =
        QStringLiteral("It is not possible for these values to fit together, whatever the others are.");
    const auto look = [&](int height, const char* note) {
        card.resize(420, height);
        card.setContent(FigureTrouble{"Please modify data", reason, note, "All of it."});
        return painted(card);
    };
    EXPECT_EQ(look(88, "It comes back."), look(88, ""));
    EXPECT_NE(look(140, "It comes back."), look(140, ""));
    look(88, "It comes back.");
    EXPECT_EQ(card.toolTip(), QLatin1String("All of it.\n\nIt comes back."));
}

TEST_F(Content, ATallCardShowsWhatIsBelow) {
    FigureCard card(&window);
    auto* below = new QWidget;
    card.setBelow(below);
    card.show();
    for (const double zoom : {1.0, 1.25}) {
        setZoom(window, zoom);
        for (const QSize short_ : {QSize(420, 259), QSize(419, 260)}) {
            card.resize(short_ * zoom);
            EXPECT_TRUE(below->isHidden()) << zoom;
        }
        card.resize(QSize(420, 260) * zoom);
        EXPECT_FALSE(below->isHidden()) << zoom;
        EXPECT_TRUE(card.rect().contains(below->geometry()));
        card.setContent(FigureTrouble{"Please modify data", {}, {}, {}});
        EXPECT_TRUE(below->isHidden()) << "in a problem";
        card.setContent(Figure{});
    }
}

TEST_F(Content, CountingMovesNothing) {
    StressedLabel label(&window);
    const auto widthOf = [&](const char* text) {
        label.setText(QString::fromLatin1(text));
        return label.sizeHint().width();
    };
    const int width = widthOf("Page 9 of 12");
    EXPECT_EQ(widthOf("Page 10 of 12"), width);
    EXPECT_EQ(widthOf("Page 11 of 12"), width) << "with narrow digits";
    EXPECT_LT(widthOf("Page 9 of 9"), width);
}

TEST_F(Content, TakesRoomByItsText) {
    window.resize(1500, 100);
    QHBoxLayout layout(&window);
    NumberLabel number;
    LevelName level;
    ArmLabel arm;
    MenuButton menu;
    QWidget* const widgets[] = {&number, &level, &arm, &menu};
    for (QWidget* widget : widgets)
        layout.addWidget(widget, 0, Qt::AlignLeft);
    std::array<int, 4> last{};
    for (const int count : {1, 3, 6}) {
        const QString words = QStringLiteral("words ").repeated(count);
        number.setText(words);
        level.setLevel("S", words, true);
        arm.setArm(ArmLabel::Dot::None, words);
        menu.setText(words);
        settle();
        for (std::size_t i = 0; i < last.size(); ++i) {
            EXPECT_GT(widgets[i]->width(), last[i]) << i;
            last[i] = widgets[i]->width();
        }
    }
    const int usual = number.sizeHint().height();
    arm.setArm(ArmLabel::Dot::Control, QStringLiteral("words ").repeated(6));
    menu.setSign(Icon::Gear);
    number.setTextStyle(TextStyle::Result);
    EXPECT_GT(arm.sizeHint().width(), last[2]);
    EXPECT_GT(menu.sizeHint().width(), last[3]);
    EXPECT_GT(number.sizeHint().height(), usual);
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
    card.show();
    for (int width = 700; width > 240; width -= 5) {
        card.setKind(MessageCard::Kind::Quiet);
        card.resize(width, 400);
        EXPECT_EQ(card.minimumHeight(), card.heightForWidth(width)) << width;
        card.setKind(MessageCard::Kind::Problem);
        EXPECT_EQ(card.minimumHeight(), card.heightForWidth(width)) << width << ", less of it for words";
    }
}

TEST_F(Content, ASpanPlotIsAsHighAsItsRows) {
    SpanPlot plot(&window);
    QList<SpanRow> rows;
    int last = 0;
    for (int i = 0; i < 4; ++i) {
        plot.setContent(rows, scale());
        EXPECT_GT(plot.sizeHint().height(), last) << i;
        last = plot.sizeHint().height();
        rows << row("ICC");
    }
    plot.resize(plot.sizeHint());
    const QImage before = painted(plot);
    rows[0].isScores = true;
    plot.setContent(rows, scale());
    EXPECT_NE(painted(plot), before) << "scores look different";
    plot.setContent(rows, {1, 1, {}, 1, {}});
    EXPECT_GT(pixels(painted(plot)), 0) << "a scale without length is no trouble";
}

TEST_F(Content, NamesOfASpanPlotGiveWayFirst) {
    SpanPlot plot(&window);
    const QString name = QStringLiteral("Schools of the city");
    SpanRow wide{name, -5, 0.99, false, QStringLiteral("-5.00"), QStringLiteral("0.99")};
    SpanRow early{QStringLiteral("Town"), 0, 0.01, false, QStringLiteral("0.00"), QStringLiteral("0.01")};
    plot.setContent({wide, early}, scale());
    for (const int width : {324, 364, 444}) {
        plot.resize(width, plot.sizeHint().height());
        const QImage image = painted(plot);
        EXPECT_TRUE(plot.shownLabel(wide).endsWith(QChar(0x2026))) << width;
        EXPECT_GE(plot.shownLabel(wide).size(), 4) << "the value stands on the bar";
        EXPECT_EQ(plot.shownLabel(early), early.label) << width;
        EXPECT_EQ(pixels(image.copy(width - 1, 0, 1, image.height())), 0) << "nothing is cut off";
    }
    wide.label = QStringLiteral("Towns");
    EXPECT_EQ(plot.shownLabel(wide), wide.label);
}

// The height that a text needs at its width, in a window of that height and in one that gives it too little.
TEST_F(Content, WrappedLinesTakeAnyWidthAndKeepTheirHeight) {
    ToolPanel panel(QStringLiteral("Problem"), &window);
    auto* label = new WrappedLabel;
    auto* figure = new FittedLine({.words = TextStyle::FigureWords, .number = TextStyle::Figure});
    panel.content()->addWidget(label);
    panel.content()->addWidget(figure);
    panel.show();
    figure->setText(QStringLiteral("Odds ratio = "), QStringLiteral("1.234"));
    int last = 0;
    for (const int count : {1, 4, 12}) {
        label->setText(QStringLiteral("<b>These</b> groups are too few. ").repeated(count));
        settle();
        EXPECT_EQ(label->height(), label->heightForWidth(label->width())) << count;
        EXPECT_GT(label->height(), last) << count;
        last = label->height();
    }
    EXPECT_EQ(panel.content()->minimumSize().width(), 44) << "neither asks for a width";
    label->setParent(&window);
    label->show();
    for (const int width : {324, 120, 444}) {
        label->resize(width, 10);
        EXPECT_EQ(label->minimumSizeHint().height(), label->heightForWidth(width)) << width;
    }
    figure->resize(160, figure->height());
    EXPECT_EQ(pixels(painted(*figure).copy(0, 0, 1, figure->height())), 0) << "smaller, not cut";
}

TEST_F(Content, TheRailShowsEveryStopAndWay) {
    using Stop = LevelRail::Stop;
    const QList<Stop> all = {Stop::Blocked, Stop::Randomized, Stop::Nested};
    LevelRail rail(&window);
    rail.resize(50, 200);
    QList<QImage> seen;
    for (const Stop top : all)
        for (const Stop middle : all)
            for (const Stop bottom : all) {
                rail.setStops({top, middle, bottom}, {30, 100, 170});
                seen << painted(rail);
                EXPECT_EQ(seen.count(seen.last()), 1) << seen.size();
                for (const int y : {30, 65, 100, 135, 170})
                    EXPECT_GT(pixels(seen.last().copy(0, y - 5, 50, 10)), 0) << seen.size() << " at " << y;
            }
    rail.setStops({Stop::Randomized, Stop::Nested}, {30});
    EXPECT_GT(pixels(painted(rail)), 0) << "stops without a place are left out";
    rail.setStops({}, {});
    EXPECT_EQ(pixels(painted(rail)), 0);
    EXPECT_TRUE(rail.testAttribute(Qt::WA_TransparentForMouseEvents));
}

TEST_F(Content, AProblemOfAFieldAndThePrimaryButtonStandOut) {
    TextField field(TextField::Size::Usual, &window);
    const std::unique_ptr<PushButton> button(plainButton(QStringLiteral("Cancel"), &window));
    button->resize(button->sizeHint());
    for (const bool isSo : {false, true}) {
        field.setProblem(isSo);
        EXPECT_EQ(pixels(painted(field), colour(Role::ProblemOutline)) > 100, isSo);
        button->setRank(isSo ? PushButton::Rank::Primary : PushButton::Rank::Plain);
        EXPECT_EQ(pixels(painted(*button), colour(Role::AccentFill)) > 500, isSo);
    }
    button->setEnabled(false);
    EXPECT_LT(pixels(painted(*button), colour(Role::AccentFill)), 500);
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
    QWidget inner(&later);
    later.setGeometry(200, 100, 100, 60);
    inner.setGeometry(10, 5, 40, 20);
    later.show();
    EXPECT_EQ(window.children().last(), &overlay) << "what is added later lies below";
    EXPECT_EQ(overlay.rectangleAround({&inner, &below}), QRect(QPoint(50, 40), QPoint(249, 124)));
    below.hide();
    EXPECT_EQ(overlay.rectangleAround({&inner, &below}), QRect(210, 105, 40, 20)) << "only what is visible";
    later.hide();
    EXPECT_TRUE(overlay.rectangleAround({&inner, &below}).isEmpty());
    EXPECT_EQ(paintsAfter(overlay, [&] { overlay.setOutlines({}); }), 1);
    EXPECT_EQ(pixels(painted(overlay)), 0);
}

TEST_F(Content, APanelLeavesItsClosingToTheOwnerAndComesBackWhereItWas) {
    ToolPanel panel(QStringLiteral("Details"), &window, ToolPanel::Sizing::Free);
    QSignalSpy asked(&panel, &ToolPanel::closeRequested);
    EXPECT_FALSE(panel.place());
    panel.setPlace({60, 50});
    panel.show();
    settle();
    EXPECT_EQ(panel.pos(), QPoint(60, 50));
    panel.move(120, 90);
    settle();
    QCloseEvent byFrame;
    QCoreApplication::sendEvent(panel.windowHandle(), &byFrame);
    EXPECT_TRUE(panel.isVisible() && !byFrame.isAccepted());
    EXPECT_TRUE(panel.close());
    EXPECT_EQ(asked.count(), 1);
    EXPECT_FALSE(panel.isVisible());
    panel.move(0, 0);
    panel.show();
    settle();
    EXPECT_EQ(panel.pos(), QPoint(120, 90));
}

TEST_F(Content, APanelIsAsLargeAsItsContent) {
    ToolPanel panel(QStringLiteral("Details"), &window);
    auto* label = new QLabel;
    panel.content()->addWidget(label);
    panel.show();
    for (const char* text : {"text", "much more text\nin two lines"}) {
        label->setText(text);
        settle();
        EXPECT_EQ(panel.size(), label->sizeHint() + QSize(44, 44)) << text;
    }
}

TEST_F(Content, ParagraphsAreStrongWhereTheyAreSaidToBeAndNeverRead) {
    ParagraphView view(&window);
    view.setParagraphs({{{QStringLiteral("an <b>ICC</b> of ")}, {QStringLiteral("0.10"), true}},
                        {{QStringLiteral("**next**")}}});
    EXPECT_EQ(view.toPlainText(), QStringLiteral("an <b>ICC</b> of 0.10\n**next**"));
    const auto isStrongAt = [&](int place) {
        QTextCursor cursor(view.document());
        cursor.setPosition(place);
        return cursor.charFormat().fontWeight() > QFont::Normal;
    };
    EXPECT_TRUE(isStrongAt(21));
    EXPECT_FALSE(isStrongAt(5) || isStrongAt(26));
    EXPECT_EQ(view.textCursor().position(), 0);
}

}  // namespace
}  // namespace lorvane::desktop
