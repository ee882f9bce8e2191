// The three checks that belong to the power computation.
#include "engine/validity_checks.h"

namespace lorvane {

namespace {

constexpr double tolerance = 0.0000001;

}  // namespace

void CheckDF(Study& study, double df, int level) {
    if (df + tolerance < 0)
        study.result.xValidDF(level) = false;
}

void CheckTestDF(Study& study, double df) {
    if (df + tolerance < 1.0)
        study.result.xValidTestdf = false;
}

void CheckQ(Study& study, double rSquared, double covariates, int level) {
    if (level == 1 && study.isBinary())
        return;
    if (rSquared > 0 && covariates == 0)
        study.result.xValidQ(level) = false;
}

}  // namespace lorvane
