// Random studies within the limits of the dialogs, for properties that hold of every study.
#pragma once

#include <random>
#include <string>
#include <vector>

#include "base/names.h"
#include "session/assignments.h"

namespace lorvane {

class RandomStudies {
public:
    explicit RandomStudies(unsigned seed) : random_(seed) {}

    int whole(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random_); }
    double real(double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random_);
    }

    /// Values for all fields of a study that mostly gives a power.
    std::vector<Assignment> next() {
        std::vector<Assignment> values;
        const auto add = [&](std::string name, double value) { values.push_back({std::move(name), value}); };
        const int levels = whole(2, 4);
        add("NumLevels", levels);
        const int randomized = whole(1, levels);
        add("RandomizedLevel", randomized);
        add("DataType", whole(1, 2));
        add("BinaryType", whole(1, 4));
        add("DType", whole(1, 2));
        add("PowerOption", whole(1, 2));
        add("ICC Metric", whole(1, 2));
        add("Tau-sq Metric", whole(1, 3));
        add("txtTails", whole(1, 2));
        add("txtd", real(-1, 1));
        add("txtPrev", real(0.2, 0.8));
        add("txtP2", real(0.2, 0.8));
        add("txtOR", real(0.3, 3));
        add("txtRR", real(0.8, 1.2));
        add("txtRD", real(-0.15, 0.15));
        add("txtAlpha", real(0.01, 0.2));
        for (int level = 1; level <= 4; ++level) {
            for (const char* stem : {"txtNT", "txtNC", "txtNB"})
                add(indexedName(stem, level), whole(2, 40));
            for (const char* stem : {"txtCostT", "txtCostC", "txtCostB"})
                add(indexedName(stem, level), whole(0, 500));
            add(indexedName("txtICC", level), real(0, 0.2));
            add(indexedName("txtMRange", level), real(0.01, 0.3));
            add(indexedName("txtTauSq", level), real(0, 0.1));
            add(indexedName("txtDRange", level), real(0, 0.5));
            add(indexedName("txtOmega", level), real(0, 1));
            // The lowest and the randomized level are always random.
            add(indexedName("txtModel", level), level == 1 || level == randomized ? 0 : whole(0, 2));
            const int covariates = whole(0, 2);
            add(indexedName("txtQ", level), covariates);
            add(indexedName("txtRsq", level), covariates == 0 ? 0 : real(0, 0.9));
        }
        values.push_back({"txtName(1)", "Pupils, \"all\"\nof " + std::to_string(whole(1, 99))});
        values.push_back({"txtGroupName(2)", std::string("Übliche Gruppe")});
        values.push_back({"Link N2", whole(0, 1) == 1});
        return values;
    }

private:
    std::mt19937 random_;
};

}  // namespace lorvane
