// Manuals from their Markdown to the pages of a file.
#include <gtest/gtest.h>

#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <map>

#include "manual/manual_document.h"
#include "manual/manual_problem.h"
#include "manual/source_list.h"
#include "qt/qt_document_press.h"

namespace lorvane {
namespace {

constexpr const char* sourceFile = "adams2004 | Adams et al. 2004 | Adams G. *Patterns*. 2004.\n\n# others\n"
                                   "baker1999|Baker 1999|Baker B. Notes_1_. 1999.\n";

QString answerOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished()) << program.toStdString() << " is missing";
    return QString::fromUtf8(process.readAllStandardOutput());
}

class Manual : public testing::Test {
protected:
    Manual() {
        press.start(PageSetup());
        QImage picture(480, 240, QImage::Format_RGB32);
        picture.fill(Qt::red);
        picture.save(folder.filePath("window.png"));
        QFile other(folder.filePath("other.md"));
        EXPECT_TRUE(other.open(QIODevice::WriteOnly) && other.write("# Other\n\n## Its part\n") > 0);
    }

    Document documentOf(const std::string& markdown) {
        const std::string path = folder.filePath("text.md").toStdString();
        const ManualText text(path, withSources(markdown, sourcesOf(sourceFile, "sources.txt"), path));
        return manualOf(text, "Version 7", press);
    }

    /// What is wrong with a text, without the folder.
    std::string problemOf(const std::string& markdown) {
        try {
            documentOf(markdown);
            return "";
        } catch (const ManualProblem& problem) {
            return std::string(problem.what()).substr(folder.path().toStdString().size() + 1);
        }
    }

    QString fileOf(const std::string& markdown) {
        QFile file(folder.filePath("text.pdf"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray::fromStdString(press.pdf(documentOf(markdown))));
        return file.fileName();
    }

    const QTemporaryDir folder;
    QtDocumentPress press;
};

constexpr const char* sample = R"(# The sample

A **bold** word, `code`, [below](#lists-and-more), [outside](https://example.org/a_b) and [a file](other.md#its-part),
as {cite baker1999} and (see {cite adams2004}) tell.

| Name | Meaning |
|------|--------:|
| alpha | the *first* letter |
|  |  |
| omega | |

## Lists and more

- an item
  - one below
- another

1. counted

    lambda = sqrt(H / 2)

    D = 1

![The window](window.png)

## Sources

{sources}
)";

TEST_F(Manual, BecomesPagesWithBookmarksLinksAndPictures) {
    const QString path = fileOf(sample);
    const QString text = answerOf("pdftotext", {"-layout", path, "-"}).simplified();
    for (const char* words :
         {"The sample Version 7 A bold word, code, below, outside and a file, as Baker 1999 and (see Adams "
          "et al. "
          "2004) tell.",
          "Name Meaning alpha the first letter omega Lists",
          "• an item • one below • another 1. counted lambda",
          "The window Sources • Adams G. *Patterns*. 2004. • Baker B. Notes_1_. 1999.", "Page 1 of 1"})
        EXPECT_TRUE(text.contains(QString::fromUtf8(words))) << words << " in " << text.toStdString();
    EXPECT_TRUE(answerOf("pdfimages", {"-list", path}).contains("480   240"));
    EXPECT_TRUE(answerOf("pdfinfo", {path}).contains("The sample"));
    const QString marked = answerOf("pdftohtml", {"-xml", "-i", "-stdout", path});
    EXPECT_TRUE(marked.contains(R"(<a href="https://example.org/a_b">outside</a>)"));
    EXPECT_TRUE(marked.contains(R"(text.html#1">below</a>)"));
    EXPECT_TRUE(
        marked.section("<outline>", 1)
            .simplified()
            .startsWith(
                R"(<item page="1">The sample</item> <item page="1">Lists and more</item> <item page="1">Sources</item>)"));
}

TEST_F(Manual, LinksToEachOfTheHeadingsOfTheSameWords) {
    const Document document = documentOf("# A\n\n## B\n\nText.\n\n## B\n\n[a](#b) and [b](#b-1)\n");
    std::vector<std::string> links;
    for (const DocumentStep& step : document.steps) {
        if (const auto* paragraph = std::get_if<step::Paragraph>(&step)) {
            for (const TextSpan& span : paragraph->spans)
                links.push_back(span.link);
        }
    }
    EXPECT_EQ(links, (std::vector<std::string>{"#1", "#2"}));
}

TEST_F(Manual, PartsALongTableBelowItsHead) {
    std::string markdown = "# Long\n\n| Row | Value |\n|---|---|\n";
    for (int row = 1; row <= 90; ++row)
        markdown += "| row " + std::to_string(row) + " | value |\n";
    const Document document = documentOf(markdown);
    int rows = 0;
    int tables = 0;
    for (const DocumentStep& step : document.steps) {
        if (const auto* table = std::get_if<DocumentTable>(&step)) {
            EXPECT_EQ(table->rows.front().front().text, "Row");
            rows += static_cast<int>(table->rows.size()) - 1;
            ++tables;
        }
    }
    EXPECT_EQ(rows, 90);
    EXPECT_EQ(tables, 3);
    const auto pages = press.start(document.page);
    for (const DocumentStep& step : document.steps)
        pages->send(step);
    EXPECT_EQ(pages->pages(), tables);
}

TEST_F(Manual, TellsFileAndLineOfWhatIsWrong) {
    const std::map<std::string, std::string> problems = {
        {"# A\n\nSee {cite adams2004}.\n", "text.md:3: Sources are cited, but no line {sources} lists them."},
        {"# A\n\n{cite nobody}\n{sources}",
         R"(text.md:3: The source "nobody" is not in the list of sources.)"},
        {"{cite adams2004", "text.md:1: A citation has no closing brace in its line."},
        {"# A\n\nSee\n[it](#b).\n", R"(text.md:4: There is no heading for the link "#b".)"},
        {"## B\n\n## B\n\n[a](#b) [b](#b-1)\n\n[it](#b-2)",
         R"(text.md:7: There is no heading for the link "#b-2".)"},
        {"# A\n\n[it](missing.md)\n", R"(text.md:3: There is no file for the link "missing.md".)"},
        {"[it](other.md#part)", R"(text.md:1: The file of the link "other.md#part" has no such heading.)"},
        {"# A\n\n![It](other.md)\n", R"(text.md:3: The picture "other.md" does not exist or is none.)"},
        {sample, ""}};
    for (const auto& [markdown, sentence] : problems)
        EXPECT_EQ(problemOf(markdown), sentence);
    EXPECT_THROW(sourcesOf("a | b\n", "sources.txt"), ManualProblem);
    EXPECT_THROW(sourcesOf("a|b|c\na|d|e\n", "sources.txt"), ManualProblem);
}

}  // namespace
}  // namespace lorvane
