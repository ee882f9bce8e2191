// The effect in its different metrics: d within and d total, odds ratio, risk ratio, risk difference,
// and the dispersion of the effect in computing units.
#pragma once

#include <string_view>

#include "engine/study.h"

namespace lorvane {

/// Share of the variance that lies within the lowest clusters: 1 less the ICCs of levels 2 to NumLevels.
double withinShare(const Study& study);

/// The effect as d total, the unit of all power formulas for means. Throws ArithmeticFault when d within
/// has to be converted and the ICCs sum to more than 1.
double GetDT(const Study& study);

/// The effect as d within. Throws ArithmeticFault when d total has to be converted and the ICCs sum to 1 or
/// more.
double GetDW(const Study& study);

/// A tau-squared as entered, on the d-total scale.
double GetTauSqDT(const Study& study, double tauSquared);

/// A tau-squared as entered, on the d-within scale.
double GetTauSqDW(const Study& study, double tauSquared);

/// Tau-squared of a level for the power routines: on the d-total scale for means, unchanged for binary.
double GetTauSq(const Study& study, int level);

/// Omega of a level, as the effect dispersion holds it.
double GetOmega(const Study& study, int level);

/// The effect metric in lower case, for running text.
std::string_view GetESName(const Study& study);

/// Moves direction (+1 or -1) to the side on which the effect lies; where the effect does not tell one,
/// direction stays as it was passed in.
void SetDefaultDirection(const Study& study, int& direction);

/// ln(p / (1 - p)), the log odds of a rate; 0 < p < 1.
double Logit(double p);

/// Treated rate that the odds ratio implies beside a control rate.
double treatedRateOfOddsRatio(double controlRate, double oddsRatio);

/// Odds ratio of a treated rate against a control rate.
double oddsRatioOfRates(double controlRate, double treatedRate);

/// Odds ratio that a risk ratio implies beside a control rate. valid turns false, and the odds ratio stays
/// as it was, when one of the rates lies outside 0.001 to 0.999.
void GetORfromRR(double riskRatio, double controlRate, bool& valid, double& oddsRatio);

/// The same for a risk difference.
void GetORfromRD(double riskDifference, double controlRate, bool& valid, double& oddsRatio);

/// The last admissible value of a metric, walking from start in steps of step (above 0) upward
/// (direction 1) or downward (-1). The treated rate is held to txtDelta and 1 - txtDelta for the odds
/// ratio, and to the fixed limits 0.001 and 0.999 for risk ratio and risk difference. However far the limit
/// lies, the walk is short.
void GetRangeOR(const Study& study, double& limit, double start, double step, int direction);
void GetRangeRR(const Study& study, double& limit, double start, double step, int direction);
void GetRangeRD(const Study& study, double& limit, double start, double step, int direction);

/// The admissible bound of the treated rate itself: lower := limit for direction -1, upper := 1 - limit
/// for 1.
void GetRangeP2(double& lower, double& upper, double limit, int direction);

}  // namespace lorvane
