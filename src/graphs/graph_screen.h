// The graph screen: which variables it shows and how, its checks before a graph, its chart and table.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "graphs/graph_chart.h"
#include "graphs/graph_dialogs.h"
#include "graphs/graph_files.h"
#include "graphs/graph_points.h"
#include "graphs/graph_state.h"
#include "platform/hourglass.h"
#include "platform/progress.h"
#include "screen/design.h"
#include "screen/part.h"

namespace lorvane {

/// "xPlot" with "frmTable" and the two dialogs.
class GraphScreen final : public Part {
public:
    /// The screen must outlive it. Without an hourglass nobody waits.
    GraphScreen(Design& design, const GraphOutside& outside, Progress& progress, Hourglass* hourglass);

    void registerNames(ControlRegistry& registry) const override;
    void registerEvents(EventRegistry& events) override;
    void follow(const Changed& changed) override;

    // Commands ----------------------------------------------------------------------------------------------

    /// The graph of the main screen, whose windows make way meanwhile; and of its own changes. Throws
    /// ArithmeticFault; the graph before it stays then.
    void DoGraph();
    void GoRun();

    /// Chooses a variable for the axis or the series, as a menu does: the one that is chosen already opens
    /// its dialog. An empty key is no series.
    void chooseX(const GraphKey& key);
    void chooseL(const GraphKey& key);
    void chooseNoSeries();

    /// The dialogs of the axis and of the series, and the range as the two entries of the menu set it.
    void SetXVar();
    void SetLVar();
    void SetXAuto(bool automatically);

    void move(Directions direction);
    void toggleTable();
    void close();

    void SaveGraph(PictureSizes size);
    void copyGraph(PictureSizes size);
    void SaveTable(GraphFiles::Then then);
    void copyTable();
    void SaveHeader();
    void copyHeader();

    /// Changes how the graph looks; the chart follows. What needs the numbers anew draws the graph again.
    enum class Needs { look, numbers };
    template <typename Change>
    void setLook(Change change, Needs needs = Needs::look) {
        change(state_);
        if (needs == Needs::look || !MakeGraph())
            showChart();
    }

    // What there is -----------------------------------------------------------------------------------------

    const GraphState& state() const noexcept { return state_; }
    /// Whether the range of the axis is set by hand, or about to be.
    bool rangeIsByHand() const;
    /// The variables as the study names them now; no series is an empty title. Before the first graph the
    /// axis is the one that it would have.
    std::string axisTitle() const;
    std::string seriesTitle() const;
    bool isOpen() const { return design_.isOpen(WindowId::xPlot); }
    bool hasGraph() const noexcept { return drawn_.has_value(); }

    /// What the chart shows, and the table beside it.
    const ChartContent& chart() const noexcept { return chart_; }
    const Grid& vsTable() const noexcept { return vsTable_; }
    bool isRowShown(int row) const;
    struct Cell {
        int row = 0;
        int column = 0;
    };
    /// The cell of the marked point while the table is open; row 0 otherwise.
    Cell markedCell() const;
    /// The buttons below the table, by the commands that they run.
    struct TableButton {
        const char* tool;
        const char* caption;
    };
    static constexpr TableButton tableButtons[] = {
        {"Copy table to clipboard", "Copy"}, {"Save table", "Save table"}, {"Show table", "Close"}};
    /// The range as it was computed; all 0 before the first graph.
    Intervals axis() const { return drawn_ ? drawn_->table.axis : Intervals(); }

    const TextBox& secondHeader() const noexcept { return txtHeader2_; }
    static constexpr const char* secondHeaderWords = "Second line of the header";
    static constexpr const char* secondHeaderPrompt = "Add a line of your own";
    const Panel& pnlStatus() const noexcept { return pnlStatus_; }
    const std::string& tableTitle() const noexcept { return tableTitle_; }
    const AxisDialog& axisDialog() const noexcept { return axisDialog_; }
    const LineDialog& lineDialog() const noexcept { return lineDialog_; }

private:
    class Teller;

    void setX(const GraphVariable& variable);
    void setL(const GraphVariable& variable);
    bool MakeGraph();
    void forgetStudy();
    bool passesChecks();
    bool lacksEffect() const;
    void refuseSameVariable();
    void rebind();
    void bindAxis();
    void replaceWhatIsNotOnOffer();
    bool compute();
    bool roundCounts();
    void show();
    void showChart();
    void ShowPoint();
    void GraphFormatTable();
    void tellAboutGraph();
    void warnAboutCovariates(const GraphVariable& variable);
    void pick(int series, int point);
    void tell(std::string text);
    std::vector<std::string> headerAndFooter() const;
    void registerTables(ControlRegistry& registry) const;

    Design& design_;
    Progress& progress_;
    Hourglass* hourglass_;
    GraphState state_;
    GraphFiles files_;
    AxisDialog axisDialog_;
    LineDialog lineDialog_;
    std::optional<DrawnGraph> drawn_;
    SessionState drawnFor_;  ///< what the graph shows
    bool isOld_ = false;     ///< the session has changed since
    ChartContent chart_;
    Grid vsTable_;
    std::array<std::string, 2> txtHeader_;
    std::array<std::string, footerLines> txtFooter_;
    TextBox txtHeader2_;  ///< the second line of the header, the user's own
    Panel pnlStatus_;
    std::string tableTitle_;
    std::string replaced_;        ///< what has given way, since the study does not have it
    bool manualIsAsked_ = false;  ///< the dialog of the range was opened to set it by hand
};

}  // namespace lorvane
