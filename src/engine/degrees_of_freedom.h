// Degrees of freedom of the nine designs: those of the test, and those that every level must have.
// Means and binary outcomes share them; a binary study passes 0 for the covariates of level 1 (Q1).
#pragma once

#include <optional>

#include "engine/study.h"

namespace lorvane {

/// Degrees of freedom of the test of a hierarchical design: the units of the top level in both arms, less one
/// for each arm, less the covariates of that level.
double dfHierarchical(const Study& study);

/// Degrees of freedom of the test of a randomized-block design. Nothing when the rule meets a sampling model
/// that is neither random (0 or 2) nor fixed (1).
using TestDf = std::optional<double>;

/// The highest blocked level that is random gives the error term: its units less one within each unit above,
/// less its covariates. When all blocked levels are fixed, the randomized level gives it: the units of both
/// arms less 2 within each block, less its covariates. Q1 is the number of covariates of level 1, where
/// individuals are randomized.
TestDf dfTwoLevelRBStudents(const Study& study, double Q1);
TestDf dfThreeLevelRBStudents(const Study& study, double Q1);
TestDf dfFourLevelRBStudents(const Study& study, double Q1);
TestDf dfThreeLevelRBClasses(const Study& study);
TestDf dfFourLevelRBClasses(const Study& study);
TestDf dfFourLevelRBTeachers(const Study& study);

/// The checks of a design: the df of the test, which must be written before; the df of each level from the
/// top down, whatever the sampling models are; and the covariates of each level. They only clear flags.
void checkTwoLevelHD(Study& study, double Q1);
void checkThreeLevelHD(Study& study, double Q1);
void checkFourLevelHD(Study& study, double Q1);
void checkTwoLevelRBStudents(Study& study, double Q1);
void checkThreeLevelRBStudents(Study& study, double Q1);
void checkFourLevelRBStudents(Study& study, double Q1);
void checkThreeLevelRBClasses(Study& study, double Q1);
void checkFourLevelRBClasses(Study& study, double Q1);
void checkFourLevelRBTeachers(Study& study, double Q1);

}  // namespace lorvane
