// The computing half of the refresh.
#include "session/computation.h"

#include "engine/docompute.h"
#include "engine/effect_check.h"

namespace lorvane {

// None of the steps may be moved: each reads what the one before wrote.
void computeStudy(Study& study, DistributionLibrary& library, Computation& told) {
    told = {};
    told.models = study.txtModel;
    told.icc = SynchICC(study);
    told.tauSq = SynchTauSq(study);
    ComputeES(study);
    told.outcome = docompute(study, library);
}

void applyModelRule(Study& study) {
    for (const int level : {lowestLevel, study.RandomizedLevel})
        study.txtModel(level) = SamplingModels::random;
}

}  // namespace lorvane
