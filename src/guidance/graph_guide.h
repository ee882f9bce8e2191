// The guide of the graph: fifteen frames that lead through what a graph can show. It knows the graph by a few
// facts alone.
#pragma once

#include <functional>
#include <string>

#include "guidance/guide_frame.h"
#include "platform/chart.h"
#include "platform/controls.h"
#include "screen/design.h"
#include "screen/part.h"

namespace lorvane {

/// What the frames tell of the graph as it stands.
struct GraphFacts {
    std::string axisTitle;    ///< of the variable along the X-axis
    std::string seriesTitle;  ///< of the variable that has a line a value; empty for none
    bool rangeIsByHand = false;
    bool detailsAreOn = true;
    Corners corner = Corners::topLeft;  ///< of the details
};

/// "frmTipsGraph".
class GraphGuide final : public Part {
public:
    /// The screen, and what the facts are read from, must outlive it.
    GraphGuide(Design& design, std::function<GraphFacts()> facts);

    void registerNames(ControlRegistry& registry) const override;
    void registerEvents(EventRegistry& events) override;
    void follow(const Changed&) override { dotips(); }

    /// Opens or closes the window; its frame is kept meanwhile.
    void toggle();

    /// Goes some frames on, or back with a number below 0, as far as there are any.
    void GetTip(int delta);

    /// Words the frame as the graph stands. Whatever changes the graph calls it.
    void dotips();

    /// The frame as it is shown, by paragraph.
    const GuideFrame& frame() const noexcept { return frame_; }

    const Panel& pnlPart() const noexcept { return pnlPart_; }  ///< hidden where a frame is of no part
    const Panel& pnlTitle() const noexcept { return pnlTitle_; }
    const Panel& pnlText() const noexcept { return pnlText_; }          ///< paragraphs, an empty line between
    const Panel& pnlPosition() const noexcept { return pnlPosition_; }  ///< "4 of 15"

    const Button& cmdBack() const noexcept { return cmdBack_; }
    const Button& cmdNext() const noexcept { return cmdNext_; }
    /// For a frame that speaks of a menu; the view opens the band that frame() names.
    const Button& cmdMenu() const noexcept { return cmdMenu_; }
    const Button& cmdClose() const noexcept { return cmdClose_; }

private:
    void close();

    Design& design_;
    std::function<GraphFacts()> facts_;
    int TipFrame_ = 1;
    GuideFrame frame_;
    Panel pnlPart_;
    Panel pnlTitle_;
    Panel pnlText_;
    Panel pnlPosition_;
    Button cmdBack_{"Back"};
    Button cmdNext_{"Next"};
    Button cmdMenu_{"Show the menu"};
    Button cmdClose_{"Close"};
};

}  // namespace lorvane
