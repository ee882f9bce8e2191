// The arrows: limits, steps, snapping, linked arms, and the silence of a held arrow.
#include <cmath>

#include "screen/screen_bench.h"

namespace lorvane {
namespace {

struct Pace {
    int decimals, step;
};

std::vector<Pace> pacesOf(const std::string& source) {
    std::vector<Pace> paces = {{0, 1}};
    if (source == "field" || source == "risks" || source == "stepped")
        paces.insert(paces.end(), {{1, 1}, {2, 1}, {3, 1}, {4, 1}});
    if (source == "sizes" || source == "costs" || source == "stepped")
        paces.insert(paces.end(), {{0, 10}, {0, 100}});
    return paces;
}

/// One field under its arrows, with decimals and a step of its own.
struct Walk : StudyBench {
    Walk(const Texts& row, const Pace& pace, const std::string& preset = "")
        : arrows(findArrows(row[0]).value()), field(findField(row[1]).value()) {
        play(preset);
        write([&](SessionState& state) {
            if (field->decimals != nullptr)
                state.study.decimals.*field->decimals = pace.decimals;
            const bool byOne = row[4] == "field" || row[4] == "whole";  // whatever the steps of other fields
            StudySettings& s = state.settings;
            s.IncN(2) = s.IncCost(2) = s.IncMRange = s.IncMean = s.IncSD = byOne ? 7 : pace.step;
        });
    }

    /// Writes a state as it is, without a computation.
    void write(const Session::Change& change) { session.edit({"", Reach::display}, change); }

    double after(double from, int direction, int clicks = 1) {
        for (write([&](SessionState& state) { writeField(state, field, from); }); clicks > 0; --clicks)
            design.Spin(arrows, direction);
        return readNumberField(session.state(), field);
    }

    FieldRef arrows;
    FieldRef field;
};

void expectLimits(const Texts& row, const Pace& pace) {
    SCOPED_TRACE(testing::Message() << row[0] << ' ' << pace.decimals << ' ' << pace.step);
    Walk walk(row, pace, row[5]);
    const bool lowIsIn = row[2].front() == '[', highIsIn = row[3].back() == ']';
    const double lowest = std::stod(row[2].substr(1)), highest = std::stod(row[3]);
    const double size = pace.step / std::pow(10, pace.decimals);
    const double multiple = lowest == 1 ? pace.step : lowest;  // a size of 1 goes on to its step
    const double low = lowIsIn ? multiple : lowest + size, high = highIsIn ? highest : highest - size;
    EXPECT_NEAR(walk.after(low + size / 2, -1, 2), low, lowIsIn ? 0 : 1e-12);
    EXPECT_NEAR(walk.after(high - size / 2, 1, 2), high, highIsIn ? 0 : 1e-10);
    EXPECT_NEAR(walk.after(low, 1), std::min(low + size, high), 1e-10);
    EXPECT_NEAR(walk.after(high, -1), std::max(high - size, low), 1e-10);
    EXPECT_EQ(walk.after(low, 0), low);
    if (lowIsIn && pace.step == 1) {
        EXPECT_EQ(walk.after(low + size + 9e-7, -1), low) << "nearer than a millionth";
        EXPECT_NEAR(walk.after(low + size + 2e-6, -1), low + 2e-6, 1e-9) << "not so near";
    }
}

TEST(Spin, EveryFieldAtBothEnds) {
    std::vector<const Field*> walked;
    for (Texts row : rowsOf("arrows.txt")) {
        row.resize(6);
        walked.push_back(findArrows(row[0]).value().field);
        for (const Pace& pace : pacesOf(row[4]))
            expectLimits(row, pace);
    }
    for (const Field& field : fieldBook()) {
        EXPECT_EQ(field.arrows == ArrowRule::byStep, std::count(walked.begin(), walked.end(), &field) > 0)
            << field.stem;
    }
}

TEST(Spin, SnapsToTheStepAndCarriesTheOtherArm) {
    for (Texts row : rowsOf("snaps.txt")) {
        row.resize(7);
        for (const bool linked : {true, false}) {
            Walk walk(row, {0, std::stoi(row[3])});
            walk.write([&](SessionState& state) {
                state.study.LinkN(2) = state.study.LinkCost(2) = linked;
                StudyBench::write(state, row[6].empty() ? "" : row[6] + "=5");
            });
            EXPECT_EQ(walk.after(std::stod(row[2]), std::stoi(row[4])), std::stod(row[5]))
                << row[0] << row[2];
            if (!row[6].empty())
                walk.expect(row[6] + '=' + (linked ? row[5] : "5"));
        }
    }
}

/// Only the problem window waits for the end of a held arrow.
TEST_F(ScreenTest, HeldArrowTicksInSilence) {
    for (int tick = 0; tick < 3; ++tick)
        app.spin("spnQ(2)", 1, ArrowHold::tick);
    expect({{"pnlPower.Caption", "Please modify data"}, {"window:15", "0"}, {"txtQ(2)", "3"}});
    app.spinReleased();
    EXPECT_EQ(see("window:15"), "4");
}

}  // namespace
}  // namespace lorvane
