// A study that can be searched, and random small ones.
#pragma once

#include <gtest/gtest.h>

#include <random>

#include "search/optimal_search.h"
#include "session/computation.h"
#include "support/test_library.h"

namespace lorvane {

/// A study to try values on, refreshed, and its search.
struct SearchBench {
    explicit SearchBench(int levels = 2, int randomized = 2, DataTypes dataType = DataTypes::means)
        : trial(studyOf(levels, randomized), library) {
        Study& s = study();
        s.DataType = dataType;
        s.PowerOption = PowerOptions::tDistribution;
        s.IccMetric = IccMetrics::icc;
        s.txtd = 0.4;
        s.txtPrev = 0.4;
        s.txtOR = 2;
        for (int level = 1; level <= levels; ++level) {
            s.txtNT(level) = s.txtNC(level) = s.txtNB(level) = 10;
            s.txtCostT(level) = s.txtCostC(level) = s.txtCostB(level) = 10;
            s.txtICC(level) = level > 1 ? 0.1 : 0;
            s.txtTauSq(level) = 0.03;
        }
        refresh();
    }

    Study& study() { return trial.study; }
    OptimalResult search() { return searchOptimalDesign(trial, options, progress); }

    // As a session computes it.
    void refresh() {
        trial.refresh();
        applyModelRule(study());
    }

    // The power and cost of a design, as a user would see them.
    const PowerResult& resultOf(const LevelSizes& sizes) {
        for (int level = 1; level <= study().NumLevels; ++level)
            study().txtNT(level) = study().txtNC(level) = study().txtNB(level) = sizes(level);
        refresh();
        return study().result;
    }

    NumericDistributionLibrary library;
    NoProgress progress;
    OptimalOptions options;
    StudyTrial trial;
};

/// Values of a small study of any design that the search can take.
inline void makeRandom(SearchBench& bench, std::mt19937& random) {
    const auto real = [&](double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random);
    };
    const auto whole = [&](int low, int high) {
        return std::uniform_int_distribution<int>(low, high)(random);
    };
    Study& s = bench.study();
    s.NumLevels = whole(2, 4);
    s.RandomizedLevel = whole(1, s.NumLevels);
    s.DataType = DataTypes(whole(1, 2));
    s.BinaryType = whole(0, 1) == 0 ? BinaryTypes::oddsRatio : BinaryTypes::riskDifference;
    s.PowerOption = PowerOptions::tDistribution;
    s.txtd = real(0.3, 0.7);
    s.txtOR = real(1.7, 3);
    s.txtRD = real(0.12, 0.25);
    const double dearer[] = {1, 8, 40, 150};
    for (int level = 1; level <= s.NumLevels; ++level) {
        s.txtCostT(level) = whole(2, 12) * dearer[level - 1];
        s.txtCostC(level) = whole(2, 12) * dearer[level - 1];
        s.txtCostB(level) = whole(2, 12) * dearer[level - 1];
        s.txtICC(level) = level > 1 ? real(0.02, 0.12) : 0;
        s.txtTauSq(level) = real(0.005, 0.04);
        const bool covariate = whole(0, 3) == 0 && (level > 1 || s.isMeans());
        s.txtQ(level) = covariate ? whole(1, 2) : 0;
        s.txtRsq(level) = covariate ? real(0.1, 0.6) : 0;
    }
    bench.options.allowLowCellCounts = true;
    bench.refresh();
}

}  // namespace lorvane
