// The windows of the registry as a menu.
#include "app/window_rows.h"

#include <algorithm>

namespace lorvane {

namespace {

struct FormRow {
    std::string_view tool;
    std::string_view window;  ///< empty: it cannot be closed from here
};

constexpr FormRow forms[] = {{"gDesign", ""},
                             {"gfrmAlpha", "frmAlpha"},
                             {"gfrmDetails", "frmDetails"},
                             {"gfrmDisplayICC", "frmDisplayICC"},
                             {"gfrmDisplayTauSq", "frmDisplayTauSq"},
                             {"gfrmGroupNames", "frmGroupNames"},
                             {"gfrmLevelNames", "frmLevelNames"},
                             {"gfrmLVar", "frmLVar"},
                             {"gfrmScenarios", "frmScenarios"},
                             {"gfrmScenariosName", "frmScenariosName"},
                             {"gfrmTable", "frmTable"},
                             {"gfrmTips", "frmTips"},
                             {"gfrmXVar", "frmXVar"},
                             {"gxPlot", "xPlot"},
                             {"gfrmProblems", "frmProblems"},
                             {"gfrmProblemES", "frmProblemES"},
                             {"gfrmOptimal", "frmOptimal"},
                             {"gfrmMDES", "frmMDES"},
                             {"gfrmTipsGraph", "frmTipsGraph"},
                             {"gfrmOpenWizard", "frmStart"},
                             {"gfrmPrint", "frmPrint"},
                             {"gfrmDelta", "frmDelta"},
                             {"gfrmControlMean", "frmSetMean"},
                             {"gfrmCounts", "frmCounts"}};

}  // namespace

std::vector<std::string> formKeys() {
    std::vector<std::string> keys;
    for (const FormRow& form : forms)
        keys.emplace_back(form.tool);
    return keys;
}

std::string windowOfForm(std::string_view tool) {
    const auto found = std::find_if(std::begin(forms), std::end(forms),
                                    [&](const FormRow& form) { return form.tool == tool; });
    return found == std::end(forms) ? "" : std::string(found->window);
}

}  // namespace lorvane
