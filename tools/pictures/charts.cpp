// Draws charts in telling states, so that they can be looked at: on the screen, light and dark, and as
// pictures.
//
//     lorvane-charts FOLDER
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPixmap>
#include <cmath>
#include <functional>
#include <iostream>

#include "qt/chart_plot.h"
#include "qt/qt_chart.h"

namespace {

using namespace lorvane;

ChartLine powerLine(const std::string& label, const std::vector<double>& x, double rate) {
    ChartLine line{label, {}};
    for (const double value : x)
        line.y.emplace_back(1 - std::exp(-rate * std::pow(value, 1.35)));
    return line;
}

ChartLine costLine(const std::vector<double>& x, double unit) {
    ChartLine line;
    for (const double value : x)
        line.y.emplace_back(20 + unit * value);
    return line;
}

ChartContent content(int lines, double end = 30) {
    ChartContent chart;
    chart.header = {"Power as a function of Number of schools and Number of students",
                    "Reading grant, three-level design"};
    chart.footer = {
        "Three-level clustered design. Schools are randomized. Classes, Students are nested. Test of "
        "difference in means",
        "Statistical model - Random-effects at all levels.",
        "Schools - Number varies, ICC = 0.1000, 1 covariate, R-squared = 0.50. Unit cost = $2,500 "
        "(Treated) $1,500 (Control); Classes - 3 per group, ICC = 0.0500, No covariates. Unit cost = "
        "$300; Students - Number varies, 1 covariate, R-squared = 0.40. Unit cost = $20",
        "Effect size - Standardized mean difference, d (total) = 0.300"};
    chart.x = {"Number of schools per condition", true, 2, end + 0.0001};
    chart.y = {"Power (solid line)", true, 0, 1};
    chart.y2 = {"Cost x thousand (dotted)", true, 0, 500};
    chart.groups.resize(2);
    for (int i = 2; i <= end; ++i)
        chart.groups[0].x.push_back(i);
    chart.groups[1].x = chart.groups[0].x;
    for (int i = 0; i < lines; ++i) {
        const std::string label = std::to_string(10 * (lines - i)) + " per condition";
        chart.groups[0].lines.push_back(powerLine(label, chart.groups[0].x, 0.045 / (1 + 0.12 * i)));
        chart.groups[1].lines.push_back(costLine(chart.groups[0].x, 10.0 / (1 + 0.4 * i)));
    }
    chart.legend = {"Number of students", LegendPlaces::rightCentre, lines > 1};
    chart.mark = {
        true, std::min(2, lines),
        14,   "Power = 82.4%\nNumber of schools = 15 x 2\nNumber of students = 20 x 2\nCost = 123,000",
        true, Corners::topLeft};
    return chart;
}

ChartContent plainOne() {
    ChartContent chart = content(1);
    chart.groups.resize(1);
    chart.y.title = "Power";
    chart.y2.visible = false;
    chart.mark.detailsVisible = false;
    chart.header.pop_back();
    return chart;
}

ChartContent values() {
    ChartContent chart = content(3);
    chart.required = ChartValue{0.8, "Required power 80%"};
    chart.own = ChartValue{15, "15 in the study"};
    return chart;
}

ChartContent reversed() {
    ChartContent chart = values();
    chart.x = {"ICC for schools", true, 0, 0.3001, true, 3};
    for (ChartGroup& group : chart.groups)
        for (std::size_t i = 0; i < group.x.size(); ++i)
            group.x[i] = 0.3 - 0.3 * static_cast<double>(i) / static_cast<double>(group.x.size() - 1);
    chart.own = ChartValue{0.1, "0.1000 in the study"};
    chart.legend.place = LegendPlaces::rightBottom;
    chart.mark.corner = Corners::bottomRight;
    return chart;
}

ChartContent gaps() {
    ChartContent chart = content(2);
    for (const std::size_t i : {0U, 1U, 2U, 4U, 5U, 6U, 14U, 15U, 27U})
        chart.groups[0].lines[0].y[i].reset();
    for (const std::size_t i : {20U, 22U})
        chart.groups[1].lines[0].y[i].reset();
    chart.legend.place = LegendPlaces::leftBottom;
    chart.mark.corner = Corners::bottomLeft;
    return chart;
}

ChartContent five(ColourSets set) {
    ChartContent chart = content(5, 60);
    chart.colours = set;
    chart.y2.high = 1000;
    if (set == ColourSets::blackAndWhite) {
        chart.y.title = "Power (heavy line)";
        chart.y2.title = "Cost x thousand (light)";
    }
    chart.legend.place = set == ColourSets::colourBlind ? LegendPlaces::centre : LegendPlaces::rightCentre;
    chart.mark.corner = Corners::bottomRight;
    return chart;
}

ChartContent longNames() {
    ChartContent chart = values();
    const std::string name = "<b>&amp; Schulen</b> \xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D \xE5\xAD\xA6\xE6\xA0\xA1 "
                             "with a name of sixty letters in all";
    chart.x.title = "Number of " + name + " per condition";
    chart.legend.title = "Number of " + name;
    chart.groups[0].lines[0].label = "1234567 " + name + " per condition";
    chart.mark.details =
        "Power = 82.4%\nNumber of " + name + " = 15 x 2\nNumber of " + name + " = 20 x 2\nCost = 123,000";
    chart.header = {"Power as a function of Number of " + name + " and Number of " + name, name + name};
    chart.required->text = "Required power of " + name;
    chart.footerSize = TextSizes::veryLarge;
    chart.footerBold = true;
    return chart;
}

struct Sample {
    QString name;
    ChartContent content;
};

bool write(const QString& path, const std::string& bytes) {
    QFile file(path);
    return file.open(QIODevice::WriteOnly) &&
           file.write(bytes.data(), static_cast<qint64>(bytes.size())) == static_cast<qint64>(bytes.size());
}

bool drawOnScreen(const QDir& folder, const Sample& sample, bool dark) {
    ChartPlot plot;
    plot.resize(1132, 520);
    plot.setLook(ChartLook::of(sample.content.colours, dark));
    plot.setContent(sample.content);
    plot.show();
    QCoreApplication::processEvents();
    return plot.grab().save(folder.filePath(sample.name + (dark ? "-dark.png" : ".png")));
}

bool drawPictures(const QDir& folder, const Sample& sample) {
    QtChart chart;
    const std::tuple<PictureFormats, PictureSizes, QString> kinds[] = {
        {PictureFormats::png, PictureSizes::page, "-page.png"},
        {PictureFormats::jpg, PictureSizes::slide, "-slide.jpg"},
        {PictureFormats::svg, PictureSizes::page, "-page.svg"},
        {PictureFormats::pdf, PictureSizes::slide, "-slide.pdf"}};
    return std::all_of(std::begin(kinds), std::end(kinds), [&](const auto& kind) {
        const auto& [format, size, ending] = kind;
        return write(folder.filePath(sample.name + ending), chart.picture(sample.content, format, size));
    });
}

}  // namespace

int main(int argc, char** argv) {
    QApplication qt(argc, argv);
    if (argc != 2) {
        std::cerr << "usage: lorvane-charts FOLDER\n";
        return 2;
    }
    const Sample samples[] = {{"chart-one-line", plainOne()},
                              {"chart-cost", content(3)},
                              {"chart-values", values()},
                              {"chart-reversed", reversed()},
                              {"chart-gaps", gaps()},
                              {"chart-colours-1", five(ColourSets::usual)},
                              {"chart-colours-2", five(ColourSets::colourBlind)},
                              {"chart-colours-3", five(ColourSets::blackAndWhite)},
                              {"chart-long-names", longNames()}};
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    for (const Sample& sample : samples)
        if (!drawOnScreen(folder, sample, false) || !drawOnScreen(folder, sample, true) ||
            !drawPictures(folder, sample)) {
            std::cerr << "cannot draw " << sample.name.toStdString() << '\n';
            return 1;
        }
    return 0;
}
