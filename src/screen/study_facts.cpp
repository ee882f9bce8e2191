// Names and numbers as report and details tell them.
#include "screen/study_facts.h"

#include <algorithm>

#include "base/letter_case.h"
#include "base/number_text.h"
#include "base/utf8.h"
#include "engine/effect_metrics.h"
#include "screen/screen_rows.h"

namespace lorvane {

namespace {

constexpr int limitDecimals = 2;  // of scores, and of odds ratios
constexpr int riskDecimals = 3;
constexpr int sdDecimals = 3;
constexpr int percentDecimals = 1;
constexpr int tauSqDecimals = 4;

std::string limitsText(double lower, double upper, int decimals) {
    return fixedText(lower, decimals) + " to " + fixedText(upper, decimals);
}

std::string spanText(const Study& s, double span, bool units) {
    if (s.isMeans())
        return fixedText(span, limitDecimals) + (units ? " points" : "");
    return fixedText(100 * span, percentDecimals) + (units ? " percentage points" : "");
}

std::string shareText(const Study& s, double share) {
    return fixedText(100 * share, s.isMeans() ? percentDecimals : riskDecimals) + "%";
}

bool isOddsRatio(const Study& s) { return s.isBinary() && s.BinaryType == BinaryTypes::oddsRatio; }

int effectDecimals(const Study& s) {
    return s.isBinary() && s.BinaryType == BinaryTypes::riskDifference ? riskDecimals : limitDecimals;
}

// A block of the table of ICCs: of the level by itself, or with all levels above it.
struct IccBlock {
    double share, SD, lower, upper;
};

std::string iccText(const Study& s, const IccBlock& block, IccColumn column, bool spanUnits) {
    using enum IccColumn;
    const int decimals = s.isMeans() ? limitDecimals : riskDecimals;
    switch (column) {
    case ICCW:
        return fixedText(block.share, s.decimals.txtICC);
    case PctW:
        return shareText(s, block.share);
    case SDW:
        return fixedText(block.SD, sdDecimals);
    case VarW:
        return fixedText(block.SD * block.SD, sdDecimals);
    case SpanW:
        return spanText(s, spanOfOneSd * block.SD, spanUnits);
    case LLW:
        return fixedText(block.lower, decimals);
    case ULW:
        return fixedText(block.upper, decimals);
    default:
        return limitsText(block.lower, block.upper, decimals);
    }
}

// The same of the table of effects.
struct TauSqBlock {
    double tauSquared, span, lower, upper;
    bool hasLimits;
};

std::string tauSqText(const Study& s, const TauSqBlock& block, TauSqColumn column) {
    using enum TauSqColumn;
    const int decimals = effectDecimals(s);
    if (column == TauSqW)
        return fixedText(block.tauSquared, tauSqDecimals);
    if (column == SpanW)
        return fixedText(block.span, decimals);
    if (!block.hasLimits)
        return "";
    switch (column) {
    case LLW:
        return fixedText(block.lower, decimals);
    case ULW:
        return fixedText(block.upper, decimals);
    default:
        return limitsText(block.lower, block.upper, decimals);
    }
}

}  // namespace

std::string levelName(const Study& s, int level) { return withoutLineEnds(s.txtName(level)); }

std::string lowerLevelName(const Study& s, int level) { return lowerCased(levelName(s, level)); }

std::string groupName(const Study& s, int group) { return withoutLineEnds(s.txtGroupName(group)); }

std::string listed(const std::vector<std::string>& texts) {
    std::string list;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const bool isLast = i + 1 == texts.size();
        if (i > 0)
            list += !isLast ? ", " : texts.size() == 2 ? " and " : ", and ";
        list += texts[i];
    }
    return list;
}

std::string riskText(const Study& s, double risk) { return fixedText(risk, GetCurrFmt(s)); }

std::string GetInsertICC(const Study& s, int level, IccColumn column, bool spanUnits) {
    if (column == IccColumn::Level)
        return levelName(s, level);
    const IccRow row = iccRow(s, level);
    if (!row.told)
        return "";
    const int blockWidth = static_cast<int>(IccColumn::ICCC) - static_cast<int>(IccColumn::ICCW);
    if (column < IccColumn::ICCC)
        return iccText(s, {row.share, row.SD, row.lower, row.upper}, column, spanUnits);
    return iccText(s, {row.cumulativeShare, row.cumulativeSD, row.cumulativeLower, row.cumulativeUpper},
                   IccColumn{static_cast<int>(column) - blockWidth}, spanUnits);
}

std::string GetInsertTauSq(const Study& s, int level, TauSqColumn column) {
    if (column == TauSqColumn::Level || column == TauSqColumn::LevelC)
        return levelName(s, level);
    if (column == TauSqColumn::OmegaC)
        return "";  // omegas are not added
    const TauSqRow row = tauSqRow(s, level);
    if (column == TauSqColumn::OmegaW)
        return s.effect.ValidOmega(level) ? fixedText(row.omega, s.decimals.txtOmega) : "";
    const int blockWidth = static_cast<int>(TauSqColumn::LevelC) - static_cast<int>(TauSqColumn::Level);
    if (column < TauSqColumn::LevelC)
        return tauSqText(s, {row.tauSquared, row.span, row.lower, row.upper, row.hasLimits}, column);
    return tauSqText(s,
                     {row.cumulativeTauSquared, row.cumulativeSpan, row.cumulativeLower, row.cumulativeUpper,
                      row.hasLimits},
                     TauSqColumn{static_cast<int>(column) - blockWidth});
}

std::string meanEffect(const Study& s) {
    const double effect = s.isMeans() ? s.txtd : isOddsRatio(s) ? s.txtOR : s.txtRD;
    return fixedText(effect, effectDecimals(s));
}

std::string GetUnits(const Study& s, bool before, const std::string& word, bool after) {
    const std::string asked = lowerCased(word);
    if (!isOddsRatio(s) || (asked != "log" && asked != "raw"))
        return "";
    std::string units = before ? " (in " : "(in ";
    units.append(asked).append(after ? " units) " : " units)");
    return units;
}

std::string GetSDW(const Study& s) { return GetInsertICC(s, 1, IccColumn::SDW, false); }

std::string GetSDT(const Study& s) { return GetInsertICC(s, 1, IccColumn::SDC, false); }

std::string rawDifference(const Study& s) { return fixedText(GetDW(s) * iccRow(s, 1).SD, limitDecimals); }

}  // namespace lorvane
