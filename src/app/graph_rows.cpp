// The rows of the commands of the graph screen.
#include "app/graph_rows.h"

#include <string>

#include "app/command_table.h"

namespace lorvane {

namespace {

using enum ToolCategory;
using P = const Program&;
using Needs = GraphScreen::Needs;
using Then = GraphFiles::Then;

constexpr const char* graphScreen = "xPlot";

// How commands stand
// -----------------------------------------------------------------------------------------

constexpr const char* noGraph = "There is no graph yet";

ToolState ifGraph(P p) { return enabledIf(p.graph.hasGraph(), noGraph); }

template <WindowId window>
ToolState isOpen(P p) {
    return {.checked = p.design.isOpen(window), .enabled = p.graph.hasGraph(), .reason = noGraph};
}

// A setting of the look with one of its values, as a choice of a menu.
template <auto setting, auto value>
void choose(P p) {
    p.graph.setLook([](GraphState& state) { state.*setting = value; });
}

template <auto setting, auto value>
ToolState isChosen(P p) {
    return checkedIf(p.graph.state().*setting == value);
}

// A setting that is on or off.
template <auto setting, Needs needs>
void toggle(P p) {
    p.graph.setLook([](GraphState& state) { state.*setting = !(state.*setting); }, needs);
}

template <auto setting>
ToolState isOn(P p) {
    return checkedIf(p.graph.state().*setting);
}

template <Directions direction>
void move(P p) {
    p.graph.move(direction);
}

ToolState ifSeveralLines(P p) {
    return enabledIf(p.graph.hasGraph() && p.graph.state().NumLines >= 2, "The graph has one line");
}

// The window that a command of the list of windows brings up, with those that stood beside it.
void openGraph(P p) {
    if (!p.graph.hasGraph()) {
        p.graph.DoGraph();
        return;
    }
    p.design.SynchForms(WindowId::xPlot, WindowAction::open);
    p.design.RestoreForms(FormSet::graph);
}

// The guide stands beside its graph.
void toggleGuide(P p) { p.graphGuide.toggle(); }

ToolState guideState(P p) {
    return {.checked = p.design.isOpen(WindowId::frmTipsGraph),
            .enabled = p.graph.isOpen(),
            .reason = "The graph is not open"};
}

using G = GraphState;
using L = LegendPlaces;
using T = TextSizes;

const CommandRow graphTable[] = {
    {"gxPlot", "Gra&ph", "The graph", window, openGraph, [](P p) { return checkedIf(p.graph.isOpen()); }},
    {"gfrmTable", "&Table of the graph", "The table of the graph", window,
     [](P p) { p.design.SynchForms(WindowId::frmTable, WindowAction::open); }, isOpen<WindowId::frmTable>},
    {"gfrmXVar",
     "Range of the X-axis",
     "The range of the X-axis",
     window,
     [](P p) { p.graph.SetXVar(); },
     isOpen<WindowId::frmXVar>,
     {.opensDialog = true}},
    {"gfrmLVar",
     "Values of the series",
     "The values of the series",
     window,
     [](P p) { p.graph.SetLVar(); },
     [](P p) -> ToolState {
         return {.checked = p.design.isOpen(WindowId::frmLVar),
                 .enabled = bool(p.graph.state().LVar),
                 .reason = "The graph has no series"};
     },
     {.opensDialog = true}},
    {"gfrmTipsGraph", "Guide of the graph", "Open or close the guide of the graph", window, toggleGuide,
     guideState},
    // Files
    {"Save graph (PowerPoint)",
     "&Save graph (PowerPoint)",
     "Save the graph in the size of a slide",
     file,
     [](P p) { p.graph.SaveGraph(PictureSizes::slide); },
     ifGraph,
     {Sign::saveGraph, true, "Ctrl+S", "Save graph", true}},
    {"Save graph (Word)",
     "Save graph (&Word)",
     "Save the graph in the size of a page",
     file,
     [](P p) { p.graph.SaveGraph(PictureSizes::page); },
     ifGraph,
     {.opensDialog = true}},
    {"Copy graph to clipboard (PowerPoint)",
     "&Copy graph to clipboard (PowerPoint)",
     "Copy the graph in the size of a slide",
     file,
     [](P p) { p.graph.copyGraph(PictureSizes::slide); },
     ifGraph,
     {Sign::copy, false, "Ctrl+C"}},
    {"Copy graph to clipboard (Word)", "Copy graph to clipboard (Wor&d)",
     "Copy the graph in the size of a page", file, [](P p) { p.graph.copyGraph(PictureSizes::page); },
     ifGraph},
    {"Save table",
     "Save &table",
     "Save the numbers of the graph",
     file,
     [](P p) { p.graph.SaveTable(Then::stay); },
     ifGraph,
     {.opensDialog = true}},
    {"Save table and open in Excel (TM)",
     "Save table and open in &Excel (TM)",
     "Save the numbers and open them",
     file,
     [](P p) { p.graph.SaveTable(Then::open); },
     ifGraph,
     {.opensDialog = true}},
    {"Copy table to clipboard",
     "Copy ta&ble to clipboard",
     "Copy the numbers, for a spreadsheet or a text",
     file,
     [](P p) { p.graph.copyTable(); },
     ifGraph,
     {Sign::none, false, "Ctrl+Shift+C"}},
    {"Save header and footer",
     "Save &header and footer",
     "Save the texts around the graph",
     file,
     [](P p) { p.graph.SaveHeader(); },
     ifGraph,
     {.opensDialog = true}},
    {"Copy header and footer to clipboard", "Copy header and &footer to clipboard",
     "Copy the texts around the graph", file, [](P p) { p.graph.copyHeader(); }, ifGraph},
    {"Draw again",
     "D&raw again",
     "Compute the graph of the study as it stands now",
     command,
     [](P p) { p.graph.GoRun(); },
     ifGraph,
     {Sign::none, false, "F5"}},
    {"xPlot.Close",
     "C&lose",
     "Close the graph",
     command,
     [](P p) { p.graph.close(); },
     nullptr,
     {Sign::close, false, "Esc Ctrl+W"}},
    // Range of the axis
    {"Modify range for X-axis",
     "&Modify range for X-axis",
     "Set the range of the X-axis",
     window,
     [](P p) { p.graph.SetXVar(); },
     isOpen<WindowId::frmXVar>,
     {Sign::axis, true, "Ctrl+R", "Modify range", true}},
    {"Set range for X-axis automatically", "Set range for X-axis &automatically",
     "Let the program choose the range", choice, [](P p) { p.graph.SetXAuto(true); },
     [](P p) { return checkedIf(!p.graph.rangeIsByHand()); }},
    {"Set range for X-axis manually", "Set range for X-axis man&ually", "Type a range of your own", choice,
     [](P p) { p.graph.SetXAuto(false); }, [](P p) { return checkedIf(p.graph.rangeIsByHand()); }},
    {"L None", "&None", "One line, for the study as it is", choice, [](P p) { p.graph.chooseNoSeries(); },
     [](P p) { return checkedIf(!p.graph.state().LVar); }},
    // Points
    {"Left",
     "Point to the &left",
     "Mark the next point to the left",
     command,
     move<Directions::left>,
     ifGraph,
     {Sign::left}},
    {"Right",
     "Point to the &right",
     "Mark the next point to the right",
     command,
     move<Directions::right>,
     ifGraph,
     {Sign::right}},
    {"Up",
     "Line &above",
     "Mark the point of the line above",
     command,
     move<Directions::up>,
     ifSeveralLines,
     {Sign::up}},
    {"Down",
     "Line &below",
     "Mark the point of the line below",
     command,
     move<Directions::down>,
     ifSeveralLines,
     {Sign::down}},
    {"Details on or off",
     "Details &on",
     "Show or hide the box that tells of the marked point",
     window,
     toggle<&G::DisplayOn, Needs::look>,
     isOn<&G::DisplayOn>,
     {Sign::details, true, "Ctrl+D"}},
    {"Display on", "Display &on", "Show the box that tells of the marked point", choice,
     choose<&G::DisplayOn, true>, isChosen<&G::DisplayOn, true>},
    {"Display off", "Display o&ff", "Hide the box that tells of the marked point", choice,
     choose<&G::DisplayOn, false>, isChosen<&G::DisplayOn, false>},
    {"TopLeft", "&Top left", "Details in the top left corner", choice,
     choose<&G::DetailsCorner, Corners::topLeft>, isChosen<&G::DetailsCorner, Corners::topLeft>},
    {"TopRight", "Top &right", "Details in the top right corner", choice,
     choose<&G::DetailsCorner, Corners::topRight>, isChosen<&G::DetailsCorner, Corners::topRight>},
    {"BottomLeft", "&Bottom left", "Details in the bottom left corner", choice,
     choose<&G::DetailsCorner, Corners::bottomLeft>, isChosen<&G::DetailsCorner, Corners::bottomLeft>},
    {"BottomRight", "B&ottom right", "Details in the bottom right corner", choice,
     choose<&G::DetailsCorner, Corners::bottomRight>, isChosen<&G::DetailsCorner, Corners::bottomRight>},
    // Cost
    {"Show cost",
     "Show &cost in graph",
     "Draw the cost on a second axis",
     window,
     toggle<&G::showCost, Needs::numbers>,
     isOn<&G::showCost>,
     {Sign::coin, true, "", "Cost"}},
    {"Show cost when click on point", "Show cost in &details", "Tell the cost of the marked point", window,
     toggle<&G::showCostInDetails, Needs::look>, isOn<&G::showCostInDetails>},
    {"Show cost in table", "Show cost in &table", "Show the costs in the table", window,
     toggle<&G::showCostInTable, Needs::look>, isOn<&G::showCostInTable>},
    {"Show table",
     "Show &table",
     "Show or hide the numbers of the graph",
     window,
     [](P p) { p.graph.toggleTable(); },
     isOpen<WindowId::frmTable>,
     {Sign::table, true, "Ctrl+T"}},
    // Legend
    {"Legend hide", "&Hide", "Draw no legend", choice, choose<&G::legend, L::hidden>,
     isChosen<&G::legend, L::hidden>},
    {"Legend right center", "&Right center", "Legend at the right, in the middle", choice,
     choose<&G::legend, L::rightCentre>, isChosen<&G::legend, L::rightCentre>},
    {"Legend right bottom", "Right &bottom", "Legend at the right, at the bottom", choice,
     choose<&G::legend, L::rightBottom>, isChosen<&G::legend, L::rightBottom>},
    {"Legend left bottom", "&Left bottom", "Legend at the left, at the bottom", choice,
     choose<&G::legend, L::leftBottom>, isChosen<&G::legend, L::leftBottom>},
    {"Legend center", "&Center", "Legend in the middle", choice, choose<&G::legend, L::centre>,
     isChosen<&G::legend, L::centre>},
    // Header and footer
    {"Header show", "&Show header", "Show the lines above the graph", window,
     toggle<&G::showHeader, Needs::numbers>, isOn<&G::showHeader>},
    {"Footer show", "&Show footer", "Show the lines below the graph", window,
     toggle<&G::showFooter, Needs::numbers>, isOn<&G::showFooter>},
    {"Footer very small", "&Very small", "The smallest letters", choice, choose<&G::footerSize, T::verySmall>,
     isChosen<&G::footerSize, T::verySmall>},
    {"Footer small", "S&mall", "Small letters", choice, choose<&G::footerSize, T::small>,
     isChosen<&G::footerSize, T::small>},
    {"Footer medium", "M&edium", "Letters of medium size", choice, choose<&G::footerSize, T::medium>,
     isChosen<&G::footerSize, T::medium>},
    {"Footer large", "&Large", "Large letters", choice, choose<&G::footerSize, T::large>,
     isChosen<&G::footerSize, T::large>},
    {"Footer very large", "Ve&ry large", "The largest letters", choice, choose<&G::footerSize, T::veryLarge>,
     isChosen<&G::footerSize, T::veryLarge>},
    {"Footer normal", "&Normal", "Letters of normal weight", choice, choose<&G::footerBold, false>,
     isChosen<&G::footerBold, false>},
    {"Footer bold", "&Bold", "Bold letters", choice, choose<&G::footerBold, true>,
     isChosen<&G::footerBold, true>},
    // Colours
    {"Colors 1", "Colors &1", "Solid lines in colors, cost dotted", choice, choose<&G::ColorSet, 1>,
     isChosen<&G::ColorSet, 1>},
    {"Colors 2", "Colors &2, safe for color-blind readers",
     "Lines told apart by marks and by colors that all readers see", choice, choose<&G::ColorSet, 2>,
     isChosen<&G::ColorSet, 2>},
    {"Colors 3", "Colors &3, black and white", "Heavy and light lines in grays, for print", choice,
     choose<&G::ColorSet, 3>, isChosen<&G::ColorSet, 3>},
    {"Interactive guide",
     "&Interactive guide",
     "Open or close the guide of the graph",
     window,
     toggleGuide,
     guideState,
     {Sign::guide, true, "F1", "Guide"}},
};

// Commands that there is one of for every variable
// ------------------------------------------------------------------

std::string titleOf(P p, const GraphKey& key) {
    const Study& s = p.session.study();
    if (key.variable.is(GraphFields::d))
        return s.DType == DTypes::within ? "d (within)" : "d (total)";
    return plainCaption(GetTitleX(s, key.bound(s)));
}

// A variable is on offer where the study is entered in it, and on one of the two menus.
ToolState standOf(P p, const GraphKey& key, const GraphVariable& own, const GraphVariable& other) {
    const Study& s = p.session.study();
    const bool offered = key.bound(s).isOnOffer(s);
    return {.checked = key.holds(own),
            .visible = offered,
            .enabled = offered && !key.holds(other),
            .caption = titleOf(p, key),
            .reason = "The other menu varies this already"};
}

void addVariables(std::vector<Command>& commands, P p) {
    for (const GraphKey& key : graphKeys()) {
        commands.push_back(
            {toolOf("X " + key.key, key.key, "Vary this along the X-axis", choice),
             [p, &key] { p.graph.chooseX(key); },
             [p, &key] { return standOf(p, key, p.graph.state().XVar, p.graph.state().LVar); }});
        commands.push_back(
            {toolOf("L " + key.key, key.key, "Draw a line for each of some values of this", choice),
             [p, &key] { p.graph.chooseL(key); },
             [p, &key] { return standOf(p, key, p.graph.state().LVar, p.graph.state().XVar); }});
    }
    for (const char* menu : {"X ", "L "})
        commands.push_back(
            {toolOf(std::string(menu) + "Tails", "Tails", "The number of tails has no range", choice),
             {},
             {}});
}

// Menus
// --------------------------------------------------------------------------------------------------------

using Keys = std::vector<std::string>;

// The variables of a menu, with a line between kinds.
Keys variableKeys(const std::string& menu) {
    Keys keys;
    const GraphVariableRow* before = nullptr;
    for (const GraphKey& key : graphKeys()) {
        const bool otherKind = before != key.variable.row && key.variable.level != 0;
        const bool firstAlone = before != nullptr && before->values != nullptr && key.variable.level == 0;
        if (!keys.empty() && (otherKind || firstAlone))
            keys.push_back("-");
        keys.push_back(menu + key.key);
        before = key.variable.row;
    }
    keys.push_back(menu + "Tails");
    return keys;
}

Keys joined(Keys keys, const Keys& more) {
    keys.insert(keys.end(), more.begin(), more.end());
    return keys;
}

std::vector<MenuRow> graphMenus() {
    using enum BandKind;
    return {
        {"popFiles",
         "&Files",
         menu,
         {"Save graph (PowerPoint)", "Save graph (Word)", "-", "Copy graph to clipboard (PowerPoint)",
          "Copy graph to clipboard (Word)", "-", "Save table", "Save table and open in Excel (TM)",
          "Copy table to clipboard", "-", "Save header and footer", "Copy header and footer to clipboard",
          "-", "Draw again", "xPlot.Close"}},
        {"popXAxis", "&X-axis", menu,
         joined({"Modify range for X-axis", "Set range for X-axis automatically",
                 "Set range for X-axis manually", "-"},
                variableKeys("X "))},
        {"popLAxis", "&Series", menu, joined({"L None", "-"}, variableKeys("L "))},
        {"popCost", "&Cost", menu, {"Show cost", "Show cost when click on point", "Show cost in table"}},
        {"popDetailsA",
         "&Details",
         menu,
         {"Display on", "Display off", "-", "Left", "Right", "Up", "Down", "-", "+popDetailsB", "-",
          "Show table"}},
        {"popDetailsB", "&Corner", submenu, {"TopLeft", "TopRight", "BottomLeft", "BottomRight"}},
        {"popLegend",
         "&Legend",
         menu,
         {"Legend hide", "Legend right center", "Legend right bottom", "Legend left bottom",
          "Legend center"}},
        {"popHeader", "&Header", menu, {"Header show"}},
        {"popFooter",
         "Foo&ter",
         menu,
         {"Footer show", "-", "Footer very small", "Footer small", "Footer medium", "Footer large",
          "Footer very large", "-", "Footer normal", "Footer bold"}},
        {"popColors", "C&olors", menu, {"Colors 1", "Colors 2", "Colors 3"}},
        {"popGraphHelp", "Hel&p", menu, {"Interactive guide"}},
        {"xPlotBar",
         "Tool bar of the graph",
         toolbar,
         {"Modify range for X-axis", "+popLAxis", "-", "Details on or off", "Left", "Right", "Up", "Down",
          "-", "Show cost", "Show table", "-", "Save graph (PowerPoint)",
          "Copy graph to clipboard (PowerPoint)", ">", "Interactive guide", "xPlot.Close"}},
    };
}

}  // namespace

void addGraphCommands(std::vector<Command>& commands, const Program& program) {
    addCommands(commands, program, graphTable);
    addVariables(commands, program);
}

std::vector<Band> graphBands() {
    std::vector<Band> bands;
    for (const MenuRow& row : graphMenus()) {
        bands.push_back(bandOf(row));
        bands.back().screen = graphScreen;
        if (row.name == "popLAxis") {
            bands.back().sign = Sign::series;
            bands.back().word = "Second factor";
        }
    }
    return bands;
}

}  // namespace lorvane
