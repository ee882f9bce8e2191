// The table of text styles and the choice of the family. Paints nothing.
#include "desktop/kit/text_style.h"

#include <algorithm>
#include <array>

#include <QFontDatabase>
#include <QStringList>

namespace lorvane::desktop {

namespace {

struct Values {
    double pixels;
    QFont::Weight weight;
    bool display = false;  ///< in the family's cut for large sizes, where there is one
};

/// In the order of TextStyle.
constexpr std::array<Values, 19> Table = {{
    {11, QFont::Normal},         {12, QFont::Normal},       {12, QFont::Medium},
    {13, QFont::Normal},         {13, QFont::Medium},       {13, QFont::DemiBold},
    {13.5, QFont::Normal},       {14, QFont::DemiBold},     {15, QFont::DemiBold},
    {17, QFont::DemiBold},       {17, QFont::Medium},       {17, QFont::DemiBold},
    {18, QFont::DemiBold},       {20, QFont::DemiBold},     {24, QFont::Light, true},
    {24, QFont::DemiBold, true}, {26, QFont::Medium, true}, {40, QFont::Light, true},
    {40, QFont::DemiBold, true},
}};

constexpr double PointsPerPixel = 0.75;

const QStringList& ownFamilies() {
    static const QStringList families = {QStringLiteral("Inter"), QStringLiteral("Noto Sans"),
                                         QStringLiteral("DejaVu Sans")};
    return families;
}

/// The families in use, those for large sizes, and whether the first of them has a light cut.
struct Family {
    QStringList names;
    QStringList display;
    bool hasLight = false;
};

bool hasLightCut(const QString& family) {
    const QStringList styles = QFontDatabase::styles(family);
    return std::any_of(styles.begin(), styles.end(), [&](const QString& style) {
        return QFontDatabase::weight(family, style) == QFont::Light && !QFontDatabase::italic(family, style);
    });
}

/// The first family that is installed, with its cut for large sizes before it where there is one.
Family familyOf(const QStringList& names) {
    const auto known = [](const QString& name) { return QFontDatabase::hasFamily(name); };
    const auto first = std::find_if(names.begin(), names.end(), known);
    if (first == names.end())
        return {names, names, false};
    const QString large = *first + QStringLiteral(" Display");
    return {names, known(large) ? QStringList{large} + names : names, hasLightCut(*first)};
}

Family& family() {
    static Family inUse = familyOf(ownFamilies());
    return inUse;
}

}  // namespace

void setInterfaceFamily(const QString& name) {
    const bool known = QFontDatabase::hasFamily(name);
    family() = familyOf(known ? QStringList{name} + ownFamilies() : ownFamilies());
}

QFont textFont(TextStyle style) {
    const Values& values = Table[static_cast<std::size_t>(style)];
    QFont font(values.display ? family().display : family().names);
    font.setPointSizeF(values.pixels * PointsPerPixel);
    const bool tooLight = values.weight == QFont::Light && !family().hasLight;
    font.setWeight(tooLight ? QFont::Normal : values.weight);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

}  // namespace lorvane::desktop
