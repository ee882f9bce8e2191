// Colours, drawings, numbers and the style sheet; and the start of the program of these tests.
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QIcon>
#include <QPainter>
#include <QRegularExpression>
#include <iostream>
#include <set>

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

const QPalette& lightSystem() {
    static const QPalette palette = systemPalette(QColor(240, 240, 240), QColor(30, 30, 30));
    return palette;
}
const QPalette& darkSystem() {
    static const QPalette palette = systemPalette(QColor(40, 40, 40), QColor(230, 230, 230));
    return palette;
}

class ThemeOfTheSystem : public KitBench {
protected:
    /// The platform's own palette is a light one.
    void TearDown() override {
        setDark(std::nullopt);
        backToPlatform();
        EXPECT_FALSE(Theme::current().isDark());
    }
    void use(const QPalette& system) {
        QApplication::setPalette(system);
        settle();
    }
    void backToPlatform() {
        QEvent changed(QEvent::ThemeChange);
        QCoreApplication::sendEvent(&window, &changed);
        settle();
    }
    static QColor inUse(QPalette::ColorRole role) { return QApplication::palette().color(role); }
};

TEST_F(ThemeOfTheSystem, IsChosenByTheLightnessOfThePalette) {
    for (const bool dark : {true, false}) {
        use(dark ? darkSystem() : lightSystem());
        EXPECT_EQ(Theme::current().isDark(), dark);
        EXPECT_FALSE(Theme::current().isHighContrast());
        const Theme expected = Theme::fixed(dark);
        EXPECT_EQ(colour(Role::Page), expected.colour(Role::Page));
        EXPECT_EQ(inUse(QPalette::Window), expected.colour(Role::Page));
        EXPECT_EQ(inUse(QPalette::Text), expected.colour(Role::Text));
        EXPECT_EQ(window.palette().color(QPalette::Disabled, QPalette::Text), expected.colour(Role::Quiet));
        EXPECT_EQ(qApp->styleSheet(), styleSheet(expected));
    }
}

TEST_F(ThemeOfTheSystem, IsOverriddenAndComesBack) {
    for (const bool dark : {true, false}) {
        use(dark ? darkSystem() : lightSystem());
        setDark(!dark);
        EXPECT_EQ(inUse(QPalette::Window), Theme::fixed(!dark).colour(Role::Page));
        settle();
        EXPECT_EQ(Theme::current().isDark(), !dark) << "its own change is not the system's";
        setDark(std::nullopt);
        EXPECT_EQ(inUse(QPalette::Window), Theme::fixed(dark).colour(Role::Page));
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
        QEvent paletteChange(QEvent::ApplicationPaletteChange);
        QEvent themeChange(QEvent::ThemeChange);
        if (paletteFirst)
            QCoreApplication::sendEvent(qApp, &paletteChange);
        QCoreApplication::sendEvent(&window, &themeChange);
        if (!paletteFirst)
            QCoreApplication::sendEvent(qApp, &paletteChange);
        settle();
        EXPECT_FALSE(Theme::current().isDark()) << paletteFirst;
    }
}

TEST(Sheet, NamesNoColourThatIsNotThere) {
    const QRegularExpression notAColour(QStringLiteral("@|#[0-9a-f]{0,5}[^0-9a-f]|#[0-9a-f]{6}[0-9A-Za-z]"));
    for (const bool dark : {false, true}) {
        const QString sheet = styleSheet(Theme::fixed(dark));
        EXPECT_EQ(sheet.indexOf(notAColour), -1) << sheet.toStdString();
        EXPECT_TRUE(sheet.contains(Theme::fixed(dark).colour(Role::AccentFillHover).name()));
    }
}

TEST(Icons, EachIsDrawnInsideItsSquareAndLikeNoOther) {
    std::set<QByteArray> drawings;
    for (int i = 0; i < IconCount; ++i) {
        const QImage image = icon(static_cast<Icon>(i)).pixmap(QSize(20, 20)).toImage();
        EXPECT_GT(pixels(image), 8) << i;
        EXPECT_EQ(pixels(image), pixels(image.copy(1, 1, 18, 18))) << i << " touches the edge";
        drawings.insert(QByteArray(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes()));
    }
    EXPECT_EQ(drawings.size(), static_cast<std::size_t>(IconCount));
}

TEST(Icons, TakeTheColoursOfStateAndTheme) {
    struct Look {
        QIcon::Mode mode;
        QIcon::State state;
        Role role;
    };
    const Look looks[] = {
        {QIcon::Normal, QIcon::Off, Role::SecondText},
        {QIcon::Normal, QIcon::On, Role::Accent},
        {QIcon::Disabled, QIcon::Off, Role::Quiet},
        {QIcon::Disabled, QIcon::On, Role::Quiet},
    };
    const QIcon shown = icon(Icon::Block);
    for (const bool dark : {false, true}) {
        setDark(dark);
        for (const Look& look : looks) {
            const QImage image = shown.pixmap(QSize(80, 80), look.mode, look.state).toImage();
            EXPECT_GT(pixels(image, colour(look.role)), 20) << static_cast<int>(look.role);
        }
    }
    setDark(std::nullopt);
}

TEST(Icons, StandAtTheLeftOfAWiderSize) {
    const QImage wide = icon(Icon::Graph).pixmap(QSize(26, 20)).toImage();
    EXPECT_EQ(pixels(wide.copy(20, 0, 6, 20)), 0);
    EXPECT_EQ(wide.copy(0, 0, 20, 20), icon(Icon::Graph).pixmap(QSize(20, 20)).toImage());
}

std::pair<double, double> rangeOfDigits(const QFont& font) {
    std::set<double> widths;
    for (char digit = '0'; digit <= '9'; ++digit)
        widths.insert(QFontMetricsF(font).horizontalAdvance(QLatin1Char(digit)));
    return {*widths.begin(), *widths.rbegin()};
}

/// The fonts to try: of the interface, and one whose digits differ in width, where there is one.
QList<QFont> numberFonts() {
    QList<QFont> fonts = {textFont(TextStyle::Value), textFont(TextStyle::Caption),
                          textFont(TextStyle::Figure)};
    for (const QString& family : QFontDatabase::families()) {
        const QFont font(family, 30);
        const auto [narrowest, widest] = rangeOfDigits(font);
        if (widest > narrowest + 1)
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
        EXPECT_NEAR(numberWidth(font, QStringLiteral("1")), rangeOfDigits(font).second, 1e-6);
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
    int first = 0;
    int last = image.width();
    while (first < image.width() && pixels(image.copy(first, 0, 1, 30)) == 0)
        ++first;
    while (last > first && pixels(image.copy(last - 1, 0, 1, 30)) == 0)
        --last;
    return {first, last};
}

TEST(Numbers, StandWhereTheyAreAligned) {
    const QString text = QStringLiteral("0.88");
    const auto [left, leftEnd] = inkOf(text, Qt::AlignLeft);
    const auto [right, rightEnd] = inkOf(text, Qt::AlignRight);
    const auto [middle, middleEnd] = inkOf(text, Qt::AlignHCenter);
    EXPECT_LE(left, 2);
    EXPECT_GE(rightEnd, 98);
    EXPECT_NEAR(middle + middleEnd, 100, 2);
    EXPECT_NEAR(leftEnd - left, rightEnd - right, 1);
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
