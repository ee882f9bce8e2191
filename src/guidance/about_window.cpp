// What the program tells of itself.
#include "guidance/about_window.h"

#include <algorithm>
#include <utility>

namespace lorvane {

namespace {

constexpr const char* licence =
    "Free software under the GNU General Public License, version 3 or later. It comes with no warranty.";
// Whoever installs the program installs them; it brings none.
constexpr const char* fonts =
    "Inter and Carlito (OFL 1.1), Liberation (OFL 1.1; before version 2 GPL 2 with the "
    "exception for fonts), where they are installed";
constexpr const char* year = "2026";

struct LibraryRow {
    const char* name;
    const char* licence;
};

constexpr LibraryRow libraryRows[] = {{"Qt", "LGPL 3"},       {"QCustomPlot", "GPL 3"},
                                      {"qpdf", "Apache 2.0"}, {"libxlsxwriter", "BSD"},
                                      {"CLI11", "BSD"},       {"nlohmann/json", "MIT"}};

std::string versionOf(const ProgramFacts& facts, std::string_view library) {
    const auto found = std::find_if(facts.libraries.begin(), facts.libraries.end(),
                                    [&](const LibraryVersion& row) { return row.library == library; });
    return found == facts.libraries.end() ? "" : " " + found->version;
}

std::string librariesOf(const ProgramFacts& facts) {
    std::string words;
    for (const LibraryRow& row : libraryRows) {
        const std::string before = words.empty() ? "" : ", ";
        words += before + row.name + versionOf(facts, row.name) + " (" + row.licence + ")";
    }
    return words;
}

std::string citationOf(const ProgramFacts& facts) {
    return "Lorvane, version " + facts.version +
           ": power and cost of cluster-randomized trials. Computer program, " + year + ".";
}

}  // namespace

AboutWindow::AboutWindow(Design& design, const ProgramFacts& facts, std::string licenceFile,
                         Clipboard& clipboard, Shell* shell)
    : design_(design), licenceFile_(std::move(licenceFile)), clipboard_(clipboard), shell_(shell) {
    pnlVersion_.Caption = "Version " + facts.version;
    facts_ = {{"pnlLicence", {"Licence"}, {licence}},
              {"pnlLibraries", {"Libraries"}, {librariesOf(facts)}},
              {"pnlFonts", {"Fonts"}, {fonts}},
              {"pnlCite", {"How to cite"}, {citationOf(facts)}}};
}

void AboutWindow::registerNames(ControlRegistry& registry) const {
    registry.add("frmAbout.Visible", &isOpen_);
    registry.add("frmAbout.pnlVersion", pnlVersion_);
    for (const AboutFact& fact : facts_)
        registry.add("frmAbout." + fact.name, fact.text);
}

void AboutWindow::registerEvents(EventRegistry& events) {
    const auto copy = [this](std::string text, const char* done) {
        clipboard_.put({std::move(text)});
        design_.tellStatus(done);
    };
    const auto close = [this] { isOpen_ = false; };
    events.onClick("frmAbout.cmdLicence", [this] { openLicence(); });
    events.onClick("frmAbout.cmdCite", [this, copy] {
        copy(facts_.back().text.Caption, "How to cite Lorvane has been copied.");
    });
    events.onClick("frmAbout.cmdCopyAll",
                   [this, copy] { copy(allWords(), "What is told of Lorvane has been copied."); });
    events.onClick("frmAbout.cmdClose", close);
    events.onClose("frmAbout", close);
}

void AboutWindow::openLicence() {
    if (shell_ == nullptr || !shell_->open(licenceFile_))
        design_.ask(
            failureMessage(pnlTitle_.Caption, "No program of this system opens the licence. It is the file " +
                                                  licenceFile_ + "."));
}

std::string AboutWindow::allWords() const {
    std::string words = pnlName_.Caption + ": " + pnlSense_.Caption + "\n" + pnlVersion_.Caption + "\n";
    for (const AboutFact& fact : facts_)
        words += fact.heading.Caption + ": " + fact.text.Caption + "\n";
    return words;
}

}  // namespace lorvane
