// The two panels of the dispersion: what is at fault, what stays to be changed, and what their picture says.
#include "base/names.h"
#include "screen/screen_bench.h"

namespace lorvane {
namespace {

class Dispersion : public ScreenTest {
protected:
    const IccPanel& icc() const { return app.design().iccPanel(); }
    const TauSqPanel& effect() const { return app.design().tauSqPanel(); }

    /// The cells that are outlined, the top level first: "ICC 3, span 1".
    std::string faults() const {
        std::string found;
        const auto add = [&](const char* column, const PerLevel<Cell>& cells) {
            for (int level = highestLevel; level >= lowestLevel; --level) {
                if (cells(level).trouble)
                    found += (found.empty() ? "" : ", ") + std::string(column) + ' ' + std::to_string(level);
            }
        };
        add("ICC", icc().pnlICC);
        add("span", icc().pnlWidth);
        add("tau-sq", effect().pnlTauSq);
        add("effects", effect().pnlWidth);
        add("omega", effect().pnlOmega);
        return found;
    }
};

constexpr const char* threeOfMeans = "NumLevels=3 ICC_Metric=1 ";
constexpr const char* blockedRisks = "NumLevels=3 RandomizedLevel=1 DataType=2 BinaryType=3 txtPrev=0.5 ";

TEST_F(Dispersion, OutlinesWhatHasToBeChanged) {
    const std::string means = threeOfMeans;
    const std::string blocks = means + "RandomizedLevel=1 txtICC(2)=0.1 txtICC(3)=0.2 ";
    const std::string risks = blockedRisks;
    for (const auto& [study, wanted] :
         {std::pair{means + "txtICC(2)=0.1 txtICC(3)=0.2", ""},
          {means + "txtICC(2)=0.41 txtICC(3)=0.62", "ICC 3, ICC 2"},
          {means + "ICC_Metric=2 txtMRange(1)=0", "span 1"},
          {risks + "txtMRange(2)=0.2 txtMRange(3)=1.5", "span 3"},
          {std::string("DataType=2 ICC_Metric=1 txtPrev=0.5 txtOR=0"), ""},
          {means + "RandomizedLevel=1 Tau-sq_Metric=3 txtICC(2)=0 txtICC(3)=0.1 txtOmega(2)=0.5", "omega 2"},
          {means + "RandomizedLevel=1 Tau-sq_Metric=1 txtICC(2)=0 txtICC(3)=0.1", ""},
          {risks + "Tau-sq_Metric=2 txtMRange(2)=0.2 txtMRange(3)=0.2 txtDRange(3)=1.995", "effects 3"},
          {blocks + "Tau-sq_Metric=1 txtTauSq(3)=-1", "tau-sq 3"},
          {blocks + "Tau-sq_Metric=1 txtICC(3)=0.95", "ICC 3, ICC 2"}}) {
        load(study);
        EXPECT_EQ(faults(), wanted) << study;
    }
}

// A fault empties what cannot be told; the field that has to be changed keeps its number.
TEST_F(Dispersion, WhatWasEnteredStaysToBeChanged) {
    load("NumLevels=3 RandomizedLevel=1 ICC_Metric=1 Tau-sq_Metric=3 txtICC(2)=0.05 txtICC(3)=0.1 "
         "txtOmega(2)=0.25 txtOmega(3)=0.09");
    EXPECT_TRUE(icc().picture.Visible && effect().picture.Visible);
    app.set(std::vector<Assignment>{{"txtICC(2)", 0.0}});
    EXPECT_TRUE(icc().picture.Visible);
    EXPECT_FALSE(effect().picture.Visible);
    EXPECT_EQ(effect().pnlOmega(2).Caption + effect().pnlTauSq(2).Caption, "");
    EXPECT_EQ(effect().pnlOmega(2).number, "0.2500");
    EXPECT_EQ(effect().pnlOmega(2).words, "Omega of Level 2s");
    EXPECT_EQ(effect().pnlTauSq(3).number, effect().pnlTauSq(3).Caption);
    app.set(std::vector<Assignment>{{"txtICC(2)", 0.95}});
    EXPECT_FALSE(icc().picture.Visible);
    EXPECT_EQ(icc().pnlICC(2).number, "0.95");
    EXPECT_EQ(icc().pnlWidth(2).number, "") << "no span follows from such ICCs";
    EXPECT_EQ(icc().pnlWidth(1).number, fixedText(app.session().study().txtMRange(1), 2));
}

// A range of risks that was moved off its mean is not centred on it, and no range of an odds ratio is.
TEST_F(Dispersion, FootersTellWhetherTheRangeIsCentred) {
    const std::string blocks = "NumLevels=2 RandomizedLevel=1 DataType=2 ";
    for (const auto& [study, units, effects] :
         {std::tuple{std::string("NumLevels=2 RandomizedLevel=1 txtTauSq(2)=0.01"), true, true},
          {blocks + "BinaryType=3 txtPrev=0.3 txtRD=0.1 txtMRange(2)=0.4 txtTauSq(2)=0.01", true, true},
          {blocks + "BinaryType=3 txtPrev=0.1 txtRD=0.1 txtMRange(2)=0.4 txtTauSq(2)=0.01", false, false},
          {blocks + "BinaryType=1 txtPrev=0.3 txtOR=2 txtMRange(2)=0.4 txtTauSq(2)=0.01", true, false},
          {blocks + "BinaryType=1 txtPrev=0.3 txtOR=2 txtMRange(2)=0.4 txtTauSq(2)=0", true, true},
          {blocks + "BinaryType=1 txtPrev=0.1 txtOR=2 txtMRange(2)=0.4 txtTauSq(2)=0", false, false},
          // The limit of the risks, 0.05, moves a range that 0 would leave alone.
          {blocks + "BinaryType=1 txtDelta=0.05 txtPrev=0.1 txtOR=2 txtMRange(2)=0.15", false, false}}) {
        load(study);
        const auto footer = [](const std::string& what, bool centred) {
            return "Range includes 95% of " + what + (centred ? ", shown centered on mean." : ".");
        };
        EXPECT_EQ(see("frmDisplayICC.pnlFooter.Caption"), footer("units", units)) << study;
        EXPECT_EQ(see("frmDisplayTauSq.pnlFooter.Caption"), footer("effects", effects)) << study;
    }
}

TEST_F(Dispersion, ThePictureOfEffectsHoldsTheRangesAndNoEffect) {
    const std::string blocks = "NumLevels=2 RandomizedLevel=1 ICC_Metric=1 txtICC(2)=0.1 txtTauSq(2)=0.01 ";
    for (const auto& [study, origin, head] :
         {std::tuple{blocks + "txtd=0.3", 0.0, "Range of d"},
          {blocks + "txtd=-2", 0.0, "Range of d"},
          {blocks + "DataType=2 BinaryType=1 txtPrev=0.3 txtOR=0.2", 1.0, "Range of OR"},
          {blocks + "DataType=2 BinaryType=3 txtPrev=0.3 txtRD=0.1", 0.0, "Range of RD"}}) {
        load(study);
        const Schematic& picture = effect().picture;
        EXPECT_EQ(picture.origin, origin) << study;
        EXPECT_TRUE(picture.low <= origin && picture.high >= origin) << study;
        EXPECT_TRUE(picture.low < picture.bars(2).low && picture.high > picture.bars(2).high) << study;
        EXPECT_EQ(effect().lblRange.brief, head);
        EXPECT_EQ(effect().lblRange.Caption.find("Range of the "), 0U) << "the whole head for scripts";
    }
    EXPECT_FALSE(icc().picture.origin) << "outcomes have none";
}

}  // namespace
}  // namespace lorvane
