// The effect in its different metrics: d within and d total, odds ratio, risk ratio, risk difference,
// and the dispersion of the effect in computing units.
#pragma once

#include <optional>
#include <string_view>

#include "engine/study.h"

namespace lorvane {

/// Share of the variance that lies within the lowest clusters: 1 less the ICCs of levels 2 to NumLevels.
/// Below 0 when they sum to more than 1.
double withinShare(const Study& study);

/// The effect as d total, the unit of all power formulas for means: d within times the root of withinShare,
/// since the standard deviation within clusters is that share's root of the total one. Throws ArithmeticFault
/// when d within has to be converted and the ICCs sum to more than 1.
double GetDT(const Study& study);

/// The effect as d within. Throws ArithmeticFault when d total has to be converted and the ICCs sum to 1 or
/// more.
double GetDW(const Study& study);

/// A tau-squared as entered, on the d-total scale.
double GetTauSqDT(const Study& study, double tauSquared);

/// A tau-squared as entered, on the d-within scale. Throws ArithmeticFault when it has to be converted and
/// the ICCs sum to 1.
double GetTauSqDW(const Study& study, double tauSquared);

/// Tau-squared of a level for the power routines: on the d-total scale for means, unchanged for binary.
double GetTauSq(const Study& study, int level);

/// Omega of a level, as the effect dispersion holds it.
double GetOmega(const Study& study, int level);

/// The name of the effect metric in lower case, for running text.
std::string_view GetESName(const Study& study);

/// The direction in which the search for the smallest effect goes: -1 when the study's effect lies below no
/// effect, else 1. Always 1 for risk ratio and two risks, which have no search.
int SetDefaultDirection(const Study& study);

/// ln(p / (1 - p)), the log odds of a rate; 0 < p < 1.
double Logit(double p);

/// Treated rate that an odds ratio implies beside a control rate p: p OR / (p OR + 1 - p).
double treatedRateOfOddsRatio(double controlRate, double oddsRatio);

/// Odds ratio of a treated rate against a control rate, both above 0 and below 1.
double oddsRatioOfRates(double controlRate, double treatedRate);

/// Odds ratio that a risk ratio implies beside a control rate; nothing when one of the rates lies outside
/// 0.001 to 0.999.
std::optional<double> GetORfromRR(double riskRatio, double controlRate);

/// The same for a risk difference.
std::optional<double> GetORfromRD(double riskDifference, double controlRate);

/// The last value of a metric whose treated rate is admissible, walking from start in steps of step (above 0)
/// upward (direction 1) or downward (-1); start itself when the next value is not. The treated rate is held
/// to txtDelta and 1 - txtDelta for the odds ratio, and to the fixed limits 0.001 and 0.999 for risk ratio
/// and risk difference. The walk leaps, so a limit that lies far away costs little.
double GetRangeOR(const Study& study, double start, double step, int direction);
double GetRangeRR(const Study& study, double start, double step, int direction);
double GetRangeRD(const Study& study, double start, double step, int direction);

/// The bound of the treated rate itself, where limit is its least distance from 0 and 1: limit for direction
/// -1, 1 - limit for 1.
double GetRangeP2(double limit, int direction);

}  // namespace lorvane
