// The report with its viewer: makes the document of the study as it stands, shows, saves, prints and copies
// it.
#pragma once

#include <optional>
#include <string>
#include <tuple>

#include "reporting/make_report.h"
#include "reporting/report_files.h"
#include "reporting/report_view.h"
#include "screen/design.h"
#include "screen/part.h"

namespace lorvane {

enum class EffectQuestion { ask, leaveOut };

/// Font, paper, costs, and the user's choice of spans.
using ReportSettings = std::tuple<int, PaperSizes, Inclusions, Inclusions>;

/// "frmPrint".
class ReportScreen final : public Part {
public:
    /// The screen must outlive it.
    ReportScreen(Design& design, const ReportOutside& outside)
        : design_(design), press_(outside.press), files_(design, outside) {}

    void registerNames(ControlRegistry& registry) const override;
    void registerEvents(EventRegistry& events) override;
    void follow(const Changed& changed) override;

    // Making ------------------------------------------------------------------------------------------------

    /// Makes a report and opens the viewer, unless it is refused.
    void open();

    /// Makes the report of the study as it stands, and writes it to the file where the mode asks for one and
    /// the name is not empty. False where it is refused; the report before it stays then. Throws
    /// ArithmeticFault.
    bool ReportMake(const std::string& fileName, ReportModes mode, EffectQuestion question);

    /// The report of the viewer anew, as the study stands now.
    void makeAgain();

    void setFont(int font);
    void setPaper(PaperSizes paper);
    void setCosts(Inclusions costs);
    void setSpans(Inclusions spans);
    void setChecklist(bool included);

    // Viewer ------------------------------------------------------------------------------------------------

    void goTo(int page);  ///< the nearest page that there is
    void topOfPage();
    void setZoom(Zooms zoom);
    /// The next larger (1) or smaller (-1) of the sizes on offer; 0 is the true size.
    void zoomBy(int direction);
    void find();
    void endFind();
    void findNext(int direction);
    void close();

    // Files -------------------------------------------------------------------------------------------------

    void SaveRTF();
    void SaveFilePDF();
    void copyPage();
    /// The summary as rich and plain text, for a protocol; made anew while the viewer is closed.
    void copySummary();
    void print(std::optional<int> page);

    // What there is -----------------------------------------------------------------------------------------

    const Document& document() const noexcept { return report_.document; }
    /// Counts the reports that were made.
    int revision() const noexcept { return revision_; }
    const ReportView& view() const noexcept { return view_; }
    bool isOpen() const { return design_.isOpen(WindowId::frmPrint); }
    bool hasReport() const noexcept { return view_.pages > 0; }
    bool hasChecklist() const noexcept { return extras_.checklist; }

    /// "Page 1 of 4", a line on the report, and how many matches there are.
    const Panel& caption() const noexcept { return caption_; }
    const Panel& pnlStatus() const noexcept { return pnlStatus_; }
    const TextBox& txtFind() const noexcept { return txtFind_; }
    const Panel& pnlFound() const noexcept { return pnlFound_; }
    static constexpr const char* title = "Report";
    static constexpr const char* findWords = "Find in the report";
    static constexpr const char* endFindWords = "End the search (Esc)";

private:
    bool passesChecks(EffectQuestion question);
    bool lacksEffect() const;
    void generate();
    template <typename Change>
    void set(const char* name, Change change);
    void afterSetting();
    void Displaypage();
    void search(std::size_t match);
    void tellMatch();
    void tell(std::string done);

    Design& design_;
    DocumentPress* press_;
    ReportFiles files_;
    ReportExtras extras_;
    MadeReport report_;
    int revision_ = 0;
    std::string ReportFilePath_;
    ReportView view_;
    Panel caption_;
    Panel pnlStatus_;
    TextBox txtFind_;
    Panel pnlFound_;
    bool isMaking_ = false;
    ReportSettings madeWith_;  ///< the last report
    SessionState madeFor_;     ///< what the report tells of
};

}  // namespace lorvane
