// What the graph screen remembers for as long as the program runs. No study file keeps any of it.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "graphs/graph_compute.h"
#include "graphs/graph_texts.h"
#include "platform/chart.h"

namespace lorvane {

struct GraphState {
    GraphVariable XVar;
    GraphVariable LVar;
    int XRow = 0;  ///< rows of the two in the tables
    int LRow = 0;
    int NumLines = 1;
    std::array<XRange, graphRows> XRangeTable{};
    std::array<LineValues, graphRows> LValueTable{};
    std::int32_t GraphMaxCost = 0;
    int CostScale = 1;
    bool GraphRun = false;  ///< a graph is being computed

    int ColorSet = 0;  ///< 0: none was chosen yet
    bool DisplayOn = true;
    Corners DetailsCorner = Corners::topLeft;
    LegendPlaces legend = LegendPlaces::rightCentre;
    bool showHeader = true;
    bool showFooter = true;
    TextSizes footerSize = TextSizes::medium;
    bool footerBold = false;
    bool showCost = false;
    bool showCostInDetails = false;
    bool showCostInTable = false;

    struct {
        int Series = 1;
        int Point = 1;
    } CurrentPoint;

    /// Binds a variable together with its row.
    void bindX(const GraphVariable& variable) {
        XVar = variable;
        XRow = variable.number();
    }
    void bindL(const GraphVariable& variable) {
        LVar = variable;
        LRow = variable.number();
    }

    XRange& range() { return XRangeTable[static_cast<std::size_t>(XRow)]; }
    const XRange& range() const { return XRangeTable[static_cast<std::size_t>(XRow)]; }
    LineValues& lines() { return LValueTable[static_cast<std::size_t>(LRow)]; }

    GraphRequest request() const {
        return {XVar, LVar, range(), LValueTable[static_cast<std::size_t>(LRow)]};
    }
};

}  // namespace lorvane
