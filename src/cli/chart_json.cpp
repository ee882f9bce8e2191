// A chart as JSON.
#include "cli/chart_json.h"

namespace lorvane {

namespace {

using Json = nlohmann::ordered_json;

const char* placeName(LegendPlaces place) {
    constexpr const char* names[] = {"hide", "right center", "right bottom", "left bottom", "center"};
    return names[static_cast<int>(place)];
}

Json groupJson(const ChartGroup& group) {
    Json series = Json::array();
    for (const ChartLine& line : group.lines) {
        Json y = Json::array();
        for (const auto& value : line.y)
            y.push_back(value ? Json(*value) : Json());
        series.push_back({{"label", line.label}, {"y", std::move(y)}});
    }
    return {{"x", group.x}, {"series", std::move(series)}};
}

Json groupsJson(const ChartContent& chart) {
    Json groups = Json::array();
    for (const ChartGroup& group : chart.groups)
        groups.push_back(groupJson(group));
    return groups;
}

}  // namespace

Json chartJson(const ChartContent& chart, const Intervals& axis) {
    const auto scale = [](const ChartAxis& y) {
        return Json{{"title", y.title}, {"min", y.low}, {"max", y.high}};
    };
    const ChartAxis& x = chart.x;
    return {
        {"x",
         {{"title", x.title},
          {"min", x.low},
          {"max", x.high},
          {"reversed", x.reversed},
          {"annotation", x.annotation}}},
        {"y", scale(chart.y)},
        {"y2",
         {{"title", chart.y2.title},
          {"visible", chart.y2.visible},
          {"min", chart.y2.low},
          {"max", chart.y2.high}}},
        {"range", {{"start", axis.Start}, {"end", axis.End}, {"step", axis.Step}, {"points", axis.Points}}},
        {"groups", groupsJson(chart)},
        {"legend",
         {{"title", chart.legend.title},
          {"place", placeName(chart.legend.place)},
          {"visible", chart.legend.visible}}},
        {"header", chart.header},
        {"footer", chart.footer},
        {"mark",
         {{"series", chart.mark.series}, {"point", chart.mark.point}, {"details", chart.mark.details}}}};
}

}  // namespace lorvane
