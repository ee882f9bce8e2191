// The studies whose proof takes longest, of a thousand random ones over a wide field: all designs, means and
// binary, effects and dispersions over a factor of 10 to 50, costs over a factor of 1,000, covariates, sizes
// set by hand, screening. Prints the share of answers that the quick search misses, times, and the slowest.
//
//     hardest_studies [number of studies [seed]]
#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "platform/clock.h"
#include "platform/time_limit.h"
#include "search/optimal_proof.h"
#include "support/test_library.h"

namespace {

using namespace lorvane;

class WideStudies {
public:
    explicit WideStudies(unsigned seed) : random_(seed) {}

    // A study that has a power, and options for its search.
    StudyTrial next(DistributionLibrary& library, OptimalOptions& options) {
        StudyTrial trial(Study(), library);
        do {
            trial.study = Study();
            options = {};
            fillDesign(trial.study);
            fillLevels(trial.study);
            fillOptions(trial.study, options);
            trial.refresh();
        } while (!trial.study.result.xValid);
        return trial;
    }

private:
    double real(double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random_);
    }
    double scaled(double low, double high) { return std::exp(real(std::log(low), std::log(high))); }
    int whole(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random_); }

    void fillDesign(Study& s) {
        s.NumLevels = whole(2, 4);
        s.RandomizedLevel = whole(1, s.NumLevels);
        s.DataType = DataTypes(whole(1, 2));
        s.BinaryType = whole(0, 1) == 0 ? BinaryTypes::oddsRatio : BinaryTypes::riskDifference;
        s.PowerOption = PowerOptions(whole(1, 2));
        s.IccMetric = IccMetrics::icc;
        s.txtTails = Tails(whole(1, 2));
        s.txtAlpha = whole(0, 1) == 0 ? 0.01 : 0.05;
        s.txtd = scaled(0.1, 1);
        s.txtOR = scaled(1.15, 4);
        s.txtRD = scaled(0.03, 0.3);
        s.txtPrev = real(0.05, 0.6);
    }

    void fillLevels(Study& s) {
        double cost = scaled(1, 50);
        for (int level = 1; level <= s.NumLevels; ++level) {
            for (double* each : {&s.txtCostT(level), &s.txtCostC(level), &s.txtCostB(level)})
                *each = std::max(1.0, std::round(cost * scaled(0.5, 2)));
            cost *= scaled(1, 20);
            s.txtNT(level) = s.txtNC(level) = s.txtNB(level) = 10;
            s.txtICC(level) = level > 1 ? scaled(0.005, 0.25) : 0;
            s.txtTauSq(level) = scaled(0.002, 0.1);
            const bool covariates = whole(0, 2) == 0 && (level > 1 || s.isMeans());
            s.txtQ(level) = covariates ? whole(1, 5) : 0;
            s.txtRsq(level) = covariates ? real(0.05, 0.8) : 0;
        }
    }

    void fillOptions(const Study& s, OptimalOptions& options) {
        constexpr double powers[] = {0.8, 0.85, 0.9, 0.95, 0.99};
        options.power = powers[whole(0, 4)];
        options.allowLowCellCounts = whole(0, 1) == 0;
        for (int level = 1; level < s.NumLevels; ++level) {
            options.manual(level) = whole(0, 5) == 0;
            options.numReps(level) = whole(1, 40);
        }
    }

    std::mt19937 random_;
};

struct Row {
    Study study;
    OptimalResult result;
    double cheapest = 0;   ///< milliseconds
    double mostPower = 0;  ///< for the cost of that design
    std::int64_t powerRuns = 0;
    bool proven = false;
    double slower() const { return std::max(cheapest, mostPower); }
};

template <typename Work>
double timed(Work work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

Row measure(const StudyTrial& trial, OptimalOptions options, OptimalResult quick) {
    const SteadyClock clock;
    NoProgress unwatched;
    Row row{trial.study, std::move(quick)};
    row.cheapest = timed([&] {
        TimeLimit limit(unwatched, clock, longestProof);
        proveCheapest(trial, options, limit, row.result);
    });
    options.budget = row.result.proof->best ? row.result.proof->best->cost : row.result.bestTrial().cost;
    OptimalResult most;
    row.mostPower = timed([&] {
        TimeLimit limit(unwatched, clock, longestProof);
        most = searchMostPower(trial, options, limit);
    });
    row.powerRuns = most.runs;
    row.proven = row.result.proof->proven && most.proof && most.proof->proven;
    return row;
}

std::string sizesOf(const Row& row) {
    std::string text;
    const std::optional<Trial>& best = row.result.proof->best;
    for (int level = row.study.NumLevels; best && level >= 1; --level)
        text += (text.empty() ? "" : " x ") + std::to_string(static_cast<long>(best->sizes(level)));
    return text;
}

std::string outcomeOf(const Study& s) {
    if (s.isMeans())
        return "means";
    return s.BinaryType == BinaryTypes::oddsRatio ? "odds ratio" : "risk difference";
}

void print(const Row& row) {
    std::printf("%2d levels, %d randomized, %-15s %9.2f ms %7lld runs   %9.2f ms %7lld runs   %s%s\n",
                row.study.NumLevels, row.study.RandomizedLevel, outcomeOf(row.study).c_str(), row.cheapest,
                static_cast<long long>(row.result.proof->runs), row.mostPower,
                static_cast<long long>(row.powerRuns), sizesOf(row).c_str(),
                row.proven ? "" : "   not proven");
}

void printTimes(const std::vector<Row>& rows, int levels) {
    std::vector<double> cheapest, most;
    for (const Row& row : rows) {
        if (row.study.NumLevels != levels)
            continue;
        cheapest.push_back(row.cheapest);
        most.push_back(row.mostPower);
    }
    const auto tell = [](const char* what, std::vector<double>& times) {
        std::sort(times.begin(), times.end());
        const auto at = [&](double share) {
            return times[static_cast<std::size_t>(share * static_cast<double>(times.size() - 1))];
        };
        std::printf("  %s: median %.2f ms, 99 of 100 within %.2f ms, longest %.2f ms", what, at(0.5),
                    at(0.99), times.back());
    };
    std::printf("%d levels", levels);
    tell("cheapest", cheapest);
    tell("most power", most);
    std::printf("\n");
}

}  // namespace

int main(int argc, char** argv) {
    const std::size_t wanted = argc > 1 ? std::strtoul(argv[1], nullptr, 10) : 1000;
    WideStudies studies(argc > 2 ? static_cast<unsigned>(std::strtoul(argv[2], nullptr, 10)) : 1);
    NumericDistributionLibrary library;
    NoProgress unwatched;
    std::vector<Row> rows;
    std::size_t missed = 0;
    while (rows.size() < wanted) {
        OptimalOptions options;
        const StudyTrial trial = studies.next(library, options);
        OptimalResult quick = searchOptimalDesign(trial, options, unwatched);
        if (quick.ending != OptimalEnding::found)
            continue;
        rows.push_back(measure(trial, options, std::move(quick)));
        const std::optional<Trial>& best = rows.back().result.proof->best;
        missed += best && best->cost < rows.back().result.bestTrial().cost ? 1 : 0;
    }
    std::printf("%zu studies; in %zu of them a design is cheaper than that of the quick search\n",
                rows.size(), missed);
    for (int levels = 2; levels <= 4; ++levels)
        printTimes(rows, levels);
    std::sort(rows.begin(), rows.end(), [](const Row& a, const Row& b) { return a.slower() > b.slower(); });
    std::printf("The slowest, with the time and the runs for the least cost and for the most power:\n");
    for (std::size_t i = 0; i < std::min<std::size_t>(10, rows.size()); ++i)
        print(rows[i]);
    return 0;
}
