// An application on memory files, and everything that can be read of it by name.
#pragma once

#include <gtest/gtest.h>

#include <map>

#include "app/application.h"
#include "base/arithmetic_fault.h"
#include "persistence/scenario_cells.h"
#include "support/test_platform.h"

namespace lorvane {

using Values = std::vector<Assignment>;

class AppBench : public ::testing::Test {
protected:
    const Study& study() const { return app.design().study(); }

    std::string text(const std::string& name) const {
        const auto value = app.names().read(name);
        return value ? std::get<std::string>(*value) : "no such name";
    }

    double number(const std::string& name) const { return std::get<double>(*app.names().read(name)); }

    std::map<std::string, ControlValue> state() const {
        std::map<std::string, ControlValue> values;
        for (const std::string& name : app.names().names())
            values.emplace(name, *app.names().read(name));
        return values;
    }

    // The names whose values differ from an earlier state.
    std::string changedSince(const std::map<std::string, ControlValue>& before) const {
        std::string names;
        for (const auto& [name, value] : state()) {
            if (before.at(name) != value)
                names += name + " ";
        }
        return names;
    }

    // The message of what is refused; "done" when it is not.
    template <typename Action>
    std::string problemOf(Action action) const {
        try {
            action();
        } catch (const std::exception& problem) {
            return problem.what();
        }
        return "done";
    }

    // Appends a scenario: a new study after a change.
    void addScenario(ScenarioGrid& grid, const std::string& name, const std::string& description,
                     const Session::Change& change) {
        Session session(library, detectCurrency(locale), clock);
        session.edit({"", Reach::anew, IfFault::show}, change);
        SaveScenario(grid, session.state(), name, description);
    }

    TestPlatform outside;
    DistributionLibrary& library = outside.library;
    const SystemLocale& locale = outside.locale;
    MemoryFileStore& files = outside.files;
    ScriptedDialogs& messages = outside.messages;
    SteadyClock clock;
    Application app{outside.platform()};
};

}  // namespace lorvane
