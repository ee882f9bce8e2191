// The interactive guide: a window that leads through building a study, frame by frame, and points at what
// each frame talks about. The study on the screen is the one that is built.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "guidance/details.h"
#include "guidance/guide_frame.h"
#include "guidance/guide_frames.h"
#include "guidance/guide_reader.h"
#include "guidance/guide_target.h"
#include "guidance/manuals.h"
#include "platform/settings_store.h"
#include "screen/design.h"
#include "screen/part.h"
#include "session/structure.h"

namespace lorvane {

/// What the guide does to windows of other parts.
struct GuideReach {
    std::function<void(const char* tool)> run;
    std::function<void(const char* window)> close;
};

/// Sizes of the text of the guide.
enum class GuideTextSize { small, medium, large };

class Guide final : public Part {
public:
    /// All of them must outlive it. Throws std::logic_error for texts that cannot be read.
    Guide(Design& design, Details& details, const Manuals& manuals, SettingsStore& settings,
          GuideReach reach);

    /// Moves and shows: 1 goes on, -1 goes back, 0 and 4 show the frame again.
    void dotips(int delta);

    /// Opens the window at the frame that it had, or closes it. What a person chooses holds for the next
    /// start, too.
    void toggle();

    /// Shows a frame if the window is open.
    void showIfOpen(int frame);

    void setTextSize(GuideTextSize size);
    GuideTextSize textSize() const noexcept { return textSize_; }

    void follow(const Changed&) override;
    void registerNames(ControlRegistry& registry) const override;
    void registerEvents(EventRegistry& events) override;

    bool isOpen() const { return design_.isOpen(WindowId::frmTips); }

    /// The frame that is shown.
    int CurrentTip() const noexcept { return CurrentTip_; }
    GuideFrame frame() const;

    // What the window shows
    // ------------------------------------------------------------------------------------------------

    std::string title() const;
    std::vector<Paragraph> text() const;
    const GuidePart& part() const { return partOf(CurrentTip_); }
    /// "2 of 6": the place of the frame among those of its part.
    std::string position() const;
    GuideTarget target() const;
    std::string menu() const;

    /// An entry of the jump list: "Part 4: Number of units".
    std::string sectionCaption(int frame) const;

    const Button& cmdSections() const noexcept { return cmdSections_; }
    const Button& cmdBack() const noexcept { return cmdBack_; }
    const Button& cmdNext() const noexcept { return cmdNext_; }
    const Button& cmdPDF() const noexcept { return cmdPDF_; }
    const Button& cmdVideo() const noexcept { return cmdVideo_; }
    const Button& cmdDetails() const noexcept { return cmdDetails_; }
    const Button& cmdMenu() const noexcept { return cmdMenu_; }

    /// The choices of the frame on the outcome, by the numbers of DataType, DType and BinaryType.
    const Option& optdatatype(int type) const { return optdatatype_(type); }
    const Option& optDType(int type) const { return optDType_(type); }
    const Option& optBinaryType(int type) const { return optBinaryType_(type); }

private:
    void go(int frame, int delta);
    void syncFiles();
    void syncButtons();
    void syncOptions();
    void steer();
    void setOpen(bool open);
    bool exists() const;
    void changeMetric(const std::function<void(EffectMetric&)>& change);
    const GuideEntry& entry() const;

    Design& design_;
    Details& details_;
    const Manuals& manuals_;
    SettingsStore& settings_;
    GuideReach reach_;
    GuideEntries entries_;
    int CurrentTip_ = 0;
    GuideTextSize textSize_ = GuideTextSize::medium;
    bool openedWizard_ = false;  ///< the guide has opened it, and closes it behind itself
    Button cmdSections_{"Sections"};
    Button cmdBack_{"Back"};
    Button cmdNext_{"Next"};
    Button cmdPDF_{"Manual"};
    Button cmdVideo_{"Film"};
    Button cmdDetails_{"Details"};
    Button cmdMenu_{"Menu"};
    IndexedArray<Option, 1, 2> optdatatype_;
    IndexedArray<Option, 1, 2> optDType_;
    IndexedArray<Option, 1, 3> optBinaryType_;
};

}  // namespace lorvane
