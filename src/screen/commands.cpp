// The commands of the study screen.
#include "screen/commands.h"

#include <string>

#include "base/names.h"
#include "screen/tool_table.h"
#include "validation/readiness_checks.h"

namespace lorvane {

namespace {

constexpr double resetSpanOfIndividuals = 10;

struct Command {
    std::string_view tool;
    void (*run)(Design&);
};

template <int DataType, int EffectType>
struct EffectChoice {
    static void apply(Study& s) {
        s.DataType = DataType;
        (DataType == DataTypes::means ? s.DType : s.BinaryType) = EffectType;
    }
};

struct DataTypeRow {
    std::string_view tool;
    void (*apply)(Study&);
};

constexpr DataTypeRow dataTypes[] = {
    {"Mean difference W", EffectChoice<DataTypes::means, DTypes::within>::apply},
    {"Mean difference T", EffectChoice<DataTypes::means, DTypes::total>::apply},
    {"Odds ratio", EffectChoice<DataTypes::binary, BinaryTypes::oddsRatio>::apply},
    {"Risk difference", EffectChoice<DataTypes::binary, BinaryTypes::riskDifference>::apply}};

void enterIccMetric(Design& design, int metric, int rangeMode) {
    design.study().IccMetric = metric;
    if (metric == IccMetrics::span)
        design.study().limits.RangeMode = rangeMode;
    design.Reset();
}

void enterTauSqMetric(Design& design, int metric) {
    design.study().TauSqMetric = metric;
    design.Reset();
}

void setAlpha(Design& design, double alpha) {
    design.study().txtAlpha = alpha;
    design.DoRefresh(true);
}

void setTails(Design& design, int tails) {
    design.study().txtTails = tails;
    design.DoRefresh(true);
}

void setPowerOption(Design& design, int option) {
    design.study().PowerOption = option;
    design.DoRefresh(true);
}

void setMode(Design& design, int Study::*mode, int value) {
    design.study().*mode = value;
    design.applyChoices();
    design.DoRefresh(true);
}

void setSetting(Design& design, int SessionSettings::*setting, int value) {
    design.settings().*setting = value;
    design.DoRefresh(true);
}

void setIccSchematic(Design& design, int mode) {
    design.settings().ShowIccSchematic = mode;
    design.ShowICC(mode != SchematicModes::off);
    design.DoRefresh(true);
}

void setTauSqSchematic(Design& design, int mode) {
    design.settings().ShowTauSqSchematic = mode;
    design.ShowTauSq(mode != SchematicModes::off && !design.study().isHierarchical());
    design.DoRefresh(true);
}

void allowLowCellCounts(Design& design, bool allow) {
    design.settings().AllowLowCellCounts = allow;
    design.DoRefresh(true);
}

void toggleOmega(Design& design) {
    design.settings().ShowOmega = !design.settings().ShowOmega;
    design.DoRefresh(true);
}

void about(Design& design) {
    design.ask("About Lorvane",
               "Lorvane plans cluster-randomized trials: power and cost of designs of two to four "
               "levels.\n\nFree software under the GNU General Public License, version 3 or later.");
}

using D = Design&;

constexpr Command commands[] = {
    {"Exit", [](D d) { d.closeRequest(); }},
    {"About", about},
    {"Link or unlink N", [](D d) { d.showDiagnostics(); }},
    {"Add a level", addLevel},
    {"Remove a level", removeLevel},
    {"Enter span for prevalence", [](D d) { enterIccMetric(d, IccMetrics::span, RangeModes::span); }},
    {"Enter tau-squared", [](D d) { enterTauSqMetric(d, TauSqMetrics::tauSquared); }},
    {"Enter range of effects", [](D d) { enterTauSqMetric(d, TauSqMetrics::spanOfEffects); }},
    {"Enter omega", [](D d) { enterTauSqMetric(d, TauSqMetrics::omega); }},
    {"Show omega", toggleOmega},
    {"Alpha = 0.01", [](D d) { setAlpha(d, 0.01); }},
    {"Alpha = 0.05", [](D d) { setAlpha(d, 0.05); }},
    {"Alpha = 0.10", [](D d) { setAlpha(d, 0.10); }},
    {"Alpha = 0.20", [](D d) { setAlpha(d, 0.20); }},
    {"One-tailed test", [](D d) { setTails(d, 1); }},
    {"Two-tailed test", [](D d) { setTails(d, 2); }},
    {"Use t-distribution", [](D d) { setPowerOption(d, PowerOptions::tDistribution); }},
    {"Use Z-distribution", [](D d) { setPowerOption(d, PowerOptions::zDistribution); }},
    {"Show power using graph", [](D d) { setMode(d, &Study::Powermode, DisplayModes::graph); }},
    {"Show power using digits", [](D d) { setMode(d, &Study::Powermode, DisplayModes::digits); }},
    {"Show cost using graph", [](D d) { setMode(d, &Study::Costmode, DisplayModes::graph); }},
    {"Show cost using digits", [](D d) { setMode(d, &Study::Costmode, DisplayModes::digits); }},
    {"Allow low cell counts", [](D d) { allowLowCellCounts(d, true); }},
    {"Do not allow low cell counts", [](D d) { allowLowCellCounts(d, false); }},
    {"gfrmDisplayICC", [](D d) { d.SynchForms(WindowId::frmDisplayICC, WindowAction::open); }},
    {"gfrmDisplayTauSq", [](D d) { d.SynchForms(WindowId::frmDisplayTauSq, WindowAction::open); }},
    {"gfrmCounts", [](D d) { d.SynchForms(WindowId::frmCounts, WindowAction::open); }},
    {"gfrmProblems", [](D d) { d.SynchForms(WindowId::frmProblems, WindowAction::open); }},
    {"gfrmProblemES", [](D d) { d.SynchForms(WindowId::frmProblemES, WindowAction::open); }},
};

void linkSizes(Design& design, int level, bool linked) {
    Study& s = design.study();
    s.LinkN(level) = linked;
    if (linked)
        s.txtNC(level) = s.txtNT(level);
    design.Reset();
}

void linkCosts(Design& design, int level, bool linked) {
    Study& s = design.study();
    s.LinkCost(level) = linked;
    if (linked)
        s.txtCostC(level) = s.txtCostT(level);
    design.Reset();
}

void registerLevel(EventRegistry& events, Design& design, int level) {
    events.onTool(levelTool("Randomize Level {}", level), [&design, level] {
        if (level > design.study().NumLevels)
            return;
        design.randomize(level);
        design.Reset();
    });
    events.onClick(indexedName("chkMatch", level), [&design, level] { toggleBlocked(design, level); });
    events.onTool(levelTool("Link N for Level {}", level),
                  [&design, level] { linkSizes(design, level, true); });
    events.onTool(levelTool("Unlink N for Level {}", level),
                  [&design, level] { linkSizes(design, level, false); });
    events.onTool(levelTool("Link cost for Level {}", level),
                  [&design, level] { linkCosts(design, level, true); });
    events.onTool(levelTool("Unlink cost for Level {}", level),
                  [&design, level] { linkCosts(design, level, false); });
    for (const int step : {1, 10, 100}) {
        events.onTool(levelTool("Increment Level {} by ", level) + std::to_string(step),
                      [&design, level, step] {
                          design.settings().IncN(level) = step;
                          design.DoRefresh(true);
                      });
        events.onTool(levelTool("Increment Level {} cost by ", level) + std::to_string(step),
                      [&design, level, step] {
                          design.settings().IncCost(level) = step;
                          design.DoRefresh(true);
                      });
    }
}

struct DecimalCommand {
    const char* word;   ///< the field in the tool's name
    const char* field;  ///< stem of the field
};

constexpr DecimalCommand decimalCommands[] = {{"d", "txtd"},
                                              {"odds ratio", "txtOR"},
                                              {"risk ratio", "txtRR"},
                                              {"risk difference", "txtRD"},
                                              {"prevalence", "txtPrev"},
                                              {"P2", "txtP2"},
                                              {"ICC", "txtICC"},
                                              {"tau-squared", "txtTauSq"},
                                              {"omega", "txtOmega"},
                                              {"R-squared", "txtRsq"}};

struct StepCommand {
    const char* text;
    int decimals;
    int step;
};

constexpr StepCommand stepCommands[] = {
    {".01", 2, 1}, {".10", 1, 1}, {"1", 0, 1}, {"10", 0, 10}, {"100", 0, 100}};

struct SteppedField {
    const char* word;
    const char* field;
    int SessionSettings::*step;
};

constexpr SteppedField steppedFields[] = {{"mean", "txtMean", &SessionSettings::IncMean},
                                          {"SD", "txtSD", &SessionSettings::IncSD},
                                          {"MRange", "txtMRange", &SessionSettings::IncMRange}};

void registerDecimals(EventRegistry& events, Design& design) {
    for (const DecimalCommand& command : decimalCommands) {
        for (int decimals = 1; decimals <= 4; ++decimals)
            events.onTool(decimalToolName(command.word, decimals),
                          [&design, &command, decimals] { design.SETDECS(command.field, decimals); });
    }
    for (const SteppedField& field : steppedFields) {
        for (const StepCommand& command : stepCommands)
            events.onTool(stepToolName(field.word, command.text), [&design, &field, &command] {
                design.settings().*field.step = command.step;
                design.SETDECS(field.field, command.decimals);
            });
    }
    events.onTool(stepToolName("DRange", ".01"), [&design] { design.SETDECS("txtDRange", 2); });
    events.onTool(stepToolName("DRange", ".10"), [&design] { design.SETDECS("txtDRange", 1); });
}

void registerSettings(EventRegistry& events, Design& design) {
    for (const int percent : {80, 85, 90, 95, 99})
        events.onTool("Set power " + std::to_string(percent), [&design, percent] {
            design.study().ReqPower = percent / 100.0;
            design.DoRefresh(true);
        });
    for (const int iterations : {5, 10, 20, 30})
        events.onTool("For optimal design use " + std::to_string(iterations) + " iterations",
                      [&design, iterations] {
                          setSetting(design, &SessionSettings::IterationsForOptimal, iterations);
                      });
    struct Mode {
        const char* word;
        int value;
    };
    for (const Mode mode : {Mode{" always off", 1}, {" automatic", 2}, {" always on", 3}}) {
        events.onTool(std::string("Counts Schematic") + mode.word,
                      [&design, mode] { setSetting(design, &SessionSettings::ShowCellCounts, mode.value); });
        events.onTool(std::string("ICC Schematic") + mode.word,
                      [&design, mode] { setIccSchematic(design, mode.value); });
        events.onTool(std::string("TauSq Schematic") + mode.word,
                      [&design, mode] { setTauSqSchematic(design, mode.value); });
    }
    for (const Mode mode : {Mode{"None", 1}, {"Moderate", 2}, {"Full", 3}})
        events.onTool(std::string("Level of detail - ") + mode.word,
                      [&design, mode] { setSetting(design, &SessionSettings::CellCountDetail, mode.value); });
}

}  // namespace

void addLevel(Design& design) {
    design.setNumLevels(design.study().NumLevels + 1);
    design.Reset();
}

void removeLevel(Design& design) {
    design.setNumLevels(design.study().NumLevels - 1);
    design.Reset();
}

void enterIcc(Design& design) { enterIccMetric(design, IccMetrics::icc, RangeModes::span); }

void enterLimits(Design& design) { enterIccMetric(design, IccMetrics::span, RangeModes::limits); }

void ClearVals(Study& s) {
    s.txtd = 0;
    s.txtRD = 0;
    s.txtOR = 1;
    s.txtPrev = 0.5;
    for (PerLevel<double>* values :
         {&s.txtICC, &s.txtMRange, &s.txtTauSq, &s.txtDRange, &s.txtOmega, &s.txtQ, &s.txtRsq})
        values->fill(0);
    s.txtMRange(1) = resetSpanOfIndividuals;
}

void SetDataType(Design& design, std::string_view tool) {
    for (const DataTypeRow& row : dataTypes) {
        if (row.tool == tool) {
            row.apply(design.study());
            design.Reset();
        }
    }
}

void ResetForOD(Design& design) {
    design.setNumLevels(0);
    SetDataType(design, design.study().isMeans() ? "Mean difference T" : "Odds ratio");
}

void toggleBlocked(Design& design, int level) {
    const Study& s = design.study();
    if (level < 2 || level > s.NumLevels)
        return;
    design.randomize(s.isBlocked(level) ? level : level - 1);
    design.Reset();
}

void changeDataType(Design& design, std::string_view tool) {
    const bool clear =
        !NeedOk(design.study()) ||
        design.ask("Clear values",
                   "This will clear values for effect size, ICC, spans, covariates, and R-squared  ",
                   {Answer::OK, Answer::Cancel}) == Answer::OK;
    if (!clear)
        return;
    ClearVals(design.study());
    SetDataType(design, tool);
}

void registerCommands(EventRegistry& events, Design& design) {
    for (const Command& command : commands)
        events.onTool(std::string(command.tool), [&design, &command] { command.run(design); });
    for (const DataTypeRow& row : dataTypes)
        events.onTool(std::string(row.tool), [&design, &row] { changeDataType(design, row.tool); });
    for (int level = lowestLevel; level <= highestLevel; ++level)
        registerLevel(events, design, level);
    registerDecimals(events, design);
    registerSettings(events, design);
}

}  // namespace lorvane
