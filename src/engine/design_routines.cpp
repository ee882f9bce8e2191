// The table of the nine designs.
#include "engine/design_routines.h"

#include <cassert>
#include <cstddef>

namespace lorvane {

namespace {

// Each row is a number of levels, from 2. Each column is a randomized level, from 1.
constexpr DesignRoutines designs[3][4] = {
    {{"TwoLevelRBStudents", ComputeTwoLevelRBStudentsMeans, ComputeTwoLevelRBStudentsBinary,
      ComputeTwoLevelRBStudentsCost},
     {"TwoLevelHD", ComputeTwoLevelHDMeans, ComputeTwoLevelHDBinary, ComputeTwoLevelHDCost}},
    {{"ThreeLevelRBStudents", ComputeThreeLevelRBStudentsMeans, ComputeThreeLevelRBStudentsBinary,
      ComputeThreeLevelRBStudentsCost},
     {"ThreeLevelRBClasses", ComputeThreeLevelRBClassesMeans, ComputeThreeLevelRBClassesBinary,
      ComputeThreeLevelRBClassesCost},
     {"ThreeLevelHD", ComputeThreeLevelHDMeans, ComputeThreeLevelHDBinary, ComputeThreeLevelHDCost}},
    {{"FourLevelRBStudents", ComputeFourLevelRBStudentsMeans, ComputeFourLevelRBStudentsBinary,
      ComputeFourLevelRBStudentsCost},
     {"FourLevelRBClasses", ComputeFourLevelRBClassesMeans, ComputeFourLevelRBClassesBinary,
      ComputeFourLevelRBClassesCost},
     {"FourLevelRBTeachers", ComputeFourLevelRBTeachersMeans, ComputeFourLevelRBTeachersBinary,
      ComputeFourLevelRBTeachersCost},
     {"FourLevelHD", ComputeFourLevelHDMeans, ComputeFourLevelHDBinary, ComputeFourLevelHDCost}},
};

}  // namespace

const DesignRoutines& routinesOf(int NumLevels, int RandomizedLevel) {
    assert(NumLevels >= 2 && NumLevels <= 4 && RandomizedLevel >= 1 && RandomizedLevel <= NumLevels);
    return designs[static_cast<std::size_t>(NumLevels - 2)][static_cast<std::size_t>(RandomizedLevel - 1)];
}

void runDesign(Study& s, DistributionLibrary& library) {
    const DesignRoutines& design = routinesOf(s.NumLevels, s.RandomizedLevel);
    if (s.isMeans())
        design.means(s);
    else
        design.binary(s, library);
}

}  // namespace lorvane
