// What stands in the cells of the report's tables.
#include "reporting/report_tables.h"

#include <iterator>

#include "base/number_text.h"
#include "engine/cell_screening.h"
#include "session/currency.h"

namespace lorvane {

namespace {

using I = IccColumn;
using T = TauSqColumn;

constexpr std::size_t twoHeads = 2;

std::size_t countOf(int levels) { return static_cast<std::size_t>(levels); }

// Calls for every level from the top down to the lower one, with the row where it stands.
template <typename Write>
void forRows(const Study& s, int lower, Write write) {
    std::size_t row = twoHeads + 1;
    for (int level = s.NumLevels; level >= lower; --level)
        write(level, row++);
}

void writeName(TableDraft& draft, std::size_t row, std::string name) {
    draft.cell(row, 1).text = std::move(name);
    draft.cell(row, 1).firstLineBold = true;
}

// The main table -------------------------------------------------------------------------------------------

namespace Main {
enum Column : std::size_t {
    name = 1,
    treated,
    control,
    icc,
    example,
    variation,
    effect,
    omega,
    covariates,
    rSquared,
    model,
    costTreated,
    costControl,
    count = costControl
};
}  // namespace Main

const char* roleText(const Study& s, int level) {
    if (s.isBlocked(level))
        return "(Blocked)";
    return level == s.RandomizedLevel ? "(Randomized)" : "(Nested)";
}

const char* effectHead(const Study& s) {
    if (s.isMeans())
        return s.DType == DTypes::within ? "Variation\nin d(within)" : "Variation\nin d(total)";
    return s.BinaryType == BinaryTypes::oddsRatio ? "Variation in\nodds ratio"
                                                  : "Variation in\nrisk difference";
}

// A band over a column for each group.
void headOfGroups(TableDraft& draft, const Study& s, std::size_t column, const char* band, Colour shade) {
    draft.head(1, column, band, shade, {2, 1});
    draft.head(2, column, groupName(s, 1), shade);
    draft.head(2, column + 1, groupName(s, 2), shade);
}

void writeMainHeads(TableDraft& draft, const Study& s) {
    draft.head(1, Main::name, "", normalBackground, {1, 2});
    headOfGroups(draft, s, Main::treated, "Number of units", reportYellow);
    draft.head(1, Main::icc, "ICC", reportBlue, {1, 2});
    draft.head(1, Main::example, "Example", reportBlue, {1, 2});
    draft.head(1, Main::variation, s.isMeans() ? "Variation\nin means" : "Variation in\nmean risk",
               reportBlue, {1, 2});
    draft.head(1, Main::effect, effectHead(s), reportYellow, {1, 2});
    draft.head(1, Main::omega, "Omega", reportYellow, {1, 2});
    draft.head(1, Main::covariates, "Covariates", reportGreen, {2, 1});
    draft.head(2, Main::covariates, "# Cov", reportGreen);
    draft.head(2, Main::rSquared, "R-sq", reportGreen);
    draft.head(1, Main::model, "Model", reportYellow, {1, 2});
    headOfGroups(draft, s, Main::costTreated, "Cost per unit", reportBlue);
}

// The values of the groups, or the one value of a blocked level over both.
void writeGroups(TableDraft& draft, std::size_t row, std::size_t column, bool isBlocked,
                 const std::string& both, const std::string& treated, const std::string& control) {
    draft.number(row, column, isBlocked ? both : treated);
    if (!isBlocked) {
        draft.number(row, column + 1, control);
        return;
    }
    draft.cell(row, column).columns = 2;
    draft.cell(row, column).side = TextSides::centre;
}

void writeMainRow(TableDraft& draft, const StudyFacts& facts, int level, std::size_t row) {
    const Study& s = facts.study();
    const bool isBlocked = s.isBlocked(level);
    const auto cost = [&](double amount) { return amountText(amount, facts.state.settings.currency); };
    writeName(draft, row, levelName(s, level) + "\n" + roleText(s, level));
    writeGroups(draft, row, Main::treated, isBlocked, shortestText(s.txtNB(level)),
                shortestText(s.txtNT(level)), shortestText(s.txtNC(level)));
    draft.number(row, Main::icc, level > 1 ? GetInsertICC(s, level, I::ICCW, false) : "");
    draft.number(row, Main::example, GetInsertICC(s, level, I::ExampleW, false));
    draft.number(row, Main::variation, GetInsertICC(s, level, I::SpanW, false));
    draft.number(row, Main::effect, isBlocked ? GetInsertTauSq(s, level, T::SpanW) : "");
    draft.number(row, Main::omega, isBlocked ? GetInsertTauSq(s, level, T::OmegaW) : "");
    draft.number(row, Main::covariates, shortestText(s.txtQ(level)));
    draft.number(row, Main::rSquared, fixedText(s.txtRsq(level), 2));
    draft.cell(row, Main::model).text = s.txtModel(level) == SamplingModels::fixed ? "Fixed" : "Random";
    draft.cell(row, Main::model).side = TextSides::centre;
    writeGroups(draft, row, Main::costTreated, isBlocked, cost(s.txtCostB(level)), cost(s.txtCostT(level)),
                cost(s.txtCostC(level)));
}

void hideIf(bool hidden, TableDraft& draft, std::initializer_list<std::size_t> columns) {
    for (const std::size_t column : columns) {
        if (hidden)
            draft.hide(column);
    }
}

// Dispersion ------------------------------------------------------------------------------------------------

void writeDispersionHeads(TableDraft& draft, std::initializer_list<const char*> heads, Colour within,
                          Colour across, std::size_t firstAcross) {
    std::size_t column = 2;
    for (const char* head : heads) {
        draft.head(2, column, head, column < firstAcross ? within : across);
        ++column;
    }
}

ReportTable iccTableWithSpans(const StudyFacts& facts, const PageSetup& page) {
    constexpr I columns[] = {I::ICCW, I::VarW, I::SpanW, I::ExampleW,
                             I::ICCC, I::VarC, I::SpanC, I::ExampleC};
    const Study& s = facts.study();
    TableDraft draft(9, twoHeads, countOf(s.NumLevels));
    draft.head(1, 1, "Level", normalBackground, {1, 2});
    draft.head(1, 2, "Variation in means within levels", reportYellow, {4, 1});
    draft.head(1, 6, "Variation in means across levels", reportBlue, {4, 1});
    writeDispersionHeads(
        draft, {"ICC", "Variance", "Span", "Example", "Sum of\nICCs", "Variance", "Span", "Example"},
        reportYellow, reportBlue, 6);
    forRows(s, 1, [&](int level, std::size_t row) {
        writeName(draft, row, levelName(s, level));
        for (std::size_t i = 0; i < std::size(columns); ++i)
            draft.number(row, i + 2, GetInsertICC(s, level, columns[i], false));
    });
    return draft.fitted(page);
}

// One row of heads is enough where no band joins them.
ReportTable iccTableWithoutSpans(const StudyFacts& facts, const PageSetup& page) {
    const Study& s = facts.study();
    TableDraft draft(3, 1, countOf(s.NumLevels));
    draft.head(1, 1, "Level", normalBackground);
    draft.head(1, 2, "ICC within levels", reportYellow);
    draft.head(1, 3, "Sum of ICCs", reportBlue);
    forRows(s, 1, [&](int level, std::size_t row) {
        writeName(draft, row - 1, levelName(s, level));
        draft.number(row - 1, 2, GetInsertICC(s, level, I::ICCW, false));
        draft.number(row - 1, 3, GetInsertICC(s, level, I::ICCC, false));
    });
    return draft.fitted(page);
}

ReportTable iccTableOfRisks(const StudyFacts& facts, const PageSetup& page) {
    constexpr I columns[] = {I::ICCW, I::SpanW, I::ExampleW};
    const Study& s = facts.study();
    TableDraft draft(4, twoHeads, countOf(s.NumLevels));
    draft.head(1, 1, "Level", normalBackground, {1, 2});
    draft.head(1, 2, "Variation in mean risk within levels", reportYellow, {3, 1});
    writeDispersionHeads(draft, {"ICC", "Span", "Example"}, reportYellow, reportYellow, 5);
    forRows(s, 1, [&](int level, std::size_t row) {
        writeName(draft, row, levelName(s, level));
        for (std::size_t i = 0; i < std::size(columns); ++i)
            draft.number(row, i + 2, GetInsertICC(s, level, columns[i], false));
    });
    return draft.fitted(page);
}

// Cell counts ----------------------------------------------------------------------------------------------

// The counts know the control group as their first arm.
struct Arm {
    int group;
    int arm;
};
constexpr Arm arms[] = {{1, 2}, {2, 1}};

// The third column of a band is not used.
namespace Counts {
enum Column : std::size_t { group = 1, size = 2, proportions = 4, expected = 7, low = 10, count = 12 };
}  // namespace Counts

void headOfOutcomes(TableDraft& draft, std::size_t column, const char* band, Colour shade) {
    draft.head(1, column, band, shade, {2, 1});
    draft.head(2, column, "Events", shade);
    draft.head(2, column + 1, "Non-events", shade);
}

void writeCountsRow(TableDraft& draft, const Study& s, const Arm& arm, std::size_t row) {
    const CellCounts& counts = s.counts;
    const double n = counts.n(arm.arm);
    const double rate = counts.rate(arm.arm);
    writeName(draft, row, groupName(s, arm.group));
    draft.number(row, Counts::size, shortestText(n));
    for (const std::size_t outcome : {0U, 1U}) {
        const double proportion = outcome == 0 ? rate : 1 - rate;
        draft.number(row, Counts::proportions + outcome, fixedText(proportion, 3));
        draft.number(row, Counts::expected + outcome, fixedText(n * proportion, 1));
        const double share = counts.share(2 * arm.arm - 1 + static_cast<int>(outcome));
        draft.number(row, Counts::low + outcome, fixedText(100 * share, 2) + "%");
        if (share >= lowShare) {
            draft.cell(row, Counts::low + outcome).shade = problemColour;
            draft.cell(row, Counts::low + outcome).ink = normalBackground;
        }
    }
}

}  // namespace

ReportTable ReportMainTable(const StudyFacts& facts, const PageSetup& page) {
    const Study& s = facts.study();
    TableDraft draft(Main::count, twoHeads, countOf(s.NumLevels));
    writeMainHeads(draft, s);
    forRows(s, 1, [&](int level, std::size_t row) { writeMainRow(draft, facts, level, row); });
    hideIf(!facts.hasSpans(), draft, {Main::example});
    hideIf(s.isHierarchical() || !s.isTested(), draft, {Main::effect});
    hideIf(s.isHierarchical(), draft, {Main::omega});
    hideIf(facts.state.settings.ReportCosts != Inclusions::include, draft,
           {Main::costTreated, Main::costControl});
    return draft.fitted(page);
}

ReportTable ReportICCTable(const StudyFacts& facts, const PageSetup& page) {
    if (facts.study().isBinary())
        return iccTableOfRisks(facts, page);
    return facts.hasSpans() ? iccTableWithSpans(facts, page) : iccTableWithoutSpans(facts, page);
}

ReportTable ReportTauSqTable(const StudyFacts& facts, const PageSetup& page) {
    constexpr T columns[] = {T::TauSqW, T::SpanW, T::ExampleW, T::TauSqC, T::SpanC, T::ExampleC};
    const Study& s = facts.study();
    const auto withUnits = [&s](const std::string& head, const char* units) {
        const std::string told = GetUnits(s, false, units, false);
        return told.empty() ? head : head + "\n" + told;
    };
    TableDraft draft(7, twoHeads, countOf(s.NumLevels - s.RandomizedLevel));
    draft.head(1, 1, "Level", normalBackground, {1, 2});
    draft.head(1, 2, "Variation in effect within levels", reportYellow, {3, 1});
    draft.head(1, 5, "Variation in effect across levels", reportBlue, {3, 1});
    for (const std::size_t column : {2U, 5U}) {
        const Colour shade = column == 2 ? reportYellow : reportBlue;
        draft.head(2, column, withUnits("Variance", "LOG"), shade);
        draft.head(2, column + 1, withUnits("Span", "LOG"), shade);
        draft.head(2, column + 2, withUnits("Example", "RAW"), shade);
    }
    forRows(s, s.RandomizedLevel + 1, [&](int level, std::size_t row) {
        writeName(draft, row, levelName(s, level));
        for (std::size_t i = 0; i < std::size(columns); ++i)
            draft.number(row, i + 2, GetInsertTauSq(s, level, columns[i]));
    });
    return draft.fitted(page);
}

ReportTable ReportCountsTable(const StudyFacts& facts, const PageSetup& page) {
    const Study& s = facts.study();
    TableDraft draft(Counts::count, twoHeads, std::size(arms));
    draft.head(1, Counts::group, "Group and sample size", reportYellow, {2, 1});
    draft.head(2, Counts::group, "Group", reportYellow);
    draft.cell(2, Counts::group).side = TextSides::left;
    draft.head(2, Counts::size, "N", reportYellow);
    headOfOutcomes(draft, Counts::proportions, "Expected proportions", reportBlue);
    headOfOutcomes(draft, Counts::expected, "Expected counts at\nmean risk and effect", reportGreen);
    headOfOutcomes(draft, Counts::low, "Proportion of cells\nwith count under 3.5", reportYellow);
    std::size_t row = twoHeads + 1;
    for (const Arm& arm : arms)
        writeCountsRow(draft, s, arm, row++);
    hideIf(true, draft, {3, 6, 9, 12});
    return draft.fitted(page);
}

}  // namespace lorvane
