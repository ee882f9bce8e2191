// Plays the scripted sessions: a line "> command", then the answer that it must give. Numbers may differ by a
// relative 1e-9; "~" before the answer asks only for the members that stand in it; "..." at the end of a text
// asks for its beginning.
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>

#include "cli/drive.h"
#include "support/test_platform.h"

namespace lorvane {
namespace {

using nlohmann::json;

constexpr double tolerance = 1e-9;

bool sameText(const std::string& got, const std::string& wanted) {
    if (wanted.ends_with("..."))
        return got.starts_with(wanted.substr(0, wanted.size() - 3));
    return got == wanted;
}

bool same(const json& got, const json& wanted, bool partly) {
    if (wanted.is_number() && got.is_number()) {
        const double difference = std::fabs(got.get<double>() - wanted.get<double>());
        return difference <= tolerance * std::max(1.0, std::fabs(wanted.get<double>()));
    }
    if (wanted.is_string() && got.is_string())
        return sameText(got.get<std::string>(), wanted.get<std::string>());
    if (got.type() != wanted.type() || (!partly && got.size() != wanted.size()))
        return false;
    if (!wanted.is_object() && !wanted.is_array())
        return got == wanted;
    for (const auto& [key, member] : wanted.items()) {
        const json* found = nullptr;
        if (wanted.is_object())
            found = got.contains(key) ? &got[key] : nullptr;
        else
            found = std::stoul(key) < got.size() ? &got[std::stoul(key)] : nullptr;
        if (found == nullptr || !same(*found, member, partly))
            return false;
    }
    return true;
}

class Session : public ::testing::TestWithParam<std::filesystem::path> {
protected:
    std::string answer(const std::string& command) { return answerTo(command, session); }

    TestPlatform outside;
    MemoryFileStore& files = outside.files;
    ScriptedDialogs& messages = outside.messages;
    Application application{outside.platform()};
    DriveSession session{application, outside.library, messages};
};

TEST_P(Session, AnswersAsItMust) {
    std::ifstream script(GetParam());
    std::string line, got, command;
    int checked = 0;
    while (std::getline(script, line)) {
        if (line.starts_with("> ")) {
            command = line.substr(2);
            got = answer(command);
        } else if (!line.empty() && !line.starts_with("#")) {
            const bool partly = line.starts_with("~");
            const json wanted = json::parse(line.substr(partly ? 1 : 0));
            EXPECT_TRUE(same(json::parse(got), wanted, partly))
                << command << "\n  got    " << got << "\n  wanted " << line;
            ++checked;
        }
    }
    EXPECT_GT(checked, 0);
}

// What nobody foresaw is answered as well, and the session goes on.
TEST(DriveTest, AnswersEveryFailureAndGoesOn) {
    TestPlatform outside;
    Application application(outside.platform());
    DriveSession session{application, outside.library, outside.messages};
    const std::function<void()> failures[] = {[] { throw std::bad_alloc(); },
                                              [] { throw std::filesystem::filesystem_error("", {}); },
                                              [] { throw 5; }};
    for (const auto& failure : failures) {
        outside.files.onUse = failure;
        const std::string answer = answerTo("open x", session);
        EXPECT_TRUE(answer.starts_with("{\"error\":\"") && answer.ends_with("try again.\"}")) << answer;
    }
    EXPECT_EQ(answerTo("get txtd", session), "{\"txtd\":0}");
}

std::vector<std::filesystem::path> scripts() {
    std::vector<std::filesystem::path> paths;
    for (const auto& entry : std::filesystem::directory_iterator(LORVANE_SESSIONS)) {
        if (entry.path().extension() == ".session")
            paths.push_back(entry.path());
    }
    return paths;
}

INSTANTIATE_TEST_SUITE_P(All, Session, ::testing::ValuesIn(scripts()),
                         [](const auto& named) { return named.param.stem().string(); });

}  // namespace
}  // namespace lorvane
