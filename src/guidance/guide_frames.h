// Which frames of the guide there are for a study, how one moves through them, and the parts that they form.
// Knows no text but the captions of the parts.
#pragma once

#include <bitset>
#include <span>
#include <string_view>

#include "engine/study.h"

namespace lorvane {

inline constexpr int lastGuideFrame = 329;

/// By number: whether the frame is there. Some numbers above the last frame are kept for none.
using GuideFrames = std::bitset<401>;

/// The frames for a study: those on blocked levels, covariates of blocked levels, group means and binary
/// covariates come and go with it.
GuideFrames framesOf(const Study& study);

/// The frame after a move: 1 goes on, -1 goes back, 0 stays, except on a frame on group means that is gone.
/// Frames that are not there are passed over; the ends hold.
int GetTip(int frame, int delta, const GuideFrames& frames);

/// Frames that belong together.
struct GuidePart {
    int first;
    int last;
    std::string_view caption;   ///< "Part 4"; empty for those that stand outside all parts
    std::string_view document;  ///< the manual that tells more
};

/// All of them in their order, with those outside the numbered parts.
std::span<const GuidePart> guideParts();

/// The part of a frame; it must be one of 0 to lastGuideFrame that some study has.
const GuidePart& partOf(int frame);

/// How many numbered parts there are.
inline constexpr int guidePartCount = 17;

/// How many numbered parts begin at or before a frame.
int partsBegun(int frame);

/// The frames that the jump list leads to.
std::span<const int> guideSections();

/// Frames that are shown beside the wizard of the optimal design.
constexpr bool steersWizard(int frame) { return frame >= 307 && frame <= 310; }

/// The frame on the kind of outcome, which has options.
inline constexpr int outcomeFrame = 11;

/// The first frame on the smallest effect.
inline constexpr int mdesFrame = 315;

}  // namespace lorvane
