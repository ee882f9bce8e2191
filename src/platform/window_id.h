// The floating windows by number, and the actions that move them.
#pragma once

namespace lorvane {

enum class WindowId : int {
    Design = 1,
    frmAlpha = 2,
    frmDetails = 3,
    frmDisplayICC = 4,
    frmDisplayTauSq = 5,
    frmGroupNames = 6,
    frmLevelNames = 7,
    frmLVar = 8,
    frmScenarios = 9,
    frmScenariosName = 10,
    frmTable = 11,
    frmTips = 12,
    frmXVar = 13,
    xPlot = 14,
    frmProblems = 15,
    frmProblemES = 16,
    frmOptimal = 17,
    frmMDES = 18,
    frmTipsGraph = 19,
    frmStart = 20,
    frmPrint = 22,
    frmDelta = 23,
    frmSetMean = 24,
    frmCounts = 25
};

/// Highest number of a window; 21 is not used.
inline constexpr int lastWindowId = 25;

enum class WindowAction : int { unload = 0, withdrawForGood = 1, withdraw = 2, bringBack = 3, open = 4 };

}  // namespace lorvane
