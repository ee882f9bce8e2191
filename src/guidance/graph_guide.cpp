// The guide of the graph.
#include "guidance/graph_guide.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "guidance/graph_guide_frames.h"

namespace lorvane {

namespace {

bool holds(GraphCase when, const GraphFacts& facts) {
    switch (when) {
    case GraphCase::any:
        return true;
    case GraphCase::byHand:
        return facts.rangeIsByHand;
    case GraphCase::automatic:
        return !facts.rangeIsByHand;
    case GraphCase::series:
        return !facts.seriesTitle.empty();
    case GraphCase::noSeries:
        return facts.seriesTitle.empty();
    case GraphCase::detailsOn:
        return facts.detailsAreOn;
    case GraphCase::detailsOff:
        return !facts.detailsAreOn;
    }
    return false;
}

std::string filling(std::string_view place, const GraphFacts& facts) {
    constexpr const char* corners[] = {"top-left", "top-right", "bottom-left", "bottom-right"};
    if (place == "corner")
        return corners[static_cast<int>(facts.corner)];
    return place == "axis" ? facts.axisTitle : facts.seriesTitle;
}

// No text has more than one place.
std::string worded(std::string_view text, const GraphFacts& facts) {
    const std::size_t open = text.find('{');
    if (open == std::string_view::npos)
        return std::string(text);
    const std::size_t close = text.find('}', open);
    return std::string(text.substr(0, open)) + filling(text.substr(open + 1, close - open - 1), facts) +
           std::string(text.substr(close + 1));
}

std::vector<std::string> paragraphs(const GraphTipFrame& row, const GraphFacts& facts) {
    std::vector<std::string> texts;
    for (const GraphTip& tip : row.tips) {
        if (holds(tip.when, facts))
            texts.push_back(worded(tip.text, facts));
    }
    return texts;
}

std::string joined(const std::vector<std::string>& texts) {
    std::string all;
    for (const std::string& text : texts)
        all += (all.empty() ? "" : "\n\n") + text;
    return all;
}

int frameCount() { return static_cast<int>(graphTipFrames().size()); }

}  // namespace

GraphGuide::GraphGuide(Design& design, std::function<GraphFacts()> facts)
    : design_(design), facts_(std::move(facts)) {
    frame_.frames.resize(graphTipFrames().size());
    std::iota(frame_.frames.begin(), frame_.frames.end(), 1);
    dotips();
}

void GraphGuide::toggle() {
    if (design_.isOpen(WindowId::frmTipsGraph))
        close();
    else
        design_.SynchForms(WindowId::frmTipsGraph, WindowAction::open);
}

void GraphGuide::close() { design_.SynchForms(WindowId::frmTipsGraph, WindowAction::unload); }

void GraphGuide::GetTip(int delta) {
    TipFrame_ = std::clamp(TipFrame_ + delta, 1, frameCount());
    dotips();
}

void GraphGuide::dotips() {
    const GraphTipFrame& row = graphTipFrames()[static_cast<std::size_t>(TipFrame_ - 1)];
    frame_.frame = TipFrame_;
    frame_.caption = row.part;
    frame_.title = row.title;
    frame_.text = paragraphs(row, facts_());
    frame_.target = row.tool;
    frame_.menu = row.menu;

    pnlPart_.Caption = frame_.caption;
    pnlPart_.Visible = !frame_.caption.empty();
    pnlTitle_.Caption = frame_.title;
    pnlText_.Caption = joined(frame_.text);
    pnlPosition_.Caption = std::to_string(TipFrame_) + " of " + std::to_string(frameCount());
    cmdBack_.Enabled = TipFrame_ > 1;
    cmdNext_.Enabled = TipFrame_ < frameCount();
    cmdMenu_.Visible = !frame_.menu.empty();
}

void GraphGuide::registerNames(ControlRegistry& registry) const {
    registry.add("TipFrame", &TipFrame_);
    registry.add("frmTipsGraph.pnlPart", pnlPart_);
    registry.add("frmTipsGraph.pnlTitle", pnlTitle_);
    registry.add("frmTipsGraph.pnlText", pnlText_);
    registry.add("frmTipsGraph.pnlPosition", pnlPosition_);
    registry.add("frmTipsGraph.cmdBack", cmdBack_);
    registry.add("frmTipsGraph.cmdNext", cmdNext_);
    registry.add("frmTipsGraph.cmdMenu", cmdMenu_);
    registry.add("frmTipsGraph.cmdClose", cmdClose_);
}

void GraphGuide::registerEvents(EventRegistry& events) {
    events.onClick("frmTipsGraph.cmdBack", [this] { GetTip(-1); });
    events.onClick("frmTipsGraph.cmdNext", [this] { GetTip(1); });
    events.onClick("frmTipsGraph.cmdClose", [this] { close(); });
    events.onClose("frmTipsGraph", [this] { close(); });
}

}  // namespace lorvane
