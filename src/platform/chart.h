// A chart of power, and of cost beside it, as plain data, and what turns it into a picture. It tells what is
// drawn and in which look; colours, fonts and places are for whoever draws it.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace lorvane {

struct ChartAxis {
    std::string title;
    bool visible = true;
    double low = 0;
    double high = 1;
    bool reversed = false;  ///< runs from high to low
    int annotation = 2;     ///< 3 on an axis that is reversed, for scripts

    bool operator==(const ChartAxis&) const = default;
};

struct ChartLine {
    std::string label;                     ///< its name in the legend
    std::vector<std::optional<double>> y;  ///< one for each x; nothing leaves a gap

    bool operator==(const ChartLine&) const = default;
};

/// Lines over the same x.
struct ChartGroup {
    std::vector<double> x;
    std::vector<ChartLine> lines;

    bool operator==(const ChartGroup&) const = default;
};

enum class LegendPlaces { hidden, rightCentre, rightBottom, leftBottom, centre };

struct ChartLegend {
    std::string title;
    LegendPlaces place = LegendPlaces::rightCentre;
    bool visible = false;  ///< there are lines to tell apart, and the legend is not hidden

    bool operator==(const ChartLegend&) const = default;
};

enum class Corners { topLeft, topRight, bottomLeft, bottomRight };

/// The marked point of the power, with a box that tells its numbers.
struct ChartMark {
    bool visible = false;  ///< there is a point to mark
    int series = 1;        ///< counted from 1
    int point = 1;         ///< counted from 1
    std::string details;   ///< lines parted by "\n"
    bool detailsVisible = false;
    Corners corner = Corners::topLeft;

    bool operator==(const ChartMark&) const = default;
};

/// A value to find at first sight: a thin line at it with its text at the edge, or a sign on the axis.
struct ChartValue {
    double value = 0;
    std::string text;

    bool operator==(const ChartValue&) const = default;
};

/// How lines are told apart. In the first two sets power is solid and cost dotted; in the last power is heavy
/// and cost light, and it can be read in black and white.
enum class ColourSets { usual = 1, colourBlind = 2, blackAndWhite = 3 };

enum class TextSizes { verySmall, small, medium, large, veryLarge };

struct ChartContent {
    std::vector<std::string> header;  ///< two lines, the second may be empty; none while it is hidden
    std::vector<std::string> footer;  ///< four lines; none while it is hidden
    TextSizes footerSize = TextSizes::medium;
    bool footerBold = false;
    ChartAxis x, y, y2;              ///< y2 is the scale of the cost
    std::vector<ChartGroup> groups;  ///< power, then cost where it is shown; at most five lines each
    ChartLegend legend;
    ChartMark mark;
    std::optional<ChartValue> required;  ///< on y: the power that is asked for
    std::optional<ChartValue> own;       ///< on x: the value that the study has
    ColourSets colours = ColourSets::usual;

    bool operator==(const ChartContent&) const = default;
};

enum class PictureFormats { jpg, png, svg, pdf };

/// What a picture is made for. Both have 300 dots an inch where they have dots.
enum class PictureSizes {
    slide,  ///< 10 x 5.625 inches
    page    ///< 6.5 x 4.5 inches
};

class Chart {
public:
    virtual ~Chart() = default;

    /// The chart with its header and footer on white paper, as the bytes of a picture file. The details box
    /// is part of it where it is visible. Throws std::runtime_error with a sentence when it cannot be drawn.
    virtual std::string picture(const ChartContent& content, PictureFormats format, PictureSizes size) = 0;
};

}  // namespace lorvane
