// A study screen without windows, driven and read by the names of its fields and controls.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <sstream>

#include "screen/design.h"
#include "session/field_book.h"
#include "support/test_library.h"

namespace lorvane {

/// Assignments are written as in "L=3 R=2 ICC_Metric=1 ICC(2)=0.1": L and R are levels and randomized level,
/// a "_" is a blank of the name, a name may go without its "txt", "@" stands for a panel.
struct StudyBench {
    NumericDistributionLibrary library;
    ScriptedDialogs messages;
    SteadyClock clock;
    Session session{library, detectCurrency(FixedLocale()), clock};
    Design design{session, messages};
    const Study& study = session.study();
    ControlRegistry registry;

    StudyBench() {
        session.follow([this](const Changed& changed) { design.show(changed); });
        design.registerNames(registry);
    }

    /// Writes fields into a state, and nothing that follows from them.
    static void write(SessionState& state, const std::string& assignments) {
        forEach(assignments, [&](const std::string& name, double value) {
            const auto named = findField(name);
            const FieldRef field = named ? *named : findField("txt" + name).value();
            const bool isFlag = field->member.kind == FieldKind::flag;
            writeField(state, field, isFlag ? FieldValue(value != 0) : FieldValue(value));
        });
    }

    /// Writes the fields as one edit; a ";" begins the next one.
    void play(const std::string& assignments) {
        std::istringstream edits(assignments);
        for (std::string fields; std::getline(edits, fields, ';');)
            session.edit({"values"}, [&](SessionState& state) { write(state, fields); });
    }

    void expect(const std::string& values, const std::string& panel = "") const {
        forEach(values, [&](std::string name, double value) {
            name = name[0] == '@' ? panel + name.substr(1) : registry.read(name) ? name : "txt" + name;
            const ControlValue found = registry.read(name).value();
            EXPECT_NEAR(found.index() == 1 ? std::get<bool>(found) : std::get<double>(found), value, 1e-12)
                << name;
        });
    }

    std::string caption(const std::string& control) const {
        return std::get<std::string>(registry.read(control + ".Caption").value());
    }

    template <typename Action>
    static void forEach(const std::string& assignments, Action action) {
        std::istringstream words(assignments);
        for (std::string word; words >> word;) {
            std::replace(word.begin(), word.end(), '_', ' ');
            const std::string name = word.substr(0, word.find('='));
            const double value = std::atof(word.substr(word.find('=') + 1).c_str());
            action(name == "L" ? "NumLevels" : name == "R" ? "RandomizedLevel" : name, value);
        }
    }
};

/// Plays a file of scenarios: what is played | values afterwards | caption of the control, "-" for an empty
/// one.
inline void playScenarios(const std::string& file, const std::string& panel, const std::string& control,
                          const std::string& preset = "") {
    std::ifstream lines(LORVANE_TEST_DATA "/../validation/scenarios/" + file);
    ASSERT_TRUE(lines) << file;
    for (std::string line, played, expected, text; std::getline(lines, line);) {
        std::istringstream columns(line);
        if (line.empty() || line[0] == '#')
            continue;
        std::getline(columns, played, '|');
        std::getline(columns, expected, '|');
        std::getline(columns >> std::ws, text);
        SCOPED_TRACE(line);
        StudyBench bench;
        bench.play(preset + played + " ;");
        bench.expect(expected, panel);
        EXPECT_EQ(bench.caption(panel + control), text == "-" ? "" : text);
    }
}

}  // namespace lorvane
