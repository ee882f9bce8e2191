// The frames of the guide by study.
#include "guidance/guide_frames.h"

#include <algorithm>
#include <cassert>

namespace lorvane {

namespace {

constexpr int groupMeansFrame = 32;
constexpr int unusedFrame = 72;
constexpr int blockedCovariatesFrame = 81;
constexpr int binaryCovariatesFrame = 86;
// The frame that speaks of the effect's dispersion over level 4; those of levels 3 and 2 follow.
constexpr int topBlockFrame = 62;

struct Stretch {
    int first;
    int last;
};

constexpr Stretch always[] = {{0, 2},   {10, 13}, {15, 16}, {20, 27}, {30, 39},
                              {59, 60}, {79, 86}, {89, 92}, {93, 96}, {300, lastGuideFrame}};
constexpr Stretch onBlocks = {61, 74};

constexpr const char* general = "Program manual";

constexpr GuidePart parts[] = {{0, 2, "", general},
                               {10, 13, "Part 1", "PDF d"},
                               {15, 16, "Part 2", general},
                               {20, 25, "Part 3", general},
                               {26, 27, "Part 4", general},
                               {30, 39, "Part 5", general},
                               {59, 74, "Part 6", general},
                               {79, 86, "Part 7", general},
                               {89, 92, "Part 8", general},
                               {93, 96, "Part 9", general},
                               {300, 300, "", general},
                               {301, 304, "Part 10", general},
                               {305, 311, "Part 11", general},
                               {312, 314, "Part 12", general},
                               {315, 317, "Part 13", general},
                               {318, 321, "Part 14", general},
                               {322, 323, "Part 15", general},
                               {324, 326, "Part 16", general},
                               {327, 329, "Part 17", general}};

constexpr int sections[] = {0, 10, 15, 20, 26, 30, 59, 79, 89, 93, 301, 324};

void turnOn(GuideFrames& frames, Stretch stretch) {
    for (int frame = stretch.first; frame <= stretch.last; ++frame)
        frames.set(static_cast<std::size_t>(frame));
}

void turnOff(GuideFrames& frames, int frame) { frames.reset(static_cast<std::size_t>(frame)); }

bool isOn(const GuideFrames& frames, int frame) { return frames.test(static_cast<std::size_t>(frame)); }

}  // namespace

GuideFrames framesOf(const Study& s) {
    GuideFrames frames;
    for (const Stretch& stretch : always)
        turnOn(frames, stretch);
    if (s.isBinary())
        turnOff(frames, groupMeansFrame);
    else
        turnOff(frames, binaryCovariatesFrame);
    if (s.isHierarchical()) {
        turnOff(frames, blockedCovariatesFrame);
        return frames;
    }
    turnOn(frames, onBlocks);
    turnOff(frames, unusedFrame);
    for (int level = highestLevel; level >= 2; --level) {
        if (level > s.NumLevels || !s.isBlocked(level))
            turnOff(frames, topBlockFrame + highestLevel - level);
    }
    return frames;
}

int GetTip(int frame, int delta, const GuideFrames& frames) {
    if (frame == groupMeansFrame && !isOn(frames, frame) && delta == 0)
        delta = 1;
    frame = std::clamp(frame + delta, 0, lastGuideFrame);
    if (delta != 0) {
        const int way = delta > 0 ? 1 : -1;
        while (frame > 0 && frame < lastGuideFrame && !isOn(frames, frame))
            frame += way;
    }
    return frame;
}

std::span<const GuidePart> guideParts() { return parts; }

const GuidePart& partOf(int frame) {
    const auto found = std::find_if(std::begin(parts), std::end(parts), [&](const GuidePart& part) {
        return frame >= part.first && frame <= part.last;
    });
    assert(found != std::end(parts));
    return *found;
}

int partsBegun(int frame) {
    return static_cast<int>(std::count_if(std::begin(parts), std::end(parts), [&](const GuidePart& part) {
        return !part.caption.empty() && part.first <= frame;
    }));
}

std::span<const int> guideSections() { return sections; }

}  // namespace lorvane
