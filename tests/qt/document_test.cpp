// Documents on their pages: what stands where, and what is drawn. A small application stands behind each
// test.
#include <gtest/gtest.h>

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <map>

#include "qt/document_pages.h"
#include "qt/offscreen_application.h"
#include "sample_document.h"

namespace lorvane {
namespace {

constexpr double margin = 72;
constexpr double bottom = 720;
constexpr double dotsPerPoint = 2;

class Pages : public testing::Test {
protected:
    Pages() { application_.ensure(); }

private:
    OffscreenApplication application_;
};

QImage pictureOf(const DocumentPages& pages, int page) {
    QImage image((pages.paper() * dotsPerPoint).toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(dotsPerPoint, dotsPerPoint);
    pages.paint(painter, page);
    return image;
}

/// Dots darker than a lightness in a place that is told in points.
int dotsIn(const QImage& image, const QRectF& place, int lightness = 250) {
    const QRect dots =
        QRectF(place.topLeft() * dotsPerPoint, place.size() * dotsPerPoint).toRect() & image.rect();
    int found = 0;
    for (int y = dots.top(); y <= dots.bottom(); ++y) {
        for (int x = dots.left(); x <= dots.right(); ++x)
            found += image.pixelColor(x, y).lightness() < lightness;
    }
    return found;
}

std::string lines(int count) {
    std::string text = "line";
    for (int i = 1; i < count; ++i)
        text += "\nline";
    return text;
}

/// How many lines of a text each page holds; one alone only where the text has less than three.
std::map<int, int> linesByPage(const DocumentPages& pages, const TextPlace& text) {
    std::map<int, int> found;
    const auto spots = pages.spotsOf(text);
    for (const auto& [page, place] : spots) {
        ++found[page];
        EXPECT_TRUE(place.top() > margin - 0.01 && place.bottom() < bottom + 0.01);
    }
    for (const auto& [page, count] : found)
        EXPECT_TRUE(spots.size() < 3 || count > 1) << "page " << page << " of " << spots.size() << " lines";
    return found;
}

TEST_F(Pages, GiveLinesTheSameHeightsInAllFonts) {
    for (const char* font : {"Calibri", "Arial", "Times New Roman", "Some font that is nowhere"}) {
        DocumentPages pages(PageSetup{.font = font});
        const auto moved = [&pages](std::initializer_list<DocumentStep> steps) {
            const double before = pages.Y1();
            for (const DocumentStep& step : steps)
                pages.send(step);
            return (pages.Y1() - before) * 72;
        };
        EXPECT_EQ(moved({step::Text{"\n\n"}}), 0) << "at the top of a page";
        EXPECT_NEAR(moved({step::FontBold{true}, step::Paragraph{"Heading"}}), 14.245, 0.01) << font;
        EXPECT_NEAR(moved({step::FontSize{8}, step::Text{"\n"}}), 4, 0.01);
        EXPECT_NEAR(moved({step::FontSize{11}, step::FontBold{false}, step::Paragraph{"\xD8\xA7\nb\nc"}}),
                    42.735, 0.01);
        EXPECT_NEAR(moved({step::Text{"\n"}}), 11, 0.01);
        pages.send(step::FontSize{9.5});
        EXPECT_NEAR(pages.heightOf(sampleTable()) * 72, 2 * 18.34 + 3 * 29.93 + 0.75, 0.05) << font;
        EXPECT_NEAR(moved({step::NewPage{}, step::NewPage{}}), -14.245 - 4 - 42.735 - 11, 0.01);
        EXPECT_EQ(pages.pages(), 2) << "an empty page is not left";
    }
}

TEST_F(Pages, KeepHeadingsWithTheirTextAndLinesTogether) {
    for (int above = 1; above <= 52; ++above) {
        for (int below = 0; below <= 5; ++below) {
            SampleDocument made;
            made.add(step::Paragraph{lines(above)}, step::Text{"\n"});
            made.heading("Part", 14).add(step::Text{"\n"});
            made.heading("Section", 12);
            TextPlace place{made.document.steps.size(), 0, 0, 0, 10000};
            if (below > 0) {
                made.add(step::Paragraph{lines(below)});
            } else {
                made.add(sampleTable());
                place.row = place.column = 1;
            }
            const DocumentPages pages(made.document);
            const auto text = linesByPage(pages, place);
            EXPECT_FALSE(linesByPage(pages, {0, 0, 0, 0, 10000}).empty());
            ASSERT_FALSE(text.empty());
            const auto [page, first] = *text.begin();
            EXPECT_GE(first, std::min(2, below)) << above << " lines above";
            ASSERT_EQ(pages.headings().size(), 2);
            double top = 0;
            for (const DocumentPages::Heading& heading : pages.headings()) {
                EXPECT_EQ(heading.page, page) << above << " lines above, " << below << " below";
                EXPECT_EQ(heading.isPart, heading.text == QLatin1String("Part"));
                EXPECT_GT(heading.top, top);
                top = heading.top;
            }
            EXPECT_LT(top, pages.spotsOf(place).front().place.top());
        }
    }
}

TEST_F(Pages, KeepTablesWholeWhereTheyWereMeasured) {
    DocumentTable tall = sampleTable(std::string(200, 'n'), 4);
    tall.columnWidths[0] = 0.25;
    DocumentTable narrow = sampleTable();
    narrow.columnWidths[2] = 0.45;
    for (const auto& [table, stride] : {std::pair(narrow, 1), std::pair(tall, 23)}) {
        for (int above = 0; above <= 46; above += stride) {
            DocumentPages pages((PageSetup()));
            if (above > 0)
                pages.send(step::Paragraph{lines(above)});
            pages.send(step::FontSize{9.5});
            const double height = pages.heightOf(table);
            const bool fits = pages.Y1() + height <= bottom / 72 && above != 45;  // 45 lines fill the page
            const double top = fits ? pages.Y1() : 1;
            const int page = pages.pages() + (fits ? 0 : 1);
            pages.send(table);
            EXPECT_EQ(pages.pages(), page) << above;
            const std::size_t last = table.rows.size() - 1;
            for (const std::size_t row : {last, std::size_t{1}}) {
                const auto spots = pages.spotsOf({above > 0 ? 2u : 1u, row, 2, 0, 9});
                ASSERT_EQ(spots.size(), 1) << "a number that is a little too long is not broken";
                EXPECT_EQ(spots[0].page, page);
                EXPECT_GT(spots[0].place.top(), top * 72);
                EXPECT_LT(spots[0].place.bottom(), (top + height) * 72);
            }
            EXPECT_LE(height, 9);
            pages.send(step::FontSize{0.1});
            EXPECT_NEAR(pages.Y1(), top + height, 1e-6);
        }
    }
}

TEST_F(Pages, HoldAnyNameInsideMarginsAndColumns) {
    std::string marks = "Z";
    for (int i = 0; i < 40; ++i)
        marks += "\xCC\x81";
    const std::string names[] = {
        std::string(200, 'W'), marks, "{a\\b}\x01\t\xE2\x80\xAE\xFF<b>" + std::string(1, '\0'),
        "\xD7\x91\xD6\xBC\xD7\xAA\xD7\x99 \xD8\xA7\xD9\x84\xD9\x85\xD9\x8E\xD9\x91\xEF\xB7\xBA"};
    for (const std::string& name : names) {
        SampleDocument made;
        made.add(step::Paragraph{name}, sampleTable(name));
        made.section(name, std::string(name).append(" ").append(name));
        const DocumentPages pages(made.document);
        const QImage image = pictureOf(pages, 1);
        const QRectF paper(QPointF(), pages.paper());
        EXPECT_EQ(dotsIn(image, QRectF(0, 0, paper.width(), margin - 3)), 0) << name;
        EXPECT_EQ(dotsIn(image, QRectF(0, 0, margin - 0.5, paper.height())), 0) << name;
        EXPECT_EQ(dotsIn(image, QRectF(paper.width() - margin + 1, 0, margin, paper.height())), 0) << name;
        EXPECT_EQ(dotsIn(image, QRectF(0, bottom + 1, paper.width(), 20)), 0) << name;
        EXPECT_GT(dotsIn(image, QRectF(0, bottom, paper.width(), margin)), 50) << "the number of the page";
        const auto cell = pages.spotsOf({1, 2, 0, 0, name.size()});
        ASSERT_FALSE(cell.empty());
        const double right = margin + 1.2 * 72;
        const QRectF beside(right - 3, cell[0].place.top(), 5,
                            cell.back().place.bottom() - cell[0].place.top());
        EXPECT_EQ(dotsIn(image, beside, 0x80), 0) << "between a name and its neighbour, " << name;
    }
}

TEST_F(Pages, DrawLinesAroundCellsAndNoneInThem) {
    DocumentPages pages((PageSetup()));
    pages.send(step::FontSize{9.5});
    pages.send(sampleTable());
    const QImage image = pictureOf(pages, 1);
    const double between = margin + 2.1 * 72;  // the second column and the third
    const double right = margin + 4.7 * 72;
    EXPECT_EQ(dotsIn(image, QRectF(between - 2, 73.5, 4, 3), 0x90), 0) << "one cell over both";
    EXPECT_GE(dotsIn(image, QRectF(between - 2, 92, 4, 3), 0x90), 6) << "a cell in each";
    EXPECT_EQ(dotsIn(image, QRectF(margin + 10, 80, 40, 24), 0x90), 0) << "one cell over two rows";
    EXPECT_GE(dotsIn(image, QRectF(right - 2, 74, 2, 100), 0x90), 200) << "at the right of all";
    EXPECT_EQ(dotsIn(image, QRectF(right + 0.5, 70, 10, 200)), 0);
    EXPECT_EQ(image.pixelColor(static_cast<int>(between) * 2, 75 * 2), QColor(255, 255, 150));
}

TEST_F(Pages, TellWhereATextStands) {
    DocumentPages pages((PageSetup()));
    const std::string text = "\x01\xC3\xA9 begin " + std::string(150, 'm') + " end\nlast";
    pages.send(step::Paragraph{text});
    const QImage image = pictureOf(pages, 1);
    const auto spotOf = [&](const std::string& word) {
        return pages.spotsOf({0, 0, 0, text.find(word), word.size()});
    };
    double below = 0;
    for (const char* word : {"begin", "end", "last"}) {
        const auto spots = spotOf(word);
        ASSERT_EQ(spots.size(), 1);
        const QRectF place = spots[0].place;
        EXPECT_GT(dotsIn(image, place), 50) << word;
        for (const double beside : {place.left() - 2, place.right() + 0.5})
            EXPECT_EQ(dotsIn(image, QRectF(beside, place.top(), 1.5, place.height())), 0) << word;
        EXPECT_GT(place.top(), below - 1) << word;
        below = place.bottom();
    }
    EXPECT_EQ(spotOf(std::string(150, 'm')).size(), 3);
    EXPECT_TRUE(pages.spotsOf({1, 0, 0, 0, 5}).empty());
}

std::string pictureFile(QSize size) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::darkBlue);
    QBuffer bytes;
    image.save(&bytes, "PNG");
    return bytes.data().toStdString();
}

TEST_F(Pages, KeepAPictureWithItsCaptionAndInThePage) {
    DocumentPages pages(PageSetup{});
    pages.send(step::Paragraph{lines(30)});
    pages.send(DocumentPicture{pictureFile({300, 100}), 3, "A caption"});
    pages.send(DocumentPicture{pictureFile({300, 900}), 4, "Of a high one"});
    pages.send(DocumentPicture{pictureFile({900, 100}), 20});
    EXPECT_EQ(pages.pages(), 3);
    const QImage first = pictureOf(pages, 1);
    const double top = margin + 30 * 11 * 1.295;
    EXPECT_EQ(dotsIn(first, {margin, top + 2, 200, 50}, 100), 400 * 100);
    EXPECT_EQ(dotsIn(first, {margin + 217, top + 2, 200, 60}), 0) << "it is 3 inches wide";
    EXPECT_GT(dotsIn(first, {margin, top + 72, 60, 12}), 100) << "the caption stands below";
    EXPECT_EQ(dotsIn(pictureOf(pages, 2), {0, bottom, 612, 20}), 0) << "the high one got smaller";
    EXPECT_EQ(dotsIn(pictureOf(pages, 3), {540.5, margin, 60, 100}), 0) << "so did the wide one";
}

TEST_F(Pages, HangMarksAndTellWhereLinksStand) {
    DocumentPages pages(PageSetup{});
    const std::string text = "K\xC3\xB6ln is a link\nand another";
    pages.send(step::Paragraph{text, 0.5, "1.", false, {{.from = 11, .length = 8, .link = "#0"}}});
    ASSERT_EQ(pages.links().size(), 2) << "one a line";
    EXPECT_EQ(pages.links().front().target, "#0");
    EXPECT_EQ(pages.links().back().spot.place.left(), margin + 36);
    EXPECT_EQ(pages.links().back().spot.place.width(), pages.spotsOf({0, 0, 0, 16, 3}).front().place.width());
    const QImage image = pictureOf(pages, 1);
    EXPECT_GT(dotsIn(image, {margin + 18, margin, 14, 14}), 10);
    EXPECT_EQ(dotsIn(image, {margin + 18, margin + 15, 17, 14}), 0) << "the second line has no mark";
}

}  // namespace
}  // namespace lorvane
