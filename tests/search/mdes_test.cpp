// The smallest detectable effect against a scan of all effects, its words, and the study that it leaves.
#include <map>

#include "engine/design_routines.h"
#include "search/mdes_texts.h"
#include "support/random_study.h"
#include "validation/study_bench.h"

namespace lorvane {
namespace {

struct Mdes : testing::Test {
    // The power of the searched study with another effect, -1 where it has none.
    double power(double effect) {
        StudyTrial trial = bench.session.trial();
        trial.study.*effectField(trial.study) = effect;
        trial.refresh();
        return trial.study.result.xValid ? trial.study.result.txtPower : -1;
    }

    std::map<std::string, ControlValue> state() {
        std::map<std::string, ControlValue> values;
        for (const std::string& name : bench.registry.names())
            values.emplace(name, *bench.registry.read(name));
        return values;
    }

    // A search that must leave no trace.
    MdesResult search(double required) {
        bench.session.edit({"values"}, [this](SessionState& state) { state.study = study; });
        const auto before = state();
        const MdesResult result = FindMDES(bench.session.trial(), required);
        EXPECT_EQ(state(), before);
        return result;
    }

    void fill(const std::string& assignments) {
        SessionState fresh;
        StudyBench::write(fresh, assignments);
        study = fresh.study;
    }

    void design(int levels, int randomized, RandomStudies& random) {
        study = studyOf(levels, randomized);
        study.IccMetric = IccMetrics::icc;
        study.txtTails = Tails(random.whole(1, 2));
        study.PowerOption = PowerOptions(random.whole(1, 2));
        for (int level = 1; level <= levels; ++level) {
            study.txtNT(level) = random.whole(2, 12);
            study.txtNC(level) = random.whole(2, 12);
            study.txtNB(level) = random.whole(2, 12);
            study.txtICC(level) = random.real(0, 0.15);
            study.txtTauSq(level) = random.real(0, 0.03);
        }
        for (auto* sizes : {&study.txtNT, &study.txtNC, &study.txtNB})
            (*sizes)(levels) = random.whole(8, 40);
    }

    template <typename Check>
    void forAllDesigns(int rounds, Check check) {
        RandomStudies random(7);
        for (int round = 0; round < rounds; ++round) {
            for (int levels = 2; levels <= 4; ++levels) {
                for (int randomized = 1; randomized <= levels; ++randomized) {
                    design(levels, randomized, random);
                    SCOPED_TRACE(std::string(routinesOf(levels, randomized).name) + std::to_string(round));
                    check(random, random.whole(0, 1) == 0 ? 1 : -1);
                }
            }
        }
    }

    void checkBinary(const MdesResult& result, double required, double null, double step, int direction,
                     double finest);

    StudyBench bench;
    Study study;  ///< what is searched next
};

TEST_F(Mdes, MeansGiveTheSmallestThousandthOfAScan) {
    forAllDesigns(6, [&](RandomStudies& random, int direction) {
        study.DType = DTypes(random.whole(1, 2));
        study.txtd = direction * 0.4;
        const double required = random.real(0.3, 0.99);
        const MdesResult result = search(required);
        int thousandths = 1;
        while (power(direction * thousandths / 1000.0) < required)
            ++thousandths;
        ASSERT_EQ(result.outcome, MdesOutcome::found);
        EXPECT_EQ(result.effect, direction * thousandths / 1000.0);
        EXPECT_LT(result.runs, 60);
    });
}

/// Exact inversions of the noncentral t of other programs, which know no multiples of 0.001.
TEST_F(Mdes, MeansAgreeWithPeers) {
    const std::pair<const char*, double> peers[] = {
        {"L=2 R=2 NT(1)=25 NC(1)=25 NT(2)=3 NC(2)=3 ICC(2)=0.15", 1.31726540444},
        {"L=3 R=3 NT(1)=15 NC(1)=15 NT(2)=3 NC(2)=3 NT(3)=30 NC(3)=30 ICC(2)=0.17 ICC(3)=0.06",
         0.269056506006},
        {"L=4 R=4 NT(1)=10 NC(1)=10 NT(2)=2 NC(2)=2 NT(3)=3 NC(3)=3 NT(4)=10 NC(4)=10 ICC(2)=0.1 "
         "ICC(3)=0.05 ICC(4)=0.05",
         0.411944527437}};
    for (const auto& [values, exact] : peers) {
        fill(std::string("ICC_Metric=1 ") + values);
        const double found = search(0.8).effect;
        EXPECT_TRUE(found >= exact && found < exact + 0.001) << found << " for " << exact;
    }
}

// Below the effect no scanned power exceeds what is required, and one finest step on it does.
void Mdes::checkBinary(const MdesResult& result, double required, double null, double step, int direction,
                       double finest) {
    double peak = 0;
    bool earlier = false;
    for (int n = 0;; ++n) {
        const double effect = null + direction * n * step;
        const double found = power(effect);
        if (found < 0)
            break;
        peak = std::max(peak, found);
        earlier = earlier || (found > required + 1e-12 &&
                              std::fabs(effect - null) < std::fabs(result.effect - null) - finest / 2);
    }
    if (result.outcome == MdesOutcome::found) {
        EXPECT_FALSE(earlier) << result.effect;
        EXPECT_LE(result.power, required);
        EXPECT_GT(power(result.effect + direction * finest), required) << result.effect;
    } else {
        ASSERT_EQ(result.outcome, MdesOutcome::outOfReach);
        EXPECT_LE(peak, required);
        EXPECT_NEAR(result.power, peak, 2e-4);
        EXPECT_GE(power(result.effect), peak - 2e-4) << "the effect told is admissible";
    }
}

TEST_F(Mdes, OddsRatioAndRiskDifferenceAgreeWithAScanOfTheAdmissibleRange) {
    int found = 0;
    int searches = 0;
    forAllDesigns(6, [&](RandomStudies& random, int direction) {
        const bool ratio = random.whole(0, 1) == 0;
        study.DataType = DataTypes::binary;
        study.BinaryType = ratio ? BinaryTypes::oddsRatio : BinaryTypes::riskDifference;
        study.txtPrev = random.real(0.2, 0.8);
        study.limits.txtDelta = 0.05;
        study.txtOR = direction == 1 ? 1.1 : 0.9;
        study.txtRD = direction * 0.02;
        const double required = random.real(0.3, 0.99);
        const MdesResult result = search(required);
        const double finest = ratio ? (direction == 1 ? 0.001 : 0.0001) : 1e-6;
        checkBinary(result, required, ratio ? 1 : 0, 0.001, direction, finest);
        found += result.outcome == MdesOutcome::found;
        ++searches;
    });
    EXPECT_TRUE(found > searches / 2 && found < searches) << found << " of " << searches;
}

/// However far the range reaches and however little the units tell, the search ends soon.
TEST_F(Mdes, EverySearchIsShort) {
    for (const double rate : {0.00011, 0.001, 0.05, 0.5, 0.95, 0.9998}) {
        for (const BinaryTypes type : {BinaryTypes::oddsRatio, BinaryTypes::riskDifference}) {
            for (const double units : {2.0, 20.0, 5000.0}) {
                for (const int direction : {1, -1}) {
                    study = Study();
                    study.DataType = DataTypes::binary;
                    study.BinaryType = type;
                    study.txtPrev = rate;
                    study.limits.txtDelta = 0.0001;
                    study.txtRD = direction * 1e-6;
                    study.txtOR = 1 + direction * 1e-6;
                    study.txtNT(2) = study.txtNC(2) = units;
                    study.txtNT(1) = study.txtNC(1) = 50;
                    EXPECT_LT(search(0.8).runs, 1500)
                        << rate << ' ' << static_cast<int>(type) << ' ' << units;
                }
            }
        }
    }
    study = Study();
    study.txtQ(2) = 1, study.txtNT(2) = study.txtNC(2) = 2;
    study.txtICC(2) = 0.99, study.IccMetric = IccMetrics::icc;
    study.txtAlpha = 0.001;
    EXPECT_LT(search(0.99).runs, 100) << "a very large d";
}

/// Every end of a search in its words, most of them for an odds ratio beside a rate of 0.4.
TEST_F(Mdes, WordsOfEveryEnd) {
    struct Case {
        const char* values;
        const char* first;
        const char* second;
    };
    static constexpr const char* rates = "This corresponds to event rates (Treated vs. Control) of ";
    const Case cases[] = {
        {"DataType=1 d=-0.4 DType=1",
         "The minimum detectable effect size is a standardized mean difference (d) of -0.20,",
         "where d is standardized by the within-cell standard deviation"},
        {"DataType=1 d=-0.4 NT(2)=20000 NC(2)=20000 NT(1)=200 NC(1)=200",
         "The minimum detectable effect size is a standardized mean difference (d) of 0.00,",
         "where d is standardized by the total standard deviation"},
        {"OR=2", "The minimum detectable effect size is an odds ratio of 1.508", "0.501 vs. 0.400."},
        {"OR=0.5", "The minimum detectable effect size is an odds ratio of 0.651", "0.303 vs. 0.400."},
        {"BinaryType=3", "The minimum detectable effect size is a risk difference of 0.098393",
         "0.498 vs. 0.400."},
        {"OR=2 NT(1)=5 NC(1)=5", "The minimum detectable effect size is an odds ratio of 2.295",
         "However, with this odds ratio there will be a problem of low cell counts."},
        {"OR=2 NT(2)=2 NC(2)=2 ICC(2)=0.02",
         "The highest possible power is 55.74%, with an effect size of 24.889.",
         "The range of allowable effects was limited by the high ICCs."},
        {"BinaryType=3 NT(2)=2 NC(2)=2 NT(1)=5 RD=-0.1 txtDelta=0.1",
         "The highest possible power is 40.88%, with an effect size of -0.3.",
         "Increase the number of units or add covariates, and then try again."},
        {"BinaryType=2", "There is a problem with the design", "Please correct the error and try again"},
        {"OR=2 ICC(2)=0.995", "There is a problem with the design", "Please correct the error and try again"},
    };
    for (const Case& c : cases) {
        fill(std::string("DataType=2 ICC_Metric=1 Prev=0.4 NT(2)=20 NC(2)=20 NT(1)=20 NC(1)=20 ") + c.values);
        const MdesLines lines = mdesLines(study, search(0.8));
        const bool ofRates = c.second[0] == '0';
        EXPECT_EQ(lines.first, c.first);
        EXPECT_EQ(lines.second, (ofRates ? rates : "") + std::string(c.second)) << c.values;
    }
}

/// Distribution functions that cannot go on after some calls.
struct FailingLibrary final : DistributionLibrary {
    void VBDNORDF(double x, double& p) override { real.VBDNORDF(x, p); }
    void VBDNORIN(double p, double& x) override { real.VBDNORIN(p, x); }
    void VBDTIN(double p, double df, double& t) override { real.VBDTIN(p, df, t); }
    void VBDTNDF(double t, double df, double lambda, double& p) override { real.VBDTNDF(t, df, lambda, p); }
    void NoncentralTTails(double t, double df, double lambda, double& above, double& below) override {
        if (--callsLeft == 0)
            throw ArithmeticFault("NoncentralTTails");
        real.NoncentralTTails(t, df, lambda, above, below);
    }
    NumericDistributionLibrary real;
    int callsLeft = -1;
};

TEST_F(Mdes, AFaultOnTheWayPutsTheStudyBack) {
    FailingLibrary library;
    Session failing(library, {}, bench.clock);
    failing.edit({"effect"}, [](SessionState& state) { state.study.txtd = 0.25; });
    const double before = failing.study().result.txtPower;
    library.callsLeft = 4;
    EXPECT_THROW(FindMDES(failing.trial(), 0.8), ArithmeticFault);
    EXPECT_EQ(failing.study().txtd, 0.25);
    EXPECT_EQ(failing.study().result.txtPower, before);
}

}  // namespace
}  // namespace lorvane
