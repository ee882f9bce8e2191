// Reports of whole studies. A script in golden/ makes a report, and the text beside it holds how that report
// must read. LORVANE_WRITE_GOLDEN=1 writes the texts anew; read what changed before you keep them.
#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "cli/drive.h"
#include "reporting/document_text.h"
#include "reporting/make_report.h"
#include "reporting/recording_surface.h"
#include "reporting/report_generate.h"
#include "reporting/report_sections.h"
#include "reporting/report_tables.h"
#include "support/test_platform.h"

namespace lorvane {
namespace {

using std::filesystem::path;

std::string contentsOf(const path& file) {
    std::ostringstream text;
    text << std::ifstream(file, std::ios::binary).rdbuf();
    return text.str();
}

// A program with the report that a script made.
struct MadeStudy {
    explicit MadeStudy(const path& script) {
        std::ifstream lines(script);
        for (std::string line; std::getline(lines, line);) {
            const std::string answer = answerTo(line, session);
            EXPECT_TRUE(answer.empty() || answer == "{\"ok\":true}") << line << "\n" << answer;
        }
    }
    explicit MadeStudy(const char* name)
        : MadeStudy(path(LORVANE_GOLDEN) / (name + std::string(".session"))) {}

    const Document& document() const { return application.report().document(); }
    StudyFacts facts() const { return {application.session().state()}; }

    TestPlatform outside;
    Application application{outside.platform()};
    DriveSession session{application, outside.library, outside.messages};
};

std::vector<path> scripts() {
    std::vector<path> found;
    for (const auto& entry : std::filesystem::directory_iterator(LORVANE_GOLDEN)) {
        if (entry.path().extension() == ".session")
            found.push_back(entry.path());
    }
    return found;
}

class Golden : public ::testing::TestWithParam<path> {};

TEST_P(Golden, ReadsAsItMust) {
    const MadeStudy study(GetParam());
    const std::string text = plainTextOf(study.document());
    const path file = path(GetParam()).replace_extension(".txt");
    if (std::getenv("LORVANE_WRITE_GOLDEN") != nullptr)
        std::ofstream(file, std::ios::binary) << text;
    EXPECT_EQ(text, contentsOf(file));
}

INSTANTIATE_TEST_SUITE_P(All, Golden, ::testing::ValuesIn(scripts()),
                         [](const auto& named) { return named.param.stem().string(); });

// Whether a half of the report holds a section, and so what its sentences say.
bool holds(const Document& report, Halves half, const std::string& text) {
    const std::size_t middle = stepsOfSummary(report);
    const std::size_t from = half == Halves::summary ? 0 : middle;
    const std::size_t end = half == Halves::summary ? middle : report.steps.size();
    for (std::size_t i = from; i < end; ++i) {
        const auto* paragraph = std::get_if<step::Paragraph>(&report.steps[i]);
        if (paragraph != nullptr && paragraph->text == text)
            return true;
    }
    return false;
}

// Takes away the sentences that a study tells.
void strike(std::vector<Block>& blocks, const StudyFacts& facts) {
    for (Block& block : blocks) {
        std::erase_if(block.sentences, [&](const Sentence& sentence) {
            const ReportSection alone{{}, {{block.levels, "", {sentence}}}, {}};
            return !sectionText(alone, Halves::summary, facts).text.empty();
        });
    }
}

// A sentence that no study here tells is one that nobody has read, or that no study can ever tell.
TEST(GoldenTest, TellsEverySentenceSomewhere) {
    std::vector<ReportSection> untold;
    for (const ReportSection* section : reportSections())
        untold.push_back(*section);
    for (const path& script : scripts()) {
        const MadeStudy study(script);
        for (std::size_t i = 0; i < untold.size(); ++i) {
            for (const Halves half : {Halves::summary, Halves::detail}) {
                const SectionText told = sectionText(*reportSections()[i], half, study.facts());
                if (holds(study.document(), half, told.text))
                    strike(half == Halves::summary ? untold[i].summary : untold[i].detail, study.facts());
            }
        }
    }
    for (const ReportSection& section : untold) {
        for (const auto* half : {&section.summary, &section.detail}) {
            for (const Block& block : *half) {
                for (const Sentence& sentence : block.sentences)
                    ADD_FAILURE() << (half == &section.summary ? "summary" : "detail") << " of \""
                                  << (section.heading.empty() ? "" : section.heading.front().text)
                                  << "\", never told: " << sentence.text;
            }
        }
    }
}

// Sentences of studies with four levels, written by hand.
TEST(GoldenTest, TellsFourLevelsInOrder) {
    const std::pair<const char*, std::vector<const char*>> wanted[] = {
        {"means_four_levels",
         {"The study will employ a four-level hierarchical design, using students within classes within "
          "schools within districts. students are nested within classes, classes are nested within schools, "
          "schools are nested within districts, and Districts are randomized (see table). ",
          "The ICCs for districts, schools, and classes, are 0.05, 0.03, and 0.02, respectively. If the "
          "scores "
          "for students span 40.00 points, these ICCs imply that the means for districts, for schools, and "
          "for classes, span ",
          "(the standard deviation of scores for students across classes, schools, and districts).\n",
          "so that V(districts) + V(schools) + V(classes) + V(students) = V(total). Equivalently, V(total) "
          "is "
          "the variance of scores for students across all districts.\n",
          "between-clusters (districts, schools, and classes). ",
          "is composed of variance of districts means (5.0%), variance of schools means within districts "
          "(3.0%), variance of classes means within schools (2.0%) and variance of students (90.0%), with "
          "these values summing to 100%. ",
          "\nFinally, the scores for students span 40.00 points (for example, 0.00 to 40.00).\n",
          "\nThe means for classes across districts and schools span ",
          "\nThe scores for students across districts, schools, and classes span "}},
        {"means_four_levels_blocked",
         {"The study will employ a four-level  design, ",
          "\nThe effect size will range from -0.09 to 0.39 across counties.\nThe effect size will range (for "
          "example) from -0.05 to 0.35 across practices (within counties).\nThe effect size will range (for "
          "example) from 0.01 to 0.29 across doctors (within practices).",
          "\nThe effect sizes for doctors across counties and practices span ",
          "the costs for counties, practices, doctors, and patients will total "}},
        {"risks_four_levels_blocked",
         {"\nV(firms) is the variance of mean risk across firms.\nV(factories) is the variance of mean risk "
          "across factories.\nV(teams) is the variance of mean risk across teams.\nV(workers) is the "
          "variance of the risk across workers.\n",
          "The ICCs for firms, factories, and teams, are 0.03, 0.02, and 0.01, respectively. \nThese ICCs ",
          "Since the mean effect size is 0.040 the effect size will range from -0.049 to 0.129 across "
          "firms.\n"}}};
    for (const auto& [name, sentences] : wanted) {
        const std::string text = plainTextOf(MadeStudy(name).document());
        for (const char* sentence : sentences)
            EXPECT_NE(text.find(sentence), std::string::npos) << name << "\n" << sentence;
    }
}

// Numbers are never broken or made smaller for the sake of a name.
TEST(GoldenTest, LongNamesOfGroupsLeaveRoomForNumbers) {
    MadeStudy study("risks_four_levels_blocked");
    const std::string name(60, 'm');
    study.application.set(std::vector<Assignment>{{"txtGroupName(1)", name}, {"txtCostB(4)", 123456.0}});
    for (const char* font : {"Calibri", "Arial"}) {
        const PageSetup page{.font = font};
        const auto& [table, size] = ReportMainTable(study.facts(), page);
        const double digit = (page.font == "Arial" ? 0.556 : 0.507) * size / 72;
        const double padding = 9 * (size / 9.5) / 72;
        for (std::size_t row = table.headRows; row < table.rows.size(); ++row) {
            for (std::size_t column = 1; column < table.columnWidths.size(); ++column) {
                const std::string& text = table.rows[row][column].text;
                const auto points = std::count(text.begin(), text.end(), '.');
                const double digits = static_cast<double>(text.size()) - 0.5 * static_cast<double>(points);
                if (!text.empty() && text.find_first_not_of("0123456789.") == std::string::npos) {
                    EXPECT_LE(digits * digit + padding, table.columnWidths[column])
                        << font << " " << text << " in column " << column;
                }
            }
        }
    }
}

// Pages that fail when the first table comes.
struct FailingPress final : DocumentPress {
    struct Pages final : DocumentSurface {
        void send(const DocumentStep&) override {}
        double Y1() override { return 0; }
        double heightOf(const DocumentTable&) override { throw std::runtime_error("no table"); }
        int pages() override { return 1; }
    };
    std::unique_ptr<DocumentSurface> start(const PageSetup&) override { return std::make_unique<Pages>(); }
    std::string pdf(const Document&) override { return ""; }
    std::string picture(const Document&, int) override { return ""; }
    bool print(const Document&, std::optional<int>) override { return false; }
};

TEST(GoldenTest, AReportThatFailsIsClosedOnce) {
    FailingPress press;
    TestPlatform outside;
    SteadyClock clock;
    lorvane::Session session(outside.library, {"$", CurrencyPositions::before}, clock);
    MadeReport made;
    EXPECT_THROW(makeReport(session, {}, &press, made), std::runtime_error);
    const auto& steps = made.document.steps;
    ASSERT_FALSE(steps.empty());
    EXPECT_TRUE(std::holds_alternative<step::EndDoc>(steps.back()));
    EXPECT_EQ(std::count_if(steps.begin(), steps.end(),
                            [](const auto& each) { return std::holds_alternative<step::EndDoc>(each); }),
              1);
}

TEST(GoldenTest, TakesThePageOfTheStudy) {
    const MadeStudy study("means_two_levels_by_span");
    EXPECT_EQ(study.document().page.font, "Times New Roman");
    EXPECT_NEAR(study.document().page.width, 8.27, 0.005);
}

// A person waits for the report; what takes time is to be its pages.
TEST(GoldenTest, MakesTheLargestReportAtOnce) {
    using Clock = std::chrono::steady_clock;
    const MadeStudy study("means_four_levels_blocked");
    auto fastest = Clock::duration::max();
    for (int i = 0; i < 5; ++i) {
        Document document;
        RecordingSurface surface(document, nullptr);
        const auto start = Clock::now();
        ReportGenerate(study.application.session().state(), {.checklist = true}, document.page, surface);
        fastest = std::min(fastest, Clock::now() - start);
        EXPECT_GT(document.steps.size(), 100u);
    }
    RecordProperty("microseconds",
                   std::to_string(std::chrono::duration<double, std::micro>(fastest).count()));
    EXPECT_LT(fastest, std::chrono::milliseconds(20));
}

}  // namespace
}  // namespace lorvane
