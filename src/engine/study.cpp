// The start values of a study.
#include "engine/study.h"

namespace lorvane {

namespace {

constexpr double startSize = 2;
constexpr double startSizeOfIndividuals = 10;
constexpr double startSpanOfIndividuals = 10;

}  // namespace

PowerResult::PowerResult() {
    for (LevelFlags* flags : {&xValidDF, &xValidQ, &xValidICC, &xValidMRange, &xValidTauSq, &xValidOmega,
                              &xValidCost, &xValidModel})
        flags->fill(1);
}

OutcomeDispersion::OutcomeDispersion() {
    ValidICC.fill(1);
    ShowICC.fill(1);
    ShowSpan.fill(1);
}

LogitDispersion::LogitDispersion() { ok.fill(1); }

EffectDispersion::EffectDispersion() {
    for (LevelFlags* flags : {&ValidTauSq, &ValidSpan, &ValidOmega})
        flags->fill(1);
    for (PerLevel<int>* flags : {&ShowTauSq, &ShowSpan, &ShowOmega})
        flags->fill(1);
}

Study::Study() {
    txtName(1) = "Subjects";
    txtName(2) = "Level 2s";
    txtName(3) = "Level 3s";
    txtName(4) = "Level 4s";
    txtGroupName(1) = "Treated";
    txtGroupName(2) = "Control";
    for (PerLevel<double>* sizes : {&txtNT, &txtNC, &txtNB}) {
        sizes->fill(startSize);
        (*sizes)(1) = startSizeOfIndividuals;
    }
    txtMRange(1) = startSpanOfIndividuals;
    chkMatch(3) = 1;
    chkMatch(4) = 1;
    LinkN.fill(true);
    LinkCost.fill(true);
}

}  // namespace lorvane
