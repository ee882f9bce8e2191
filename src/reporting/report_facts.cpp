// Names and numbers as the report tells them.
#include "reporting/report_facts.h"

#include <algorithm>

#include "base/letter_case.h"
#include "base/number_text.h"
#include "engine/effect_metrics.h"
#include "screen/screen_rows.h"

namespace lorvane {

namespace {

constexpr int limitDecimals = 2;  // of scores, and of odds ratios
constexpr int riskDecimals = 3;
constexpr int sdDecimals = 3;
constexpr int percentDecimals = 1;
constexpr int tauSqDecimals = 4;

std::string onOneLine(std::string name) {
    std::replace_if(
        name.begin(), name.end(), [](char sign) { return sign == '\n' || sign == '\r' || sign == '\t'; },
        ' ');
    return name;
}

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

}  // namespace

std::string levelName(const Study& s, int level) { return onOneLine(s.txtName(level)); }

std::string lowerLevelName(const Study& s, int level) { return lowerCased(levelName(s, level)); }

std::string groupName(const Study& s, int group) { return onOneLine(s.txtGroupName(group)); }

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
    using enum IccColumn;
    const IccRow row = iccRow(s, level);
    if (column == Level)
        return levelName(s, level);
    if (!row.told)
        return "";
    const int decimals = s.isMeans() ? limitDecimals : riskDecimals;
    switch (column) {
    case ICCW:
        return fixedText(row.share, s.decimals.txtICC);
    case PctW:
        return shareText(s, row.share);
    case SDW:
        return fixedText(row.SD, sdDecimals);
    case VarW:
        return fixedText(row.SD * row.SD, sdDecimals);
    case SpanW:
        return spanText(s, spanOfOneSd * row.SD, spanUnits);
    case LLW:
        return fixedText(row.lower, decimals);
    case ULW:
        return fixedText(row.upper, decimals);
    case ExampleW:
        return limitsText(row.lower, row.upper, decimals);
    case ICCC:
        return fixedText(row.cumulativeShare, s.decimals.txtICC);
    case PctC:
        return shareText(s, row.cumulativeShare);
    case SDC:
        return fixedText(row.cumulativeSD, sdDecimals);
    case VarC:
        return fixedText(row.cumulativeSD * row.cumulativeSD, sdDecimals);
    case SpanC:
        return spanText(s, spanOfOneSd * row.cumulativeSD, spanUnits);
    case LLC:
        return fixedText(row.cumulativeLower, decimals);
    case ULC:
        return fixedText(row.cumulativeUpper, decimals);
    case ExampleC:
        return limitsText(row.cumulativeLower, row.cumulativeUpper, decimals);
    case Level:
        break;
    }
    return "";
}

std::string GetInsertTauSq(const Study& s, int level, TauSqColumn column) {
    using enum TauSqColumn;
    const TauSqRow row = tauSqRow(s, level);
    if (column == Level || column == LevelC)
        return levelName(s, level);
    const int decimals = effectDecimals(s);
    const bool isLimit = column == LLW || column == ULW || column == ExampleW || column == LLC ||
                         column == ULC || column == ExampleC;
    if (isLimit && !row.hasLimits)
        return "";
    switch (column) {
    case TauSqW:
        return fixedText(row.tauSquared, tauSqDecimals);
    case SpanW:
        return fixedText(row.span, decimals);
    case LLW:
        return fixedText(row.lower, decimals);
    case ULW:
        return fixedText(row.upper, decimals);
    case ExampleW:
        return limitsText(row.lower, row.upper, decimals);
    case OmegaW:
        return s.effect.ValidOmega(level) ? fixedText(row.omega, s.decimals.txtOmega) : "";
    case TauSqC:
        return fixedText(row.cumulativeTauSquared, tauSqDecimals);
    case SpanC:
        return fixedText(row.cumulativeSpan, decimals);
    case LLC:
        return fixedText(row.cumulativeLower, decimals);
    case ULC:
        return fixedText(row.cumulativeUpper, decimals);
    case ExampleC:
        return limitsText(row.cumulativeLower, row.cumulativeUpper, decimals);
    case Level:
    case LevelC:
    case OmegaC:
        break;
    }
    return "";
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
