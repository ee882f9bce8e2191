// Degrees of freedom of the nine designs. The error term of a randomized-block test is the highest level
// that is random, so the sampling models are read from the top down.
#include "engine/degrees_of_freedom.h"

#include "engine/validity_checks.h"

namespace lorvane {

namespace {

// A 2, as a file can hold, is random too.
bool isRandom(const Study& s, int level) { return s.txtModel(level) == 0 || s.txtModel(level) == 2; }
bool isFixed(const Study& s, int level) { return s.txtModel(level) == 1; }

// Units of a level in both arms, less the two arm means.
double bothArms(const Study& s, int level) { return s.txtNC(level) + s.txtNT(level) - 2; }

void checkCovariates(Study& s) {
    for (int level = s.NumLevels; level >= 1; --level)
        CheckQ(s, s.txtRsq(level), s.txtQ(level), level);
}

}  // namespace

double dfHierarchical(const Study& s) { return bothArms(s, s.NumLevels) - s.txtQ(s.NumLevels); }

TestDf dfTwoLevelRBStudents(const Study& s, double Q1) {
    if (isRandom(s, 2))
        return s.txtNB(2) - 1 - s.txtQ(2);
    if (isFixed(s, 2))
        return bothArms(s, 1) * s.txtNB(2) - Q1;
    return std::nullopt;
}

TestDf dfThreeLevelRBStudents(const Study& s, double Q1) {
    if (isRandom(s, 3))
        return s.txtNB(3) - 1 - s.txtQ(3);
    if (isFixed(s, 3) && isRandom(s, 2))
        return (s.txtNB(2) - 1) * s.txtNB(3) - s.txtQ(2);
    if (isFixed(s, 3) && isFixed(s, 2))
        return bothArms(s, 1) * s.txtNB(2) * s.txtNB(3) - Q1;
    return std::nullopt;
}

TestDf dfFourLevelRBStudents(const Study& s, double Q1) {
    if (isRandom(s, 4))
        return s.txtNB(4) - 1 - s.txtQ(4);
    if (isFixed(s, 4) && isRandom(s, 3))
        return (s.txtNB(3) - 1) * s.txtNB(4) - s.txtQ(3);
    if (isFixed(s, 4) && isFixed(s, 3) && isRandom(s, 2))
        return s.txtNB(3) * s.txtNB(4) * (s.txtNB(2) - 1) - s.txtQ(2);
    if (isFixed(s, 4) && isFixed(s, 3) && isFixed(s, 2))
        return s.txtNB(3) * s.txtNB(4) * s.txtNB(2) * bothArms(s, 1) - Q1;
    return std::nullopt;
}

TestDf dfThreeLevelRBClasses(const Study& s) {
    if (isRandom(s, 3))
        return s.txtNB(3) - 1 - s.txtQ(3);
    if (isFixed(s, 3))
        return bothArms(s, 2) * s.txtNB(3) - s.txtQ(2);
    return std::nullopt;
}

TestDf dfFourLevelRBClasses(const Study& s) {
    if (isRandom(s, 4))
        return s.txtNB(4) - 1 - s.txtQ(4);
    if (isFixed(s, 4) && isRandom(s, 3))
        return (s.txtNB(3) - 1) * s.txtNB(4) - s.txtQ(3);
    if (isFixed(s, 4) && isFixed(s, 3))
        return bothArms(s, 2) * s.txtNB(3) * s.txtNB(4) - s.txtQ(2);
    return std::nullopt;
}

TestDf dfFourLevelRBTeachers(const Study& s) {
    if (isRandom(s, 4))
        return s.txtNB(4) - 1 - s.txtQ(4);
    if (isFixed(s, 4))
        return bothArms(s, 3) * s.txtNB(4) - s.txtQ(3);
    return std::nullopt;
}

void checkTwoLevelHD(Study& s, double Q1) {
    CheckTestDF(s, s.result.xdf);
    CheckDF(s, dfHierarchical(s), 2);
    CheckDF(s, (s.txtNC(1) - 1) * s.txtNC(2) + (s.txtNT(1) - 1) * s.txtNT(2) - Q1, 1);
    checkCovariates(s);
}

void checkThreeLevelHD(Study& s, double Q1) {
    CheckTestDF(s, s.result.xdf);
    CheckDF(s, dfHierarchical(s), 3);
    CheckDF(s, (s.txtNC(2) - 1) * s.txtNC(3) + (s.txtNT(2) - 1) * s.txtNT(3) - s.txtQ(2), 2);
    CheckDF(s, s.txtNC(2) * s.txtNC(3) * (s.txtNC(1) - 1) + s.txtNT(2) * s.txtNT(3) * (s.txtNT(1) - 1) - Q1,
            1);
    checkCovariates(s);
}

void checkFourLevelHD(Study& s, double Q1) {
    const double C34 = s.txtNC(3) * s.txtNC(4);
    const double T34 = s.txtNT(3) * s.txtNT(4);
    CheckTestDF(s, s.result.xdf);
    CheckDF(s, dfHierarchical(s), 4);
    CheckDF(s, (s.txtNC(3) - 1) * s.txtNC(4) + (s.txtNT(3) - 1) * s.txtNT(4) - s.txtQ(3), 3);
    CheckDF(s, C34 * (s.txtNC(2) - 1) + T34 * (s.txtNT(2) - 1) - s.txtQ(2), 2);
    CheckDF(s, C34 * s.txtNC(2) * (s.txtNC(1) - 1) + T34 * s.txtNT(2) * (s.txtNT(1) - 1) - Q1, 1);
    checkCovariates(s);
}

void checkTwoLevelRBStudents(Study& s, double Q1) {
    CheckTestDF(s, s.result.xdf);
    CheckDF(s, s.txtNB(2) - 1 - s.txtQ(2), 2);
    CheckDF(s, bothArms(s, 1) * s.txtNB(2) - Q1, 1);
    checkCovariates(s);
}

void checkThreeLevelRBStudents(Study& s, double Q1) {
    CheckTestDF(s, s.result.xdf);
    CheckDF(s, s.txtNB(3) - 1 - s.txtQ(3), 3);
    CheckDF(s, (s.txtNB(2) - 1) * s.txtNB(3) - s.txtQ(2), 2);
    CheckDF(s, bothArms(s, 1) * s.txtNB(2) * s.txtNB(3) - Q1, 1);
    checkCovariates(s);
}

void checkFourLevelRBStudents(Study& s, double Q1) {
    CheckTestDF(s, s.result.xdf);
    CheckDF(s, s.txtNB(4) - 1 - s.txtQ(4), 4);
    CheckDF(s, (s.txtNB(3) - 1) * s.txtNB(4) - s.txtQ(3), 3);
    CheckDF(s, s.txtNB(3) * s.txtNB(4) * (s.txtNB(2) - 1) - s.txtQ(2), 2);
    CheckDF(s, s.txtNB(3) * s.txtNB(4) * s.txtNB(2) * bothArms(s, 1) - Q1, 1);
    checkCovariates(s);
}

void checkThreeLevelRBClasses(Study& s, double Q1) {
    const double NB3 = s.txtNB(3);
    CheckTestDF(s, s.result.xdf);
    CheckDF(s, NB3 - 1 - s.txtQ(3), 3);
    CheckDF(s, bothArms(s, 2) * NB3 - s.txtQ(2), 2);
    CheckDF(s, s.txtNC(2) * NB3 * (s.txtNC(1) - 1) + s.txtNT(2) * NB3 * (s.txtNT(1) - 1) - Q1, 1);
    checkCovariates(s);
}

void checkFourLevelRBClasses(Study& s, double Q1) {
    const double NB34 = s.txtNB(3) * s.txtNB(4);
    CheckTestDF(s, s.result.xdf);
    CheckDF(s, s.txtNB(4) - 1 - s.txtQ(4), 4);
    CheckDF(s, (s.txtNB(3) - 1) * s.txtNB(4) - s.txtQ(3), 3);
    CheckDF(s, bothArms(s, 2) * NB34 - s.txtQ(2), 2);
    CheckDF(s, NB34 * s.txtNC(2) * (s.txtNC(1) - 1) + NB34 * s.txtNT(2) * (s.txtNT(1) - 1) - Q1, 1);
    checkCovariates(s);
}

void checkFourLevelRBTeachers(Study& s, double Q1) {
    const double C3 = s.txtNC(3) * s.txtNB(4);
    const double T3 = s.txtNT(3) * s.txtNB(4);
    CheckTestDF(s, s.result.xdf);
    CheckDF(s, s.txtNB(4) - 1 - s.txtQ(4), 4);
    CheckDF(s, bothArms(s, 3) * s.txtNB(4) - s.txtQ(3), 3);
    CheckDF(s, C3 * (s.txtNC(2) - 1) + T3 * (s.txtNT(2) - 1) - s.txtQ(2), 2);
    CheckDF(s, C3 * s.txtNC(2) * (s.txtNC(1) - 1) + T3 * s.txtNT(2) * (s.txtNT(1) - 1) - Q1, 1);
    checkCovariates(s);
}

}  // namespace lorvane
