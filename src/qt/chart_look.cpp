// The tables of the colour sets.
#include "qt/chart_look.h"

#include <QStringList>
#include <algorithm>

namespace lorvane {

namespace {

using Colours = std::array<QRgb, chartLines>;
using Signs = std::array<ChartSigns, chartLines>;

/// The colours of a set, which are clear on a light and on a dark ground.
struct SetRow {
    ColourSets set;
    Colours light;
    Colours dark;
    Signs signs;
};

constexpr ChartSigns bare = ChartSigns::none;
constexpr Signs differing = {ChartSigns::disc, ChartSigns::square, ChartSigns::triangle, ChartSigns::diamond,
                             ChartSigns::cross};

/// The colours for the colour-blind keep apart when red, green or blue light is not seen, the first three
/// best.
constexpr SetRow setRows[] = {
    {ColourSets::usual,
     {0xFF2F3FA6, 0xFF12817F, 0xFFB26F14, 0xFFB23A6F, 0xFF5F7318},
     {0xFF9AA9FF, 0xFF4FC3BE, 0xFFE2AC5F, 0xFFF08DB4, 0xFFB9CC6A},
     {bare, bare, bare, bare, bare}},
    {ColourSets::colourBlind,
     {0xFF0072B2, 0xFFD55E00, 0xFF222222, 0xFF009E73, 0xFFCC79A7},
     {0xFF56B4E9, 0xFFE69F00, 0xFFF2F3F5, 0xFF2BC08F, 0xFFE08AC0},
     differing},
    {ColourSets::blackAndWhite,
     {0xFF000000, 0xFF000000, 0xFF707070, 0xFF000000, 0xFF707070},
     {0xFFFFFFFF, 0xFFFFFFFF, 0xFFA0A0A0, 0xFFFFFFFF, 0xFFA0A0A0},
     differing},
};

const QList<qreal> dashRows[chartLines] = {{}, {9, 4}, {}, {2.5, 3.5}, {12, 4, 3, 4}};

constexpr double heavy = 2.4;
constexpr double light = 1.1;

void makeHeavyAndLight(ChartLook& look) {
    look.powerWidth = heavy;
    look.costWidth = light;
    look.dottedCost = false;
    for (std::size_t i = 0; i < chartLines; ++i)
        look.strokes[i].dashes = dashRows[i];
}

QFont chartFont() {
    QFont font(
        QStringList{QStringLiteral("Inter"), QStringLiteral("Noto Sans"), QStringLiteral("DejaVu Sans")});
    // Else the widths of letters are rounded to whole pixels.
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QColor between(const QColor& text, const QColor& ground) {
    const auto mix = [](int one, int other) { return (one + 2 * other) / 3; };
    return QColor(mix(text.red(), ground.red()), mix(text.green(), ground.green()),
                  mix(text.blue(), ground.blue()));
}

/// Everything but the lines.
ChartLook groundLook(bool dark) {
    const auto colour = [dark](QRgb onLight, QRgb onDark) { return QColor(dark ? onDark : onLight); };
    ChartLook look;
    look.text = colour(0xFF181B22, 0xFFE9EBEF);
    look.secondText = colour(0xFF565E6C, 0xFFA8AFBB);
    look.grid = colour(0xFFE0E3E9, 0xFF30343C);
    look.axis = colour(0xFFC2C8D2, 0xFF4B515D);
    look.ground = colour(0xFFFFFFFF, 0xFF1F2228);
    look.focus = colour(0xFF2F3FA6, 0xFFA5B4FF);
    look.font = chartFont();
    return look;
}

}  // namespace

ChartLook ChartLook::of(ColourSets set, bool dark) {
    const auto* row = std::find_if(std::begin(setRows), std::end(setRows),
                                   [&](const SetRow& candidate) { return candidate.set == set; });
    ChartLook look = groundLook(dark);
    for (std::size_t i = 0; i < chartLines; ++i)
        look.strokes[i] = {QColor((dark ? row->dark : row->light)[i]), row->signs[i], {}};
    if (set == ColourSets::blackAndWhite)
        makeHeavyAndLight(look);
    return look;
}

// Where a family has other shapes for signs between capitals or numbers, a picture would hold these as
// drawings, and nobody could copy its text.
ChartLook ChartLook::paper(ColourSets set) {
    ChartLook look = of(set, false);
    look.font.setStyleStrategy(QFont::PreferNoShaping);
    return look;
}

ChartLook ChartLook::plain(const QColor& text, const QColor& ground) {
    ChartLook look;
    for (std::size_t i = 0; i < chartLines; ++i)
        look.strokes[i] = {text, differing[i], {}};
    makeHeavyAndLight(look);
    look.text = look.secondText = look.axis = look.focus = text;
    look.grid = between(text, ground);
    look.ground = ground;
    look.font = chartFont();
    return look;
}

QFont ChartLook::sized(int pixels, QFont::Weight weight) const {
    QFont result = font;
    result.setPixelSize(pixels);
    result.setWeight(weight);
    return result;
}

int footerPixels(TextSizes size) {
    constexpr int pixels[] = {9, 10, 12, 14, 16};
    return pixels[static_cast<std::size_t>(size)];
}

}  // namespace lorvane
