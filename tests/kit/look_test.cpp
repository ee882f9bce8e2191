// Colours, drawings, numbers and the style sheet; and the start of the program of these tests.
#include <QBitmap>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QIcon>
#include <QPainter>
#include <QRegularExpression>
#include <iostream>
#include <set>
#include <tuple>

#include "desktop/kit/icons.h"
#include "desktop/kit/number_text.h"
#include "desktop/kit/style_sheet.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"
#include "kit_bench.h"

namespace lorvane::desktop {
namespace {

QPalette systemPalette(const QColor& ground, const QColor& text) {
    QPalette palette(text, ground, Qt::gray, Qt::darkGray, Qt::gray, text, Qt::white, ground, ground);
    palette.setColor(QPalette::Disabled, QPalette::WindowText, Qt::gray);
    return palette;
}

QPalette lightSystem() { return systemPalette(QColor(240, 240, 240), QColor(30, 30, 30)); }
QPalette darkSystem() { return systemPalette(QColor(40, 40, 40), QColor(230, 230, 230)); }

class ThemeOfTheSystem : public KitBench {
protected:
    /// The platform's own palette is a light one.
    void TearDown() override {
        setDark(std::nullopt);
        tellOf(QEvent::ThemeChange, &window);
        settle();
        EXPECT_FALSE(Theme::current().isDark());
    }
    void use(const QPalette& system) {
        QApplication::setPalette(system);
        settle();
    }
    static void tellOf(QEvent::Type type, QObject* receiver) {
        QEvent changed(type);
        QCoreApplication::sendEvent(receiver, &changed);
    }
    static QColor inUse(QPalette::ColorRole role) { return QApplication::palette().color(role); }
};

TEST_F(ThemeOfTheSystem, IsChosenByTheLightnessOfThePaletteUnlessOverridden) {
    for (const bool dark : {true, false}) {
        use(dark ? darkSystem() : lightSystem());
        EXPECT_EQ(Theme::current().isDark(), dark);
        EXPECT_FALSE(Theme::current().isHighContrast());
        const Theme expected = Theme::fixed(dark);
        EXPECT_EQ(inUse(QPalette::Window), expected.colour(Role::Page));
        EXPECT_EQ(inUse(QPalette::Text), expected.colour(Role::Text));
        EXPECT_EQ(window.palette().color(QPalette::Disabled, QPalette::Text), expected.colour(Role::Quiet));
        EXPECT_EQ(qApp->styleSheet(), styleSheet(expected));
        setDark(!dark);
        settle();
        EXPECT_EQ(Theme::current().isDark(), !dark) << "its own change is not the system's";
        EXPECT_EQ(inUse(QPalette::Window), Theme::fixed(!dark).colour(Role::Page));
        setDark(std::nullopt);
        EXPECT_EQ(inUse(QPalette::Window), expected.colour(Role::Page));
    }
}

TEST_F(ThemeOfTheSystem, KeepsThePaletteOfHighContrast) {
    for (const auto& [ground, text] : {std::pair(Qt::black, Qt::white), std::pair(Qt::white, Qt::black)}) {
        use(systemPalette(ground, text));
        const Theme& theme = Theme::current();
        EXPECT_TRUE(theme.isHighContrast());
        EXPECT_EQ(inUse(QPalette::Window), QColor(ground));
        EXPECT_EQ(inUse(QPalette::WindowText), QColor(text));
        EXPECT_EQ(theme.colour(Role::Card), QColor(ground));
        for (const Role role : {Role::Text, Role::Accent, Role::ProblemText, Role::StrongLine})
            EXPECT_EQ(theme.colour(role), QColor(text)) << static_cast<int>(role);
        EXPECT_EQ(theme.colour(Role::Quiet), QColor(Qt::gray));
        EXPECT_TRUE(qApp->styleSheet().isEmpty());
    }
}

// A system tells of its change by two events, in either order; what holds afterwards is its own palette.
TEST_F(ThemeOfTheSystem, IsReadAnewWhateverEventComesFirst) {
    for (const bool paletteFirst : {false, true}) {
        use(darkSystem());
        ASSERT_TRUE(Theme::current().isDark());
        if (paletteFirst)
            tellOf(QEvent::ApplicationPaletteChange, qApp);
        tellOf(QEvent::ThemeChange, &window);
        if (!paletteFirst)
            tellOf(QEvent::ApplicationPaletteChange, qApp);
        settle();
        EXPECT_FALSE(Theme::current().isDark()) << paletteFirst;
    }
}

TEST(Sheet, NamesNoColourThatIsNotThere) {
    const QRegularExpression notAColour(QStringLiteral("@|#[0-9a-f]{0,5}[^0-9a-f]|#[0-9a-f]{6}[0-9A-Za-z]"));
    for (const bool dark : {false, true}) {
        const QString sheet = styleSheet(Theme::fixed(dark));
        EXPECT_EQ(sheet.indexOf(notAColour), -1) << sheet.toStdString();
        EXPECT_FALSE(sheet.isEmpty());
    }
}

TEST(Icons, EachIsDrawnInsideItsSquareAndLikeNoOther) {
    QList<QImage> drawings;
    for (int i = 0; i < IconCount; ++i) {
        const QImage image = icon(static_cast<Icon>(i)).pixmap(QSize(20, 20)).toImage();
        EXPECT_GT(pixels(image), 8) << i;
        EXPECT_EQ(pixels(image), pixels(image.copy(1, 1, 18, 18))) << i << " touches the edge";
        EXPECT_FALSE(drawings.contains(image)) << i;
        drawings << image;
    }
}

TEST(Icons, TakeTheColoursOfStateAndTheme) {
    const std::tuple<QIcon::Mode, QIcon::State, Role> looks[] = {
        {QIcon::Normal, QIcon::Off, Role::SecondText},
        {QIcon::Normal, QIcon::On, Role::Accent},
        {QIcon::Disabled, QIcon::On, Role::Quiet},
    };
    const QIcon shown = icon(Icon::Block);
    inBothThemes([&] {
        for (const auto& [mode, state, role] : looks)
            EXPECT_GT(pixels(shown.pixmap(QSize(80, 80), mode, state).toImage(), colour(role)), 20);
    });
}

double widestDigit(const QFont& font) {
    double widest = 0;
    for (char digit = '0'; digit <= '9'; ++digit)
        widest = std::max(widest, QFontMetricsF(font).horizontalAdvance(QLatin1Char(digit)));
    return widest;
}

/// The fonts to try: of the interface, and one whose digits differ in width, where there is one.
QList<QFont> numberFonts() {
    QList<QFont> fonts = {textFont(TextStyle::Value), textFont(TextStyle::Figure)};
    for (const QString& family : QFontDatabase::families()) {
        const QFont font(family, 30);
        if (widestDigit(font) > QFontMetricsF(font).horizontalAdvance(QLatin1Char('1')) + 1)
            return fonts << font;
    }
    std::cerr << "no font with digits of different widths\n";
    return fonts;
}

TEST(Numbers, TakeTheSameRoomWhateverTheirDigits) {
    for (const QFont& font : numberFonts()) {
        for (const char* pattern : {"%", "%%%", "0.%%%%", "$ %,%%%.%%", "-%.%e-%"}) {
            std::set<double> widths;
            for (const char* digit : {"0", "1", "4", "7", "8"})
                widths.insert(numberWidth(
                    font, QString::fromLatin1(pattern).replace(QLatin1Char('%'), QLatin1String(digit))));
            EXPECT_NEAR(*widths.begin(), *widths.rbegin(), 1e-6) << pattern;
        }
        EXPECT_GT(numberWidth(font, QStringLiteral("1111")), numberWidth(font, QStringLiteral("888")));
        EXPECT_NEAR(numberWidth(font, QStringLiteral("1")), widestDigit(font), 1e-6);
    }
    EXPECT_EQ(numberWidth(textFont(TextStyle::Value), QString()), 0);
}

/// The columns between which a number leaves ink.
std::pair<int, int> inkOf(const QString& text, Qt::Alignment alignment) {
    QImage image(100, 30, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setFont(textFont(TextStyle::Value));
    drawNumber(painter, QRectF(image.rect()), alignment, text);
    painter.end();
    const QRect ink = QRegion(QBitmap::fromImage(image.createAlphaMask())).boundingRect();
    return {ink.left(), ink.right() + 1};
}

TEST(Numbers, StandWhereTheyAreAligned) {
    const QString text = QStringLiteral("0.88");
    const auto [right, rightEnd] = inkOf(text, Qt::AlignRight);
    const auto [middle, middleEnd] = inkOf(text, Qt::AlignHCenter);
    EXPECT_LE(inkOf(text, Qt::AlignLeft).first, 2);
    EXPECT_GE(rightEnd, 98);
    EXPECT_NEAR(middle + middleEnd, 100, 2);
    EXPECT_EQ(inkOf(QStringLiteral("0.18"), Qt::AlignRight).first, right) << "other digits stand still";
}

TEST(Numbers, ShrinkToTheirRoomOnly) {
    const QFont font = textFont(TextStyle::Value);
    const QString text = QStringLiteral("$ 1,234,567.89");
    const double wanted = numberWidth(font, text);
    EXPECT_EQ(fittedFont(font, text, wanted + 1), font);
    EXPECT_EQ(fittedFont(font, text, 0), font);
    for (const double share : {0.9, 0.6, 0.3}) {
        const QFont smaller = fittedFont(font, text, wanted * share);
        const double width = numberWidth(smaller, text);
        EXPECT_LE(width, wanted * share + 0.5) << share;
        EXPECT_GE(width, wanted * share * 0.9) << share;
        EXPECT_EQ(smaller.weight(), font.weight());
    }
}

}  // namespace
}  // namespace lorvane::desktop

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    lorvane::desktop::applyTheme(application);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
