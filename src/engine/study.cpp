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
        flags->fill(true);
}

OutcomeDispersion::OutcomeDispersion() {
    ValidICC.fill(true);
    ShowICC.fill(true);
    ShowSpan.fill(true);
}

LogitDispersion::LogitDispersion() { ok.fill(true); }

EffectDispersion::EffectDispersion() {
    for (LevelFlags* flags : {&ValidTauSq, &ValidSpan, &ValidOmega})
        flags->fill(true);
    for (PerLevel<bool>* flags : {&ShowTauSq, &ShowSpan, &ShowOmega})
        flags->fill(true);
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
    LinkN.fill(true);
    LinkCost.fill(true);
}

}  // namespace lorvane
