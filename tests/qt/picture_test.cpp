// Pictures of charts as files. These tests make no application: a command line has none.
#include <gtest/gtest.h>

#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include "qt/qt_chart.h"
#include "sample_chart.h"

namespace lorvane {
namespace {

constexpr const char* markup = "<b>&amp; Bold</b>";

ChartContent sheet() {
    ChartContent chart = sampleChart();
    chart.header = {std::string("Power of ") + markup, "Reading grant"};
    chart.footer = {"Two-level design.", "Unit cost = $2,500 (Treated)", "", "d = 0.300"};
    chart.legend = {markup, LegendPlaces::rightBottom, true};
    chart.mark = {true, 1, 4, "Power = 25.0%\nSchools = 5 x 2", true, Corners::topLeft};
    chart.required = ChartValue{0.8, "Required power"};
    chart.own = ChartValue{5, "In the study"};
    return chart;
}

const char* const words[] = {"Power of <b>&amp; Bold</b>",
                             "Reading grant",
                             "Two-level design.",
                             "Unit cost = $2,500 (Treated)",
                             "d = 0.300",
                             "line 2",
                             "Power = 25.0%",
                             "Schools = 5 x 2",
                             "Required power",
                             "In the study",
                             "Number of schools"};

QByteArray pictureOf(const ChartContent& content, PictureFormats format, PictureSizes size) {
    return QByteArray::fromStdString(QtChart().picture(content, format, size));
}

QString answerOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished()) << program.toStdString() << " is missing";
    return QString::fromUtf8(process.readAllStandardOutput());
}

TEST(Pictures, HaveTheirSizeAndDots) {
    const std::tuple<PictureFormats, const char*, PictureSizes, QSize> rows[] = {
        {PictureFormats::png, "PNG", PictureSizes::page, {1950, 1350}},
        {PictureFormats::jpg, "JPG", PictureSizes::page, {1950, 1350}},
        {PictureFormats::png, "PNG", PictureSizes::slide, {3000, 1688}}};
    for (const auto& [format, name, size, dots] : rows) {
        const QImage image = QImage::fromData(pictureOf(sheet(), format, size), name);
        EXPECT_EQ(image.size(), dots) << name;
        EXPECT_NEAR(image.dotsPerMeterX() * 0.0254, 300, 0.5) << name;
        EXPECT_NEAR(image.dotsPerMeterY() * 0.0254, 300, 0.5) << name;
        EXPECT_EQ(image.pixelColor(3, 3), QColor(Qt::white));
        int inked = 0;
        for (int x = 0; x < image.width(); ++x)
            inked += image.pixelColor(x, image.height() / 2).lightness() < 200;
        EXPECT_GT(inked, 10) << "the plot is in the middle";
    }
}

TEST(Pictures, OfVectorsHoldTheirTextsAsText) {
    QXmlStreamReader svg(pictureOf(sheet(), PictureFormats::svg, PictureSizes::page));
    QString title;
    QStringList texts;
    while (!svg.atEnd()) {
        if (svg.readNext() != QXmlStreamReader::StartElement)
            continue;
        EXPECT_NE(svg.name(), QLatin1String("image"));
        if (svg.name() == QLatin1String("svg")) {
            EXPECT_EQ(svg.attributes().value(QLatin1String("width")), QLatin1String("165.1mm"));
        } else if (svg.name() == QLatin1String("title")) {
            title = svg.readElementText();
        } else if (svg.name() == QLatin1String("text")) {
            texts << svg.readElementText().trimmed();
        }
    }
    EXPECT_FALSE(svg.hasError()) << svg.errorString().toStdString();
    EXPECT_EQ(title.toStdString(), words[0]);

    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("chart.pdf"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(pictureOf(sheet(), PictureFormats::pdf, PictureSizes::slide));
    file.close();
    EXPECT_TRUE(answerOf(QStringLiteral("pdfinfo"), {path}).contains(QLatin1String("720 x 405 pts")));
    const QString pdf = answerOf(QStringLiteral("pdftotext"), {path, QStringLiteral("-")});
    for (const char* word : words) {
        EXPECT_TRUE(texts.contains(QString::fromUtf8(word))) << word;
        EXPECT_TRUE(pdf.contains(QString::fromUtf8(word))) << word;
    }
}

TEST(Pictures, LeaveRoomToThePlotUnderAnyFooter) {
    ChartContent chart = sheet();
    const auto inked = [&] {
        const QImage image = QImage::fromData(pictureOf(chart, PictureFormats::png, PictureSizes::slide));
        const QColor line(0x2F3FA6);
        int rows = 0;
        for (int y = 0; y < image.height(); ++y) {
            bool found = false;
            for (int x = 0; x < image.width() * 3 / 5; x += 2)
                found = found || image.pixelColor(x, y) == line;
            rows += found;
        }
        return rows;
    };
    EXPECT_GT(inked(), 300);
    chart.footer = {std::string(150, 'n'), std::string(150, 'n'), std::string(700, 'n'),
                    std::string(150, 'n')};
    chart.footerSize = TextSizes::veryLarge;
    chart.footerBold = true;
    EXPECT_GT(inked(), 250);
}

}  // namespace
}  // namespace lorvane
