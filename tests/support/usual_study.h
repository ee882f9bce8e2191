// A study of any design with usual values, for benchmarks.
#pragma once

#include "engine/study.h"

namespace lorvane {

inline void makeUsual(Study& s, int levels, int randomized, DataTypes dataType) {
    s.NumLevels = levels;
    s.RandomizedLevel = randomized;
    s.DataType = dataType;
    s.IccMetric = IccMetrics::icc;
    s.txtd = 0.3;
    s.txtPrev = 0.4;
    s.txtOR = 1.6;
    for (int level = 1; level <= levels; ++level) {
        s.txtNT(level) = s.txtNC(level) = s.txtNB(level) = level == levels ? 20 : 5;
        s.txtCostT(level) = s.txtCostC(level) = s.txtCostB(level) = 10;
        s.txtICC(level) = level > 1 ? 0.05 : 0;
        s.txtTauSq(level) = 0.02;
    }
}

}  // namespace lorvane
