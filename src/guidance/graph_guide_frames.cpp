// The texts of the guide of the graph. A blank at the end of one is part of it.
#include "guidance/graph_guide_frames.h"

namespace lorvane {

namespace {

using enum GraphCase;

// Titles and parts that several frames share.
constexpr std::string_view details = "Display details";
constexpr std::string_view around = "Header and footer";

const std::vector<GraphTipFrame>& frames() {
    static const std::vector<GraphTipFrame> all = {
        {"",
         "Welcome",
         "",
         "",
         {{any, "This interactive guide will lead you through the steps for creating a graph."},
          {any, "To close or reactivate this panel, click <Interactive guide> on the toolbar."}}},
        {"Part 1",
         "Set the constant values",
         "",
         "",
         {{any, "The graph will allow you to vary one or two factors."},
          {any, "All other values are constant, and these values must be set on the main screen."},
          {any, "To modify any of these values, close the graph and return to the main screen."}}},
        {"Part 2",
         "Set the primary factor",
         "popXAxis",
         "",
         {{any, "The primary factor (on the X-axis) is {axis}."},
          {any, "To select another variable, click <X-axis> on the menu and select a variable."}}},
        {"Part 2",
         "Set a range for the primary factor",
         "",
         "Modify range",
         {{byHand, "The range for the X-axis is set manually."},
          {byHand, "To set the range automatically, click <X-axis> on the menu, and then <Modify range for "
                   "X-axis>."},
          {automatic, "The range for the X-axis is set automatically."},
          {automatic, "To set the range manually, click <X-axis> on the menu, and then <Modify range for "
                      "X-axis>."}}},
        {"Part 3",
         "Set the secondary factor",
         "popLAxis",
         "Second factor",
         {{any, "You may select a second factor, which will display as separate lines within the graph."},
          {noSeries, "No secondary factor has been set."},
          {noSeries, "To set a secondary factor, click <Series> on the menu, and then select one of the "
                     "options."},
          {series, "The second factor is currently set to {series}. "},
          {series, "To remove this factor click <Series> on the menu and then select <None>."},
          {series,
           "To select another factor instead, select <Series> on the menu and then select the desired "
           "factor."}}},
        {"Part 3",
         "Set values for the second factor",
         "",
         "",
         {{noSeries, "Currently, no second factor has been selected."},
          {series, "The second factor is set to {series}. "},
          {series, "To add or remove values for this factor click <Series> on the menu and then click on "
                   "{series}."}}},
        {"Part 4",
         details,
         "popDetailsA",
         "",
         {{any, "The program can display detailed information for any point on the graph."},
          {detailsOn, "This feature is currently on."},
          {detailsOn, "Click <Details on> or <Details off> on the toolbar to toggle this feature."},
          {detailsOff, "This feature is currently off."},
          {detailsOff, "Click <Details on> on the toolbar to toggle this feature between <On> and <Off>."}}},
        {"Part 4",
         details,
         "",
         "",
         {{detailsOn, "This feature is now on. "},
          {detailsOn, "Click any point on the graph line."},
          {detailsOn, "The program will mark that point with a circle, and will display details for that "
                      "point in a box."},
          {detailsOn, "To display detail for another point,"},
          {detailsOn, "(1) Click on the other point, or"},
          {detailsOn, "(2) Drag the circle, or"},
          {detailsOn, "(3) Click the arrows on the toolbar."},
          {detailsOff, "This feature is currently off."},
          {detailsOff, "Click <Details on> on the toolbar to toggle this feature between <On> and <Off>."}}},
        {"Part 4",
         details,
         "popDetailsB",
         "",
         {{any, "The details box is currently located at the {corner} corner of the plot."},
          {any, "To move the box to another corner of the plot, click <Details> on the menu."}}},
        {"Part 5",
         "Display costs",
         "popCost",
         "Show cost",
         {{any, "Graph the costs"},
          {any, "You can add a 'Cost' line to the graph."},
          {any, "To toggle this feature click <Show cost in graph> on the <Cost> menu."}}},
        {"Part 5",
         "Display the cost",
         "popCost",
         "Show cost when click on point",
         {{any, "You can include costs in the details box."},
          {any, "To toggle this feature click <Show cost in details> on the <Cost> menu."}}},
        {"Part 6",
         around,
         "",
         "",
         {{any, "Normally, you will include the header and footer as part of the graph."},
          {any, "However, you may want to exclude these from the graph.  This would be the case, for "
                "example, if you intend to publish the graph and use the Header or Footer as the caption."},
          {any, "The next frames show how to do this."}}},
        {"Part 6",
         around,
         "",
         "",
         {{any, "To show or hide the header, click <Header> on the menu."},
          {any, "To show or hide the footer, click <Footer> on the menu."}}},
        {"Part 6",
         around,
         "",
         "",
         {{any, "To save the header and footer, select <Save header and footer> on the <Files> menu."},
          {any, "These are saved in an RTF file that you can open in Word (TM) and other programs."}}},
        {"Part 7",
         "Save the graph",
         "",
         "",
         {{any, "From the files menu, select an option to save, export, or print."},
          {any, "The option to save for PowerPoint (tm) or Word (tm) sets the size of the graph to match the "
                "target."}}}};
    return all;
}

}  // namespace

std::span<const GraphTipFrame> graphTipFrames() { return frames(); }

}  // namespace lorvane
