// What the tools show of the study.
#include "screen/tool_states.h"

#include <string>

#include "base/money.h"
#include "base/number_text.h"
#include "screen/tool_table.h"

namespace lorvane {

namespace {

// An "&" in a name that a user gave is shown, not taken for a mnemonic.
std::string plain(std::string text) {
    for (std::size_t at = text.find('&'); at != std::string::npos; at = text.find('&', at + 2))
        text.insert(at, 1, '&');
    return text;
}

struct LevelCaption {
    const char* tool;
    const char* before;
    const char* after;
};

constexpr LevelCaption levelCaptions[] = {
    {"Randomize Level {}", "Randomize ", ""},
    {"Link N for Level {}", "Link number of ", " for the two groups"},
    {"Unlink N for Level {}", "Set number of ", " for each group separately"},
    {"Increment Level {} by 1", "Increment number of ", " by 1"},
    {"Increment Level {} by 10", "Increment number of ", " by 10"},
    {"Increment Level {} by 100", "Increment number of ", " by 100"},
    {"Link cost for Level {}", "Link cost of ", " for the two groups"},
    {"Unlink cost for Level {}", "Set cost of ", " for each group separately"},
    {"Increment Level {} cost by 1", "Increment cost of ", " by 1"},
    {"Increment Level {} cost by 10", "Increment cost of ", " by 10"},
    {"Increment Level {} cost by 100", "Increment cost of ", " by 100"},
};

void captionLevel(const Study& s, ToolBook& tools, int level) {
    const std::string name = plain(s.txtName(level));
    for (const LevelCaption& caption : levelCaptions)
        tools.setCaption(levelTool(caption.tool, level), caption.before + name + caption.after);
}

// Tools of a level that is not in use are hidden; of a pair of links the one that is not in force is on
// offer.
void showLevel(const Study& s, ToolBook& tools, int level) {
    const bool used = level <= s.NumLevels;
    const bool nested = used && !s.isBlocked(level);
    tools.setVisible(levelTool("Randomize Level {}", level), used);
    tools.setVisible(levelTool("Link N for Level {}", level), nested && !s.LinkN(level));
    tools.setVisible(levelTool("Unlink N for Level {}", level), nested && s.LinkN(level));
    tools.setVisible(levelTool("Link cost for Level {}", level), nested && !s.LinkCost(level));
    tools.setVisible(levelTool("Unlink cost for Level {}", level), nested && s.LinkCost(level));
    for (const char* step : {"1", "10", "100"}) {
        tools.setVisible(levelTool("Increment Level {} by ", level) + step, used);
        tools.setVisible(levelTool("Increment Level {} cost by ", level) + step, used);
    }
}

void checkLevel(const Study& s, const SessionSettings& settings, ToolBook& tools, int level) {
    tools.setChecked(levelTool("Randomize Level {}", level), level == s.RandomizedLevel);
    for (const int step : {1, 10, 100}) {
        tools.setChecked(levelTool("Increment Level {} by ", level) + std::to_string(step),
                         settings.IncN(level) == step);
        tools.setChecked(levelTool("Increment Level {} cost by ", level) + std::to_string(step),
                         settings.IncCost(level) == step);
    }
}

void writeDesignTools(const Study& s, ToolBook& tools) {
    tools.setEnabled("Add a level", s.NumLevels < highestLevel);
    tools.setEnabled("Remove a level", s.NumLevels > 2);
    tools.setChecked("Mean difference W", s.isMeans() && s.DType == DTypes::within);
    tools.setChecked("Mean difference T", s.isMeans() && s.DType == DTypes::total);
    const auto checkBinary = [&](const char* tool, int type) {
        tools.setChecked(tool, s.isBinary() && s.BinaryType == type);
    };
    checkBinary("Odds ratio", BinaryTypes::oddsRatio);
    checkBinary("Risk ratio", BinaryTypes::riskRatio);
    checkBinary("Risk difference", BinaryTypes::riskDifference);
    checkBinary("Two risks", BinaryTypes::twoRisks);
    tools.setEnabled("Risk ratio", false);
    tools.setEnabled("Two risks", false);
}

void writeDispersionTools(const Study& s, const SessionSettings& settings, ToolBook& tools) {
    const bool limits = s.limits.RangeMode == RangeModes::limits && s.isBinary();
    const bool span = s.IccMetric == IccMetrics::span;
    tools.setCaption("Enter span for prevalence",
                     s.isMeans() ? "Enter &span of means" : "Enter &span of risks");
    tools.setChecked("Enter ICC", !span);
    tools.setChecked("Enter span for prevalence", span && !limits);
    tools.setChecked("Enter limits", span && limits);
    tools.setEnabled("Enter limits", s.isBinary());
    tools.setChecked("Enter tau-squared", s.TauSqMetric == TauSqMetrics::tauSquared);
    tools.setChecked("Enter range of effects", s.TauSqMetric == TauSqMetrics::spanOfEffects);
    tools.setChecked("Enter omega", s.TauSqMetric == TauSqMetrics::omega);
    tools.setChecked("Show omega", settings.ShowOmega);
}

void checkSchematic(ToolBook& tools, const std::string& stem, int mode) {
    tools.setChecked(stem + " always off", mode == SchematicModes::off);
    tools.setChecked(stem + " automatic", mode == SchematicModes::automatic);
    tools.setChecked(stem + " always on", mode == SchematicModes::on);
}

void writeTestTools(const Study& s, const WindowRegistry& windows, ToolBook& tools) {
    const bool alphaInProcess = windows.state(WindowId::frmAlpha) == WindowStates::open;
    tools.setCaption("gfrmAlpha", alphaInProcess ? "In process ..." : "&Custom alpha...");
    tools.setChecked("Use t-distribution", s.PowerOption == PowerOptions::tDistribution);
    tools.setChecked("Use Z-distribution", s.PowerOption == PowerOptions::zDistribution);
    for (const auto& [tool, alpha] : {std::pair{"Alpha = 0.01", 0.01},
                                      {"Alpha = 0.05", 0.05},
                                      {"Alpha = 0.10", 0.10},
                                      {"Alpha = 0.20", 0.20}})
        tools.setChecked(tool, s.txtAlpha == alpha);
    tools.setChecked("One-tailed test", s.txtTails == 1);
    tools.setChecked("Two-tailed test", s.txtTails == 2);
    tools.setCaption("gfrmDelta", deltaToolCaption(s.limits.txtDelta));
    tools.setEnabled("gfrmControlMean", s.isMeans());
    const std::string percent = shortestText(roundHalfToEven(s.ReqPower * 100));
    tools.setCaption("Set power", percent + "%");
    for (const char* power : {"80", "85", "90", "95", "99"})
        tools.setChecked(std::string("Set power ") + power, percent == power);
}

// The tool of the mode that is not in force is the action on offer.
void writeDisplayTools(const Study& s, ToolBook& tools) {
    const bool powerAsGraph = s.Powermode == DisplayModes::graph;
    const bool costAsGraph = s.Costmode == DisplayModes::graph;
    for (const auto& [tool, inForce] : {std::pair{"Show power using graph", powerAsGraph},
                                        {"Show power using digits", !powerAsGraph},
                                        {"Show cost using graph", costAsGraph},
                                        {"Show cost using digits", !costAsGraph}}) {
        tools.setChecked(tool, inForce);
        tools.setVisible(tool, !inForce);
    }
}

void writeSettingTools(const SessionSettings& settings, ToolBook& tools) {
    for (const int iterations : {5, 10, 20, 30})
        tools.setChecked("For optimal design use " + std::to_string(iterations) + " iterations",
                         settings.IterationsForOptimal == iterations);
    checkSchematic(tools, "Counts Schematic", settings.ShowCellCounts);
    checkSchematic(tools, "ICC Schematic", settings.ShowIccSchematic);
    checkSchematic(tools, "TauSq Schematic", settings.ShowTauSqSchematic);
    tools.setChecked("Level of detail - None", settings.CellCountDetail == 1);
    tools.setChecked("Level of detail - Moderate", settings.CellCountDetail == 2);
    tools.setChecked("Level of detail - Full", settings.CellCountDetail == 3);
    tools.setChecked("Allow low cell counts", settings.AllowLowCellCounts);
    tools.setChecked("Do not allow low cell counts", !settings.AllowLowCellCounts);
}

struct DecimalTools {
    const char* field;
    int FieldDecimals::*decimals;
};

constexpr DecimalTools decimalTools[] = {{"d", &FieldDecimals::txtd},
                                         {"odds ratio", &FieldDecimals::txtOR},
                                         {"risk ratio", &FieldDecimals::txtRR},
                                         {"risk difference", &FieldDecimals::txtRD},
                                         {"prevalence", &FieldDecimals::txtPrev},
                                         {"P2", &FieldDecimals::txtP2},
                                         {"ICC", &FieldDecimals::txtICC},
                                         {"tau-squared", &FieldDecimals::txtTauSq},
                                         {"omega", &FieldDecimals::txtOmega},
                                         {"R-squared", &FieldDecimals::txtRsq}};

void checkStep(ToolBook& tools, const std::string& field, int decimals, int step) {
    for (const auto& [text, wantedDecimals, wantedStep] :
         {std::tuple{".01", 2, 1}, {".10", 1, 1}, {"1", 0, 1}, {"10", 0, 10}, {"100", 0, 100}})
        tools.setChecked("Change " + field + " by " + text, decimals == wantedDecimals && step == wantedStep);
}

void writeDecimalTools(const FieldDecimals& decimals, const SessionSettings& settings, ToolBook& tools) {
    for (const DecimalTools& row : decimalTools) {
        for (int count = 1; count <= 4; ++count)
            tools.setChecked(decimalToolName(row.field, count), decimals.*row.decimals == count);
    }
    checkStep(tools, "mean", decimals.txtMean, settings.IncMean);
    checkStep(tools, "SD", decimals.txtSD, settings.IncSD);
    checkStep(tools, "MRange", decimals.txtMRange, settings.IncMRange);
    tools.setChecked("Change DRange by .01", decimals.txtDRange == 2);
    tools.setChecked("Change DRange by .10", decimals.txtDRange == 1);
}

void writeWindowTools(const WindowRegistry& windows, ToolBook& tools) {
    for (int window = 1; window <= lastWindowId; ++window)
        tools.setChecked(windowTool(static_cast<WindowId>(window)),
                         windows.stateOf(window) == WindowStates::open);
}

}  // namespace

std::string deltaToolCaption(double delta) {
    return "Modify limits for risks (currently " + fixedText(delta, 4) + " to " + fixedText(1 - delta, 4) +
           ")";
}

void writeToolStates(const Study& study, const SessionSettings& settings, const WindowRegistry& windows,
                     ToolBook& tools) {
    for (int level = lowestLevel; level <= highestLevel; ++level) {
        captionLevel(study, tools, level);
        showLevel(study, tools, level);
        checkLevel(study, settings, tools, level);
    }
    writeDesignTools(study, tools);
    writeDispersionTools(study, settings, tools);
    writeTestTools(study, windows, tools);
    writeDisplayTools(study, tools);
    writeSettingTools(settings, tools);
    writeDecimalTools(study.decimals, settings, tools);
    writeWindowTools(windows, tools);
}

}  // namespace lorvane
