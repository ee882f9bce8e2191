// The rows of the book of commands: key, caption, tip, what it runs, how it stands, sign, keys.
#include "app/command_rows.h"

#include <string>

#include "app/command_series.h"
#include "app/command_table.h"
#include "app/graph_rows.h"
#include "app/report_rows.h"
#include "app/value_rows.h"
#include "base/money.h"
#include "base/number_text.h"
#include "base/utf8.h"
#include "screen/questions.h"
#include "screen/study_text.h"
#include "session/field_words.h"

namespace lorvane {

namespace {

constexpr std::size_t longestStepName = 39;  // with the word before it 44 letters

using enum ToolCategory;
using P = const Program&;

// How commands stand
// -----------------------------------------------------------------------------------------

template <WindowId window>
ToolState isOpen(P p) {
    return checkedIf(p.design.isOpen(window));
}

// A window of a part that some studies have nothing for.
template <WindowId window>
ToolState hasSubject(P p) {
    return {.checked = p.design.isOpen(window),
            .enabled = p.design.hasSubject(window),
            .reason = p.design.whyNoSubject(window)};
}

template <WindowId window>
void open(P p) {
    p.design.SynchForms(window, WindowAction::open);
}

template <SchematicModes DisplaySettings::*setting, SchematicModes mode>
ToolState isMode(P p) {
    return checkedIf(p.session.display().*setting == mode);
}

template <DetailLevels detail>
ToolState isDetail(P p) {
    return checkedIf(p.session.settings().CellCountDetail == detail);
}

ToolState isMetricOfMeans(P p, DTypes type) {
    const Study& s = p.session.study();
    return checkedIf(s.isMeans() && s.DType == type);
}

ToolState isMetricOfRisks(P p, BinaryTypes type) {
    const Study& s = p.session.study();
    return checkedIf(s.isBinary() && s.BinaryType == type);
}

template <GuideTextSize size>
ToolState isTextSize(P p) {
    return checkedIf(p.guide.textSize() == size);
}

// Such studies come from files; no command leads to them.
ToolState onlyFromFiles(P p, BinaryTypes type) {
    ToolState state = isMetricOfRisks(p, type);
    state.enabled = false;
    return state;
}

template <TauSqMetrics metric>
ToolState isTauSqMetric(P p) {
    return checkedIf(p.session.study().TauSqMetric == metric);
}

std::string percentText(double power) { return shortestText(roundHalfToEven(power * 100)) + "%"; }

// Names of levels can be long, and the menu stays narrow.
std::string stepCaption(const char* word, const std::string& name) {
    std::string caption = word;
    if (!name.empty())
        caption.append(" ").append(plainCaption(cutInMiddle(name, longestStepName)));
    return caption;
}

// Undo and redo are named after the step; menus tell the values before and after it, too.
ToolState stepState(const char* word, const std::string& name, const SessionState* from,
                    const SessionState* to, const char* reason) {
    ToolState state = enabledIf(from != nullptr && to != nullptr, reason);
    state.caption = state.shown = stepCaption(word, name);
    if (state.enabled)
        state.shown = stepCaption(word, beginSentence(name) + valueChange(*from, *to));
    return state;
}

ToolState undoState(P p) {
    return stepState("&Undo", p.session.undoName(), p.session.beforeUndo(), &p.session.state(),
                     "Nothing was changed yet");
}

ToolState redoState(P p) {
    return stepState("&Redo", p.session.redoName(), &p.session.state(), p.session.afterRedo(),
                     "Nothing was undone");
}

void allowLowCellCounts(P p, bool allow) {
    p.session.edit({"low cell counts"},
                   [&](SessionState& state) { state.settings.AllowLowCellCounts = allow; });
}

constexpr const char* noTest = "Such studies come from files and have no test";

using enum WindowId;
using D = DisplaySettings;
using S = SchematicModes;

const CommandRow commandTable[] = {
    // Files
    {"Clear",
     "&New",
     "Start a new study",
     file,
     [](P p) { p.files.Clear(); },
     nullptr,
     {Sign::fresh, false, "Ctrl+N"}},
    {"Open",
     "&Open",
     "Open a study file",
     file,
     [](P p) { p.files.askAndOpen(""); },
     nullptr,
     {Sign::open, false, "Ctrl+O", "", true}},
    {"Save",
     "&Save",
     "Save the study",
     file,
     [](P p) { p.files.FileSave(SaveMode::save); },
     nullptr,
     {Sign::save, false, "Ctrl+S"}},
    {"SaveAs",
     "Save &As...",
     "Save the study under another name",
     file,
     [](P p) { p.files.FileSave(SaveMode::saveAs); },
     nullptr,
     {Sign::none, false, "Ctrl+Shift+S", "", true}},
    {"Exit",
     "E&xit",
     "Close the program",
     file,
     [](P p) { p.files.closeRequest(); },
     nullptr,
     {Sign::none, false, "Ctrl+Q"}},
    // Edit
    {"Undo",
     "&Undo",
     "Take the last step back",
     command,
     [](P p) { p.session.undo(); },
     undoState,
     {Sign::undo, false, "Ctrl+Z"}},
    {"Redo",
     "&Redo",
     "Take the step that was undone again",
     command,
     [](P p) { p.session.redo(); },
     redoState,
     {Sign::redo, false, "Ctrl+Shift+Z Ctrl+Y"}},
    {"Copy",
     "&Copy result",
     "Copy power and cost as a line of text",
     command,
     [](P p) {
         p.clipboard.put({resultText(p.design), ""});
     },
     nullptr,
     {Sign::copy, false, "Ctrl+C"}},
    {"Copy study", "Copy &study", "Copy the table of the study, for a spreadsheet or a text", command,
     [](P p) { p.clipboard.put(studyTable(p.design)); }},
    // Structure
    {"Add a level", "&Add a level", "Add a level at the top of the study", command,
     [](P p) { addLevel(p.session); },
     [](P p) {
         return enabledIf(p.session.study().NumLevels < highestLevel, "A study has four levels at most");
     }},
    {"Remove a level", "&Remove a level", "Remove the top level of the study", command,
     [](P p) { removeLevel(p.session); },
     [](P p) { return enabledIf(p.session.study().NumLevels > 2, "A study has two levels at least"); }},
    {"Debug ICC", "Table of the &ICC", "The raw table of the ICC", window,
     [](P p) { p.dialogs.openSpreadICC(); }},
    {"Debug Tau-sq", "Table of the &effects", "The raw table of the effects", window,
     [](P p) { p.dialogs.openSpreadTauSq(); }},
    {"OD", "Example of the optimal design", "Two levels, for the example of the optimal design", command,
     [](P p) { p.dialogs.openExample(); }, nullptr, {.opensDialog = true}},
    {"gfrmLevelNames", "Edit level &names", "Name the units of every level", window,
     [](P p) { p.dialogs.openLevelNames(); }, isOpen<frmLevelNames>, {.opensDialog = true}},
    {"gfrmGroupNames", "Edit group &names", "Name the two groups", window,
     [](P p) { p.dialogs.openGroupNames(); }, isOpen<frmGroupNames>, {.opensDialog = true}},
    {"Mean difference W", "Mean difference d (&within)", "Means, d on the standard deviation within cells",
     choice,
     [](P p) {
         askAndChangeDataType(p.design, {DataTypes::means, DTypes::within, BinaryTypes::oddsRatio});
     },
     [](P p) { return isMetricOfMeans(p, DTypes::within); }},
    {"Mean difference T", "Mean difference d (&total)", "Means, d on the total standard deviation", choice,
     [](P p) {
         askAndChangeDataType(p.design, {DataTypes::means, DTypes::total, BinaryTypes::oddsRatio});
     },
     [](P p) { return isMetricOfMeans(p, DTypes::total); }},
    {"PDF d", "About the two forms of &d", "Open the note on d within and d total", help,
     [](P p) { p.manuals.ShowdPDF("PDF d"); }},
    {"Odds ratio", "&Odds ratio", "Binary outcome, effect as an odds ratio", choice,
     [](P p) {
         askAndChangeDataType(p.design, {DataTypes::binary, DTypes::total, BinaryTypes::oddsRatio});
     },
     [](P p) { return isMetricOfRisks(p, BinaryTypes::oddsRatio); }},
    {"Risk ratio", "Risk rat&io", noTest, choice, nullptr,
     [](P p) { return onlyFromFiles(p, BinaryTypes::riskRatio); }},
    {"Risk difference", "&Risk difference", "Binary outcome, effect as a risk difference", choice,
     [](P p) {
         askAndChangeDataType(p.design, {DataTypes::binary, DTypes::total, BinaryTypes::riskDifference});
     },
     [](P p) { return isMetricOfRisks(p, BinaryTypes::riskDifference); }},
    {"Two risks", "Two ris&ks", noTest, choice, nullptr,
     [](P p) { return onlyFromFiles(p, BinaryTypes::twoRisks); }},
    // Dispersion
    {"Enter ICC", "Enter &ICC", "Enter the dispersion of the outcome as ICC", choice,
     [](P p) { p.dialogs.enterIcc(); },
     [](P p) { return checkedIf(p.session.study().IccMetric == IccMetrics::icc); }},
    {"Enter span for prevalence", "Enter &span of means", "Enter the dispersion of the outcome as a span",
     choice, [](P p) { enterSpan(p.session, RangeModes::span); },
     [](P p) -> ToolState {
         const Study& s = p.session.study();
         return {.checked = s.IccMetric == IccMetrics::span && !s.entersLimits(),
                 .caption = s.isMeans() ? "Enter &span of means" : "Enter &span of risks"};
     }},
    {"Enter limits", "Enter &limits", "Enter the range of risks by its limits", choice,
     [](P p) { p.dialogs.enterLimits(); },
     [](P p) -> ToolState {
         return {.checked = p.session.study().entersLimits(),
                 .enabled = p.session.study().isBinary(),
                 .reason = "Only a risk has limits, and the outcome is a mean"};
     },
     {.opensDialog = true}},
    {"ICC Schematic always off", "Schematic always o&ff", "Never open the picture of the ICC", choice,
     [](P p) { p.design.setIccSchematic(S::off); }, isMode<&D::ShowIccSchematic, S::off>},
    {"ICC Schematic automatic", "Schematic a&utomatic", "Open the picture when an ICC is changed", choice,
     [](P p) { p.design.setIccSchematic(S::automatic); }, isMode<&D::ShowIccSchematic, S::automatic>},
    {"ICC Schematic always on", "Schematic always &on", "Open the picture with every change", choice,
     [](P p) { p.design.setIccSchematic(S::on); }, isMode<&D::ShowIccSchematic, S::on>},
    {"Enter tau-squared", "Enter &tau-squared", "Enter the dispersion of the effect as tau-squared", choice,
     [](P p) { enterEffectAs(p.session, TauSqMetrics::tauSquared); },
     isTauSqMetric<TauSqMetrics::tauSquared>},
    {"Enter range of effects", "Enter &span of effects", "Enter the dispersion of the effect as a span",
     choice, [](P p) { enterEffectAs(p.session, TauSqMetrics::spanOfEffects); },
     isTauSqMetric<TauSqMetrics::spanOfEffects>},
    {"Enter omega", "Enter o&mega", "Enter the dispersion of the effect as omega", choice,
     [](P p) { enterEffectAs(p.session, TauSqMetrics::omega); }, isTauSqMetric<TauSqMetrics::omega>},
    {"TauSq Schematic always off", "Schematic always o&ff", "Never open the picture of the effects", choice,
     [](P p) { p.design.setTauSqSchematic(S::off); }, isMode<&D::ShowTauSqSchematic, S::off>},
    {"TauSq Schematic automatic", "Schematic a&utomatic", "Open the picture when a dispersion is changed",
     choice, [](P p) { p.design.setTauSqSchematic(S::automatic); },
     isMode<&D::ShowTauSqSchematic, S::automatic>},
    {"TauSq Schematic always on", "Schematic always &on", "Open the picture with every change", choice,
     [](P p) { p.design.setTauSqSchematic(S::on); }, isMode<&D::ShowTauSqSchematic, S::on>},
    {"Show omega", "Show om&ega", "Show omega in the picture of the effects", choice,
     [](P p) { p.design.setShowOmega(!p.session.display().ShowOmega); },
     [](P p) { return checkedIf(p.session.display().ShowOmega); }},
    {"Link or unlink N", "&Link or unlink", "Link or unlink the two groups", command,
     [](P p) { p.design.showDiagnostics(); }},
    // Test and options
    {"gfrmDelta", "Modify limits for risks", "Set how near to 0 and 1 a risk may lie", window,
     [](P p) { p.dialogs.openDelta(); },
     [](P p) -> ToolState {
         const double delta = p.session.study().limits.txtDelta;
         return {.checked = p.design.isOpen(frmDelta),
                 .caption = "Modify limits for risks (currently " + fixedText(delta, 4) + " to " +
                            fixedText(1 - delta, 4) + ")"};
     },
     {.opensDialog = true}},
    {"gfrmControlMean", "Set &mean and span", "Set the scale on which means are stated", window,
     [](P p) { p.dialogs.openMean(); },
     [](P p) -> ToolState {
         const Study& s = p.session.study();
         return {.checked = p.design.isOpen(frmSetMean),
                 .enabled = s.isMeans(),
                 .caption = "Set mean and span for " + plainCaption(s.controlName()),
                 .reason = "A binary outcome has no scale"};
     },
     {.opensDialog = true}},
    {"gfrmAlpha", "&Custom alpha...", "Test at a level of your own", window,
     [](P p) { p.dialogs.openAlpha(); },
     [](P p) -> ToolState {
         const bool open = p.design.isOpen(frmAlpha);
         return {.checked = open, .caption = open ? "In process ..." : ""};
     },
     {.opensDialog = true}},
    {"Set power",
     "80%",
     "Set the power that the searches aim at",
     command,
     nullptr,
     [](P p) -> ToolState { return {.caption = percentText(p.session.study().ReqPower)}; },
     {Sign::requiredPower}},
    // Display. The mode that is not in force is the action on offer.
    {"Show power using graph",
     "Power as &bar",
     "Show the power as a bar",
     command,
     [](P p) { p.design.DisplayPowerMode(DisplayModes::graph); },
     [](P p) -> ToolState {
         const bool bar = p.session.display().Powermode == DisplayModes::graph;
         return {.checked = bar, .visible = !bar};
     },
     {Sign::powerBar}},
    {"Show power using digits",
     "Power as &digits",
     "Show the power as digits",
     command,
     [](P p) { p.design.DisplayPowerMode(DisplayModes::digits); },
     [](P p) -> ToolState {
         const bool digits = p.session.display().Powermode == DisplayModes::digits;
         return {.checked = digits, .visible = !digits};
     },
     {Sign::powerDigits}},
    {"Show cost using graph",
     "Cost as b&ar",
     "Show the cost as a bar",
     command,
     [](P p) { p.design.DisplayCostMode(DisplayModes::graph); },
     [](P p) -> ToolState {
         const bool bar = p.session.display().Costmode == DisplayModes::graph;
         return {.checked = bar, .visible = !bar};
     },
     {Sign::costBar}},
    {"Show cost using digits",
     "Cost as d&igits",
     "Show the cost as digits",
     command,
     [](P p) { p.design.DisplayCostMode(DisplayModes::digits); },
     [](P p) -> ToolState {
         const bool digits = p.session.display().Costmode == DisplayModes::digits;
         return {.checked = digits, .visible = !digits};
     },
     {Sign::costDigits}},
    {"Set maximum cost",
     "Set &maximum cost",
     "Set the top of the cost bar",
     window,
     [](P p) { p.dialogs.openMaxCost(); },
     nullptr,
     {Sign::maximumCost, false, "", "", true}},
    // Cell counts
    {"Counts Schematic always off", "Cell counts always o&ff", "Never open the cell counts", choice,
     [](P p) { p.design.setShowCellCounts(S::off); }, isMode<&D::ShowCellCounts, S::off>},
    {"Counts Schematic automatic", "Cell counts a&utomatic", "Open the cell counts while they are low",
     choice, [](P p) { p.design.setShowCellCounts(S::automatic); }, isMode<&D::ShowCellCounts, S::automatic>},
    {"Counts Schematic always on", "Cell counts always &on", "Keep the cell counts open", choice,
     [](P p) { p.design.setShowCellCounts(S::on); }, isMode<&D::ShowCellCounts, S::on>},
    {"Level of detail - None", "Level of detail - &None", "Show the verdict alone", choice,
     [](P p) { p.design.setCellCountDetail(DetailLevels::none); }, isDetail<DetailLevels::none>},
    {"Level of detail - Moderate", "Level of detail - &Moderate", "Show the shares of low counts", choice,
     [](P p) { p.design.setCellCountDetail(DetailLevels::moderate); }, isDetail<DetailLevels::moderate>},
    {"Level of detail - Full", "Level of detail - Fu&ll", "Show all numbers", choice,
     [](P p) { p.design.setCellCountDetail(DetailLevels::full); }, isDetail<DetailLevels::full>},
    {"PDF Low cell counts", "About &low cell counts", "Open the note on low cell counts", help, [](P p) { p.manuals.ShowdPDF("PDF Low cell counts"); }},
    {"Allow low cell counts", "&Allow low cell counts", "Let the searches give low cell counts", choice,
     [](P p) { allowLowCellCounts(p, true); },
     [](P p) { return checkedIf(p.session.settings().AllowLowCellCounts); }},
    {"Do not allow low cell counts", "&Do not allow low cell counts",
     "Keep the searches from low cell counts", choice, [](P p) { allowLowCellCounts(p, false); },
     [](P p) { return checkedIf(!p.session.settings().AllowLowCellCounts); }},
    // Windows
    {"gfrmScenarios",
     "&Scenarios",
     "Open the table of scenarios",
     window,
     open<frmScenarios>,
     isOpen<frmScenarios>,
     {Sign::scenarios, true}},
    {"Show scenarios", "&Show scenarios", "Open the table of scenarios", window, open<frmScenarios>},
    {"Add scenario",
     "&Add scenario",
     "Keep the study as a scenario",
     command,
     [](P p) { p.scenarios.ScenariosAdd(); },
     nullptr,
     {Sign::addScenario}},
    {"Restore scenario", "&Restore scenario", "Put the selected scenario on the screen", command,
     [](P p) { p.scenarios.ScenariosRestore(); }},
    {"gfrmOptimal",
     "&Optimal design",
     "Find the cheapest design for a required power",
     window,
     [](P p) { p.optimal.open(); },
     isOpen<frmOptimal>,
     {Sign::optimal, true}},
    {"Find optimal n per cluster", "Find optimal &n per cluster",
     "Find the cheapest design, all sizes left to the search", command,
     [](P p) { p.optimal.openAndCompute(false); }},
    {"Find M", "&Find the number of clusters", "Find the number of top units, all other sizes kept", command,
     [](P p) { p.optimal.openAndCompute(true); }},
    {"gfrmMDES",
     "&MDES",
     "Find the smallest effect that can be detected",
     window,
     [](P p) {
         open<frmMDES>(p);
         p.guide.showIfOpen(mdesFrame);
     },
     isOpen<frmMDES>,
     {Sign::mdes, true}},
    {"Graph",
     "&Graph",
     "Draw power and cost as a graph",
     window,
     [](P p) { p.graph.DoGraph(); },
     nullptr,
     {Sign::graph, true, "Ctrl+G"}},
    {"gfrmTips",
     "&Guide",
     "Open or close the guide",
     window,
     [](P p) { p.guide.toggle(); },
     isOpen<frmTips>,
     {Sign::guide, true}},
    {"gfrmDetails",
     "&Details",
     "Open or close the details",
     window,
     [](P p) { p.details.toggle(); },
     isOpen<frmDetails>,
     {Sign::details, true}},
    {"Program manual", "&Program manual", "Open the manual", help,
     [](P p) { p.manuals.ShowdPDF("Program manual"); }},
    {"Formulas", "&Formulas", "Open the manual of the formulas", help,
     [](P p) { p.manuals.ShowdPDF("Formulas"); }},
    {"Small", "&Small", "Small text in the guide", choice, [](P p) { p.guide.setTextSize(GuideTextSize::small); },
     isTextSize<GuideTextSize::small>},
    {"Medium", "&Medium", "Text of the usual size in the guide", choice,
     [](P p) { p.guide.setTextSize(GuideTextSize::medium); }, isTextSize<GuideTextSize::medium>},
    {"Large", "&Large", "Large text in the guide", choice, [](P p) { p.guide.setTextSize(GuideTextSize::large); },
     isTextSize<GuideTextSize::large>},
    {"Keyboard", "&Keyboard", "All keys of the program", help, [](P p) { p.keyboard.open(); }},
    {"About", "&About Lorvane", "Version and licence", help, [](P p) { p.about.open(); }},
    {"gDesign", "&Study", "The study screen", window, open<WindowId::Design>, isOpen<WindowId::Design>},
    {"gfrmDisplayICC", "&ICC and range", "The picture of the ICC", window, open<frmDisplayICC>,
     isOpen<frmDisplayICC>},
    {"gfrmDisplayTauSq", "&Tau-squared and range", "The picture of the effects", window,
     open<frmDisplayTauSq>, hasSubject<frmDisplayTauSq>},
    {"gfrmScenariosName", "Name of a scenario", "Name and describe a scenario", window, nullptr,
     [](P p) -> ToolState {
         return {.checked = p.design.isOpen(frmScenariosName), .reason = "The list of scenarios opens it"};
     }},
    {"gfrmProblems", "&Problem", "Why the study gives no power", window, open<frmProblems>,
     hasSubject<frmProblems>},
    {"gfrmProblemES", "Problem with the &effect", "Why the effect is not admissible", window,
     open<frmProblemES>, hasSubject<frmProblemES>},
    {"gfrmOpenWizard", "S&tart", "The start screen", window, [](P p) { p.start.open(); }, isOpen<frmStart>},
    {"gfrmCounts", "&Cell counts", "The cell counts", window, open<frmCounts>, hasSubject<frmCounts>},
    {"FrmLimits", "&Limits of risks", "The limits of the risks by level", window,
     [](P p) { p.dialogs.openLimits(); }, nullptr, {.opensDialog = true}},
};

}  // namespace

std::vector<Command> commandRows(const Program& program) {
    std::vector<Command> commands;
    addCommands(commands, program, commandTable);
    addGraphCommands(commands, program);
    addReportCommands(commands, program);
    addValueCommands(commands, program);
    addCommandSeries(commands, program);
    return commands;
}

}  // namespace lorvane
