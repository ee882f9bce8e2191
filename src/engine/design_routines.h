// The routines of the nine designs, by name, and the table that picks them by number of levels and
// randomized level. Fixed words of the names: level 1 is Students, 2 Classes, 3 Teachers; HD is a
// hierarchical design, RB a randomized-block design with the blocks above the level that is named last.
#pragma once

#include <string_view>

#include "engine/study.h"
#include "platform/distribution_library.h"

namespace lorvane {

// Means: each writes xLambda, xdf and the flags of degrees of freedom and covariates. Throws ArithmeticFault
// where the study leaves no variance above zero.
void ComputeTwoLevelHDMeans(Study& study);
void ComputeThreeLevelHDMeans(Study& study);
void ComputeFourLevelHDMeans(Study& study);
void ComputeTwoLevelRBStudentsMeans(Study& study);
void ComputeThreeLevelRBStudentsMeans(Study& study);
void ComputeFourLevelRBStudentsMeans(Study& study);
void ComputeThreeLevelRBClassesMeans(Study& study);
void ComputeFourLevelRBClassesMeans(Study& study);
void ComputeFourLevelRBTeachersMeans(Study& study);

// Binary outcomes: as above, with the three variances of a risk difference, and the screening of cell counts.
// They need the effect checked and the logit variances in place.
void ComputeTwoLevelHDBinary(Study& study, DistributionLibrary& library);
void ComputeThreeLevelHDBinary(Study& study, DistributionLibrary& library);
void ComputeFourLevelHDBinary(Study& study, DistributionLibrary& library);
void ComputeTwoLevelRBStudentsBinary(Study& study, DistributionLibrary& library);
void ComputeThreeLevelRBStudentsBinary(Study& study, DistributionLibrary& library);
void ComputeFourLevelRBStudentsBinary(Study& study, DistributionLibrary& library);
void ComputeThreeLevelRBClassesBinary(Study& study, DistributionLibrary& library);
void ComputeFourLevelRBClassesBinary(Study& study, DistributionLibrary& library);
void ComputeFourLevelRBTeachersBinary(Study& study, DistributionLibrary& library);

// Cost: each writes txtCost, the sum over levels of the units in the whole study times the cost of one. An
// amount beyond 32 bits gives a cost of 0 and sets txtCostProblem.
void ComputeTwoLevelHDCost(Study& study);
void ComputeThreeLevelHDCost(Study& study);
void ComputeFourLevelHDCost(Study& study);
void ComputeTwoLevelRBStudentsCost(Study& study);
void ComputeThreeLevelRBStudentsCost(Study& study);
void ComputeFourLevelRBStudentsCost(Study& study);
void ComputeThreeLevelRBClassesCost(Study& study);
void ComputeFourLevelRBClassesCost(Study& study);
void ComputeFourLevelRBTeachersCost(Study& study);

/// The three routines of one design.
struct DesignRoutines {
    std::string_view name;  ///< such as "TwoLevelHD", which the names of its routines hold
    void (*means)(Study&);  ///< for means
    void (*binary)(Study&, DistributionLibrary&);  ///< for binary outcomes
    void (*cost)(Study&);                          ///< for both
};

/// The routines of a design; NumLevels is 2 to 4 and RandomizedLevel 1 to NumLevels. The table lasts as long
/// as the program.
const DesignRoutines& routinesOf(int NumLevels, int RandomizedLevel);

/// Runs the routine of the study's design for its outcome. Throws ArithmeticFault.
void runDesign(Study& study, DistributionLibrary& library);

}  // namespace lorvane
