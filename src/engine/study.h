// The record of the one open study, and of what one computation concludes about it.
// Plain data: no rule, no formula, no text of the screen.
#pragma once

#include <cstdint>
#include <string>

#include "engine/per_level.h"

namespace lorvane {

// Values of the design choices. The choices are stored as whole numbers, as the study file holds them.
namespace DataTypes {
inline constexpr int means = 1;
inline constexpr int binary = 2;
}  // namespace DataTypes

namespace BinaryTypes {
inline constexpr int oddsRatio = 1;
inline constexpr int riskRatio = 2;
inline constexpr int riskDifference = 3;
inline constexpr int twoRisks = 4;
}  // namespace BinaryTypes

namespace DTypes {
inline constexpr int within = 1;
inline constexpr int total = 2;
}  // namespace DTypes

namespace PowerOptions {
inline constexpr int tDistribution = 1;
inline constexpr int zDistribution = 2;
}  // namespace PowerOptions

namespace IccMetrics {
inline constexpr int icc = 1;
inline constexpr int span = 2;
}  // namespace IccMetrics

namespace TauSqMetrics {
inline constexpr int tauSquared = 1;
inline constexpr int spanOfEffects = 2;
inline constexpr int omega = 3;
}  // namespace TauSqMetrics

namespace DisplayModes {
inline constexpr int digits = 1;
inline constexpr int graph = 2;
}  // namespace DisplayModes

namespace SamplingModels {
inline constexpr int random = 0;
inline constexpr int fixed = 1;
}  // namespace SamplingModels

namespace RangeModes {
inline constexpr int span = 1;
inline constexpr int limits = 2;
}  // namespace RangeModes

/// What one computation leaves behind. Only the computation and the searches write it, and it may be read
/// only after a refresh. Flags are 1 for good and 0 for a problem.
struct PowerResult {
    double xLambda = 0;        ///< noncentrality of the t test; for a binary outcome the standardized effect
    double xdf = 0;            ///< degrees of freedom of the test
    double txtCritT = 0;       ///< critical value
    double txtPower = 0;       ///< power, 0 to 1
    std::int32_t txtCost = 0;  ///< total cost in whole units of the currency; below 1: none can be told
    double txtBinaryES = 0;    ///< difference of event rates (risk difference only)
    double txtVarPooled = 0;   ///< variance of that difference under the null hypothesis
    double txtVarSep = 0;      ///< variance of that difference under the alternative
    int xValid = 0;            ///< the inputs give a usable answer
    LevelFlags xValidDF;       ///< degrees of freedom of the level are usable
    LevelFlags xValidQ;        ///< covariates and R-squared of the level fit together
    int xValidTestdf = 1;      ///< degrees of freedom of the test are usable
    int ValidES = 1;           ///< the event rates of the effect lie within the limits

    // Readiness of the search for the cheapest design. Index 0 of a level flag is the summary.
    int xValidES = 1;
    int xValidTotICC = 1;
    LevelFlags xValidICC;
    LevelFlags xValidMRange;
    LevelFlags xValidTauSq;
    LevelFlags xValidOmega;
    LevelFlags xValidCost;
    LevelFlags xValidModel;
    int xValidAlpha = 1;
    int xValidOptimal = 1;

    int Adjusteddf = 0;  ///< outcome of the search: 0 normal, 1 top level raised for its df, 2 no solution
    double MDES = 0;     ///< outcome of the search for the smallest effect: -1 found, 0 out of reach
    int txtCostProblem = 0;  ///< 1 when the cost left the 32-bit range

    PowerResult();
};

/// Shares of clusters with a small expected count, as the screening of a binary study finds them.
/// The order of the four cells: control events, control non-events, treated events, treated non-events.
struct CellCounts {
    IndexedArray<double, 1, 4> share;
    IndexedArray<int, 1, 4> low;  ///< 1 when the share is too large
    int anyLow = 0;
};

/// Dispersion of the outcome as the panel frmDisplayICC carries it. A flag is 1 for good, 0 for a problem.
struct OutcomeDispersion {
    LevelFlags ValidICC;     ///< index 0: the summary, which the computation reads
    PerLevel<int> ShowICC;   ///< the ICC column shows a number
    PerLevel<int> ShowSpan;  ///< the span column shows a number

    OutcomeDispersion();
};

/// The levels' dispersion on the logit scale, for binary outcomes.
struct LogitDispersion {
    PerLevel<double> LogitV;             ///< variance on the logit scale; level 1 has none
    PerLevel<int> ok;                    ///< 0 when the level's span is impossible
    PerLevel<int> error;                 ///< why it is, a code of 1 to 7; 0 none
    IndexedArray<int, 0, 4> truncation;  ///< 0 none, 1 at the lower limit, 2 at the upper limit

    LogitDispersion();
};

/// Limits of the risks: the allowed distance from 0 and 1, and the range of each level.
struct RiskLimits {
    double txtDelta = 0.001;           ///< every event rate stays between this and 1 minus this
    int RangeMode = RangeModes::span;  ///< whether a level's risks are entered as a span or as limits
    PerLevel<double> txtLL;            ///< lower limit of the risks of the level
    PerLevel<double> txtUL;            ///< upper limit
    PerLevel<double> txtVariance;      ///< variance on the logit scale, as shown beside the limits
    PerLevel<double> txtSpan;          ///< the values below are those shown beside the limits
    PerLevel<double> txtICC;
    PerLevel<double> txtTauSq;
    PerLevel<double> txtDRange;
    PerLevel<double> txtOmega;
};

/// Dispersion of the effect over the blocked levels, as the panel frmDisplayTauSq carries it.
/// The computation reads these values, never the entered ones.
struct EffectDispersion {
    PerLevel<double> txtTauSq;
    PerLevel<double> txtSpan;
    PerLevel<double> txtOmega;
    LevelFlags ValidTauSq;  ///< index 0: the summary, which the computation reads
    LevelFlags ValidSpan;
    LevelFlags ValidOmega;
    PerLevel<int> ShowTauSq;
    PerLevel<int> ShowSpan;
    PerLevel<int> ShowOmega;

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
    int DataType = DataTypes::means;
    int BinaryType = BinaryTypes::oddsRatio;
    int DType = DTypes::total;  ///< standard deviation in which txtd is stated
    int PowerOption = PowerOptions::zDistribution;
    int IccMetric = IccMetrics::span;
    int TauSqMetric = TauSqMetrics::tauSquared;
    int Powermode = DisplayModes::graph;
    int Costmode = DisplayModes::digits;

    double txtd = 0;       ///< standardized mean difference
    double txtPrev = 0.5;  ///< event rate in the control group
    double txtP2 = 0.5;    ///< event rate in the treated group, for two risks
    double txtOR = 1;
    double txtRR = 1;
    double txtRD = 0;
    double ComputedOR = 1;   ///< odds ratio that the entered binary effect implies
    double txtEvent2 = 0.5;  ///< event rate in the treated group that it implies
    double txtAlpha = 0.05;
    int txtTails = 2;
    double txtMean = 0;
    double txtSD = 1;
    double MaxCost = 100;   ///< top of the cost bar; display only
    double ReqPower = 0.8;  ///< power that the searches aim at

    PerLevel<std::string> txtName;
    IndexedArray<std::string, 1, 2> txtGroupName;  ///< 1 treated, 2 control
    PerLevel<double> txtNT;      ///< units per unit of the level above, treated arm (i <= R)
    PerLevel<double> txtNC;      ///< the same in the control arm
    PerLevel<double> txtNB;      ///< blocked units per unit of the level above (i > R)
    PerLevel<double> txtICC;     ///< share of the outcome variance, i >= 2
    PerLevel<double> txtMRange;  ///< span of means or risks, four standard deviations
    PerLevel<double> txtTauSq;   ///< variance of the effect over units of the level (i > R), as entered
    PerLevel<double> txtDRange;  ///< span of effects
    PerLevel<double> txtOmega;
    PerLevel<double> txtQ;      ///< number of covariates
    PerLevel<double> txtRsq;    ///< share of the level's variance that they explain
    PerLevel<double> txtModel;  ///< 0 random, 1 fixed; a 2, as a file can hold, is random in the df rules
    PerLevel<double> txtPop;    ///< the model as a number in formulas: 1 fixed, 0 random
    PerLevel<double> txtCostT;  ///< cost of one unit, treated arm (i <= R)
    PerLevel<double> txtCostC;
    PerLevel<double> txtCostB;  ///< cost of one blocked unit (i > R)
    PerLevel<int> chkMatch;     ///< 1 when the level is blocked
    PerLevel<bool> LinkN;       ///< a change of one arm's size is copied to the other
    PerLevel<bool> LinkCost;

    FieldDecimals decimals;
    RiskLimits limits;
    OutcomeDispersion outcome;
    LogitDispersion logit;
    EffectDispersion effect;
    CellCounts counts;
    PowerResult result;

    Study();

    bool isBlocked(int level) const { return level > RandomizedLevel; }
    bool isHierarchical() const { return RandomizedLevel == NumLevels; }
    bool isMeans() const { return DataType == DataTypes::means; }
    bool isBinary() const { return DataType == DataTypes::binary; }
    const std::string& treatedName() const { return txtGroupName(1); }
    const std::string& controlName() const { return txtGroupName(2); }
};

}  // namespace lorvane
