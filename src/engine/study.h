// The record of the one open study, and of what one computation concludes about it.
// Plain data: no rule, no formula, no text of the screen.
#pragma once

#include <cstdint>
#include <string>

#include "engine/per_level.h"

namespace lorvane {

// The design choices. Study files and scripts write a choice as the number given here. Only the book of
// fields turns names into numbers and back.
enum class DataTypes { means = 1, binary = 2 };
enum class BinaryTypes { oddsRatio = 1, riskRatio = 2, riskDifference = 3, twoRisks = 4 };
enum class DTypes { within = 1, total = 2 };  ///< the standard deviation that d is counted in
enum class PowerOptions { tDistribution = 1, zDistribution = 2 };  ///< for a risk difference only
enum class IccMetrics { icc = 1, span = 2 };  ///< how the dispersion of the outcome is entered
enum class TauSqMetrics { tauSquared = 1, spanOfEffects = 2, omega = 3 };  ///< the same of the effect
enum class RangeModes { span = 1, limits = 2 };  ///< how the risks of a level are entered
enum class Tails { one = 1, two = 2 };

// Values of txtModel. A file may hold other numbers; they leave txtPop as it was.
namespace SamplingModels {
inline constexpr double random = 0;
inline constexpr double fixed = 1;
}  // namespace SamplingModels

/// How the search for the cheapest design ended.
enum class SizeAdjustments {
    none = 0,
    topRaised = 1,  ///< the top level has more units than the power needs, for its degrees of freedom
    noSolution = 2
};

/// How the search for the smallest effect ended.
enum class MdesOutcomes { found = -1, none = 0 };

/// Why the risks of a level are impossible.
enum class LogitErrors {
    none = 0,
    spanTooWide = 1,
    prevalenceTooLow = 2,
    prevalenceTooHigh = 3,
    includesZero = 4,
    includesOne = 5,
    excludesPrevalence = 6,
    cumulativeTooWide = 7  ///< nothing sets it, but it keeps its number and its text, deliberately
};

/// The limit that the span of a level's risks was shifted to.
enum class Truncations { none = 0, atLowerLimit = 1, atUpperLimit = 2 };

/// Top of the cost bar of a new study. While it stands the bar shows a top that follows the cost.
inline constexpr double startMaxCost = 100;

/// A span of values covers four standard deviations, two to each side of the middle.
inline constexpr double spanOfOneSd = 4;

/// What one computation leaves behind. Only the computation and the searches write it. Read it after a
/// refresh, since before that it belongs to earlier values. A flag that is false tells of a problem.
struct PowerResult {
    double xLambda = 0;        ///< the effect over its standard error; the noncentrality of the t test
    double xdf = 0;            ///< degrees of freedom of the test
    double txtCritT = 0;       ///< critical value
    double txtPower = 0;       ///< power, 0 to 1
    std::int32_t txtCost = 0;  ///< total cost in whole units of the currency; below 1: none can be told
    double txtBinaryES = 0;    ///< difference of event rates (risk difference only)
    double txtVarPooled = 0;   ///< variance of that difference under the null hypothesis
    double txtVarSep = 0;      ///< variance of that difference under the alternative
    bool xValid = false;       ///< the inputs give a usable answer
    LevelFlags xValidDF;       ///< degrees of freedom of the level are usable
    LevelFlags xValidQ;        ///< covariates and R-squared of the level fit together
    bool xValidTestdf = true;  ///< degrees of freedom of the test are usable
    bool ValidES = true;       ///< the event rates of the effect lie within the limits

    // Whether the search for the cheapest design may run. Each run sets these flags to true and clears those
    // that stand in its way. Index 0 of a level flag is the summary of all levels.
    bool xValidES = true;       ///< the effect is not null
    bool xValidTotICC = true;   ///< the ICCs sum to less than 0.999
    LevelFlags xValidICC;       ///< the ICC of the level is above 0
    LevelFlags xValidMRange;    ///< no check clears it; scripts can read it
    LevelFlags xValidTauSq;     ///< the tau-squared of the level is above 0
    LevelFlags xValidOmega;     ///< the omega of the level is above 0
    LevelFlags xValidCost;      ///< a unit of the level costs more than 0
    LevelFlags xValidModel;     ///< the sampling model of the level is not fixed
    bool xValidAlpha = true;    ///< no check clears it; scripts can read it
    bool xValidOptimal = true;  ///< the search may run

    SizeAdjustments Adjusteddf = SizeAdjustments::none;  ///< of the last search for the cheapest design
    MdesOutcomes MDES = MdesOutcomes::none;              ///< of the last search for the smallest effect
    bool txtCostProblem = false;  ///< a cost left 32 bits; the search for the cheapest design clears it

    PowerResult();
};

/// What the last screening of a binary study read and found. The order of the arms: control, treated; of the
/// four cells: control events, control non-events, treated events, treated non-events.
struct CellCounts {
    bool isScreened = false;           ///< a screening has run
    IndexedArray<double, 1, 2> n;      ///< individuals in a cluster of the arm
    IndexedArray<double, 1, 2> rate;   ///< event rate of the arm
    IndexedArray<double, 1, 4> share;  ///< share of clusters with a small expected count, 0 to 1
    IndexedArray<bool, 1, 4> low;      ///< the share is too large
    bool anyLow = false;
};

/// Dispersion of the outcome as the panel frmDisplayICC carries it. A flag that is false tells of a problem.
struct OutcomeDispersion {
    LevelFlags ValidICC;      ///< index 0: the summary, which the computation reads
    PerLevel<bool> ShowICC;   ///< the ICC column shows a number
    PerLevel<bool> ShowSpan;  ///< the span column shows a number

    OutcomeDispersion();
};

/// The levels' dispersion on the logit scale, for binary outcomes.
struct LogitDispersion {
    PerLevel<double> LogitV;                     ///< variance on the logit scale; level 1 has none
    PerLevel<bool> ok;                           ///< the level's span is possible
    PerLevel<LogitErrors> error;                 ///< why it is not
    IndexedArray<Truncations, 0, 4> truncation;  ///< limit that the span was shifted to; index 0 is unused

    LogitDispersion();
};

/// Limits of the risks: the allowed distance from 0 and 1, and the range of each level.
struct RiskLimits {
    double txtDelta = 0.001;                  ///< every event rate stays between this and 1 minus this
    RangeModes RangeMode = RangeModes::span;  ///< whether a level's risks are entered as a span or as limits
    PerLevel<double> txtLL;                   ///< lower limit of the risks of the level
    PerLevel<double> txtUL;                   ///< upper limit
    PerLevel<double> txtVariance;             ///< variance on the logit scale, as shown beside the limits

    // Dispersion of the level in the other metrics, as shown beside the limits. No formula reads it.
    PerLevel<double> txtSpan;  ///< of the outcome
    PerLevel<double> txtICC;
    PerLevel<double> txtTauSq;
    PerLevel<double> txtDRange;  ///< span of the effects
    PerLevel<double> txtOmega;
};

/// Dispersion of the effect over the blocked levels, as the panel frmDisplayTauSq carries it.
/// The computation reads these values, never the entered ones.
struct EffectDispersion {
    PerLevel<double> txtTauSq;  ///< variance of the effect
    PerLevel<double> txtSpan;   ///< four standard deviations of the effect
    PerLevel<double> txtOmega;  ///< tau-squared as a multiple of the outcome variance of the level
    LevelFlags ValidTauSq;      ///< index 0: the summary, which the computation reads
    LevelFlags ValidSpan;
    LevelFlags ValidOmega;
    PerLevel<bool> ShowTauSq;  ///< the column shows a number for the level; so the two below
    PerLevel<bool> ShowSpan;
    PerLevel<bool> ShowOmega;

    EffectDispersion();
};

/// Decimals shown of the fields whose decimals the user can choose; one step of an arrow is one unit of
/// the last decimal. Fields of a level have the same decimals at all levels.
struct FieldDecimals {
    int txtd = 2;
    int txtPrev = 2;
    int txtP2 = 2;
    int txtOR = 2;
    int txtRR = 2;
    int txtRD = 2;
    int txtMean = 0;
    int txtSD = 2;
    int txtICC = 2;
    int txtMRange = 2;
    int txtTauSq = 4;
    int txtDRange = 2;
    int txtOmega = 4;
    int txtRsq = 2;
};

/// The open study: design choices, effect, test, four levels, and the state that a computation keeps.
/// Levels above NumLevels are kept and ignored. The initial values are those of a new study.
struct Study {
    int NumLevels = 2;        ///< 2, 3 or 4
    int RandomizedLevel = 2;  ///< 1 to NumLevels; levels above it are blocked
    DataTypes DataType = DataTypes::means;
    BinaryTypes BinaryType = BinaryTypes::oddsRatio;
    DTypes DType = DTypes::total;  ///< standard deviation in which txtd is stated
    PowerOptions PowerOption = PowerOptions::zDistribution;
    IccMetrics IccMetric = IccMetrics::span;
    TauSqMetrics TauSqMetric = TauSqMetrics::tauSquared;

    double txtd = 0;         ///< standardized mean difference
    double txtPrev = 0.5;    ///< event rate in the control group
    double txtP2 = 0.5;      ///< event rate in the treated group, for two risks
    double txtOR = 1;        ///< odds ratio, treated against control
    double txtRR = 1;        ///< risk ratio, treated over control
    double txtRD = 0;        ///< risk difference, treated less control
    double ComputedOR = 1;   ///< odds ratio that the entered binary effect implies
    double txtEvent2 = 0.5;  ///< event rate in the treated group that it implies
    double txtAlpha = 0.05;  ///< significance level of the test, both tails together
    Tails txtTails = Tails::two;
    double txtMean = 0;             ///< mean of the scores; the ranges shown lie about it
    double txtSD = 1;               ///< standard deviation of the scores of level 1
    double MaxCost = startMaxCost;  ///< top of the cost bar; display only
    double ReqPower = 0.8;          ///< power that the searches aim at

    PerLevel<std::string> txtName;
    IndexedArray<std::string, 1, 2> txtGroupName;  ///< 1 treated, 2 control
    PerLevel<double> txtNT;      ///< units per unit of the level above, treated arm (i <= R)
    PerLevel<double> txtNC;      ///< the same in the control arm
    PerLevel<double> txtNB;      ///< blocked units per unit of the level above (i > R)
    PerLevel<double> txtICC;     ///< share of the outcome variance, i >= 2
    PerLevel<double> txtMRange;  ///< span of means or risks, four standard deviations
    PerLevel<double> txtTauSq;   ///< variance of the effect over units of the level (i > R), as entered
    PerLevel<double> txtDRange;  ///< span of effects
    PerLevel<double> txtOmega;   ///< tau-squared as a multiple of the outcome variance of the level
    PerLevel<double> txtQ;       ///< number of covariates
    PerLevel<double> txtRsq;     ///< share of the level's variance that they explain
    PerLevel<double> txtModel;   ///< 0 random, 1 fixed; a 2, as a file can hold, is random in the df rules
    PerLevel<double> txtPop;     ///< the model as a number in formulas: 1 fixed, 0 random
    PerLevel<double> txtCostT;   ///< cost of one unit, treated arm (i <= R)
    PerLevel<double> txtCostC;   ///< the same in the control arm
    PerLevel<double> txtCostB;   ///< cost of one blocked unit (i > R)
    PerLevel<bool> LinkN;        ///< a change of one arm's size is copied to the other
    PerLevel<bool> LinkCost;     ///< the same of the costs

    FieldDecimals decimals;
    RiskLimits limits;
    OutcomeDispersion outcome;
    LogitDispersion logit;
    EffectDispersion effect;
    CellCounts counts;
    PowerResult result;

    Study();

    /// Units of a blocked level hold both arms. A hierarchical design has no blocked level.
    bool isBlocked(int level) const { return level > RandomizedLevel; }
    bool isHierarchical() const { return RandomizedLevel == NumLevels; }
    bool isMeans() const { return DataType == DataTypes::means; }
    bool isBinary() const { return DataType == DataTypes::binary; }
    /// The risks of the levels are entered as limits; spans and ICCs follow from them.
    bool entersLimits() const {
        return isBinary() && IccMetric == IccMetrics::span && limits.RangeMode == RangeModes::limits;
    }
    /// A risk ratio and two risks come from files and have no test of their own.
    bool isTested() const {
        return isMeans() || BinaryType == BinaryTypes::oddsRatio || BinaryType == BinaryTypes::riskDifference;
    }
    const std::string& treatedName() const { return txtGroupName(1); }
    const std::string& controlName() const { return txtGroupName(2); }
};

}  // namespace lorvane
