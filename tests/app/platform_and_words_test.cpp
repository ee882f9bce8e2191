// Names, scripted answers and regional settings; JSON, the words of a session and the printed answers.
#include <cstdlib>
#include <limits>
#include <nlohmann/json.hpp>
#include <sstream>

#include "app_bench.h"
#include "cli/commands.h"
#include "cli/json_text.h"
#include "cli/script_words.h"
#include "os/environment_locale.h"
#include "persistence/study_file.h"

namespace lorvane {
namespace {

using Json = nlohmann::ordered_json;

TEST(Registry, ReadsTheLiveValueOfEveryKind) {
    double real = 0.1;
    int whole = 3;
    bool flag = true;
    std::string text = "a";
    Panel panel;
    Button button;
    Grid grid;
    ControlRegistry names;
    names.add("real", &real);
    names.add("whole", &whole);
    names.add("flag", &flag);
    names.add("text", &text);
    names.add("panel", panel);
    names.add("button", button);
    names.addGrid("grid", grid);
    real = 0.2, whole = 4, flag = false, text = "b";
    panel.Align = Alignment::centred, panel.BackColor = {1, 2, 3}, panel.Flood = 50, button.Enabled = false;
    const std::pair<const char*, ControlValue> wanted[] = {{"real", 0.2},
                                                           {"whole", 4.0},
                                                           {"flag", false},
                                                           {"text", std::string("b")},
                                                           {"panel.Alignment", 7.0},
                                                           {"panel.BackColor", Colour{1, 2, 3}},
                                                           {"panel.ForeColor", black},
                                                           {"panel.Flood", 50.0},
                                                           {"panel.Visible", true},
                                                           {"panel.Caption", std::string()},
                                                           {"button.Enabled", false},
                                                           {"button.Visible", true},
                                                           {"button.Caption", std::string()}};
    for (const auto& [name, value] : wanted)
        EXPECT_EQ(names.read(name), value) << name;
    EXPECT_EQ(names.names().size(), std::size(wanted));
    EXPECT_EQ(names.names().front(), "real");
    for (const char* name : {"panel", "Real", "grid", ""})
        EXPECT_FALSE(names.read(name).has_value()) << name;
    grid.rows = {{"a", "b"}};
    EXPECT_EQ(names.grid("grid").value().rows, grid.rows);
    EXPECT_FALSE(names.grid("real").has_value());
    EXPECT_EQ(names.gridNames(), std::vector<std::string>{"grid"});
}

TEST(ScriptedAnswers, ComeFromTheQueueElseAreHarmless) {
    using enum Answer;
    struct Case {
        std::vector<Answer> queued, buttons;
        Answer answer;
    };
    for (const Case& c : {Case{{}, {OK}, OK},
                          {{}, {Yes}, Yes},
                          {{}, {OK, Cancel}, Cancel},
                          {{}, {Yes, No}, No},
                          {{}, {Yes, No, Cancel}, Cancel},
                          {{OK}, {OK, Cancel}, OK},
                          {{Yes}, {OK, Cancel}, Cancel},
                          {{No, Yes}, {Yes, No}, No}}) {
        ScriptedDialogs boxes;
        for (const Answer answer : c.queued)
            boxes.queue(answer);
        EXPECT_EQ(boxes.show({"title", "text ", {c.buttons.begin(), c.buttons.end()}}), c.answer);
        const auto shown = boxes.take();
        ASSERT_EQ(shown.size(), 1u);
        const auto& message = std::get<ScriptedDialogs::ShownMessage>(shown[0]);
        EXPECT_EQ(message.answer, c.answer);
        EXPECT_EQ(message.message.text, "text ");
        EXPECT_TRUE(boxes.take().empty());
    }
    ScriptedDialogs boxes;
    boxes.queue(Yes);
    boxes.queue(OK);
    boxes.show({"", "", {OK, Cancel}});
    EXPECT_EQ(boxes.show({"", "", {OK, Cancel}}), OK) << "an answer that is not offered is used up";
}

TEST(EnvironmentLocaleTest, WithoutSettingsThereIsNoSymbol) {
    const char* before = std::getenv("LC_ALL");
    const std::string kept = before == nullptr ? "" : before;
    for (const char* name : {"C", "no_SUCH.locale"}) {
        ::setenv("LC_ALL", name, 1);
        EXPECT_EQ(EnvironmentLocale().currencyOfZero(), "0.00") << name;
    }
    before == nullptr ? ::unsetenv("LC_ALL") : ::setenv("LC_ALL", kept.c_str(), 1);
}

TEST(JsonText, EveryDoubleReadsBackAsItWas) {
    using Limits = std::numeric_limits<double>;
    for (const double value : {0.1, 1.0 / 3, -2.5e-300, Limits::max(), Limits::denorm_min(), 1e23, 5.0, -0.0})
        EXPECT_EQ(Json::parse(jsonText(Json(value))).get<double>(), value);
    EXPECT_EQ(jsonText(Json(0.1)), "0.10000000000000001");
    for (const double value : {Limits::infinity(), -Limits::infinity(), Limits::quiet_NaN()})
        EXPECT_EQ(jsonText(Json::array({value})), "[null]");
}

TEST(JsonText, WritesEveryKindOnOneLine) {
    const std::pair<Json, const char*> table[] = {
        {Json::object(), "{}"},
        {Json::array(), "[]"},
        {Json{{"z", Json::array()}, {"a", Json::object()}}, R"({"z":[],"a":{}})"},
        {Json::array({nullptr, true, -7, "a\"\n\\"}), R"([null,true,-7,"a\"\n\\"])"},
        {"bad \xFF end", "\"bad \xEF\xBF\xBD end\""},
        {jsonOf(ControlValue(Colour{200, 0, 255})), "[200,0,255]"},
        {jsonOf(ControlValue(true)), "true"},
        {jsonOf(ControlValue(2.0)), "2"},
        {jsonOf(ControlValue(std::string("é"))), "\"é\""},
        {jsonOf(Grid{{{"a"}, {}, {"b", "c"}}}), R"([["a",""],["",""],["b","c"]])"},
        {jsonOf(Grid{}), "[]"}};
    for (const auto& [value, text] : table)
        EXPECT_EQ(jsonText(value), text);
    EXPECT_EQ(jsonText(Json{{"k\xC3", 1}}), "{\"k\xEF\xBF\xBD\":1}");
}

TEST(Words, ComeOneByOneQuotedAsInJson) {
    ScriptWords words("  set \t\"txt \\\"a\\\" \\u00e9\\\\\"next  last word \r");
    EXPECT_EQ(words.next(), "set");
    EXPECT_EQ(words.next(), "txt \"a\" é\\");
    EXPECT_EQ(words.need("A word"), "next");
    EXPECT_FALSE(words.atEnd());
    EXPECT_EQ(words.rest(), "last word");
    EXPECT_TRUE(words.atEnd());
    EXPECT_EQ(words.next(), std::nullopt);
    EXPECT_EQ(words.rest(), "");
    EXPECT_EQ(ScriptWords(" \" a \" ").rest(), " a ");
    EXPECT_EQ(ScriptWords("\"\"").next(), "");
    EXPECT_EQ(ScriptWords("a\"b c\"").next(), "a\"b");
}

TEST(Words, TellWhatIsWrong) {
    const std::pair<const char*, const char*> table[] = {
        {"\"open", "A name in quotes has no closing quote."},
        {"\"", "A name in quotes has no closing quote."},
        {"\"end\\\"", "A name in quotes has no closing quote."},
        {"\"end\\", "A name in quotes has no closing quote."},
        {"\"\\q\"", "A name in quotes is no JSON text."},
        {"\"\xFF\"", "A name in quotes is no JSON text."},
        {" ", "A field is missing."}};
    for (const auto& [line, problem] : table) {
        try {
            ScriptWords(line).need("A field");
            ADD_FAILURE() << line;
        } catch (const UseProblem& refused) {
            EXPECT_STREQ(refused.what(), problem);
        }
    }
}

class Printing : public AppBench {
protected:
    const Study& study() const { return session.study(); }
    void make(const Values& values) {
        loadValues(session, values);
        store.save(session, "s");
    }
    int power(bool json, const std::vector<std::string>& settings = {}, const std::string& scenario = "") {
        out.str("");
        errors.str("");
        return printPower({"s", settings, scenario, json}, commands);
    }

    std::ostringstream out, errors;
    Session session{library, detectCurrency(locale), clock};
    StudyStore store{files, "/program"};
    CommandLine commands{session, store, out, errors};
};

TEST_F(Printing, PowerOfAStudyThatHasOne) {
    make({{"txtd", 0.5}, {"txtNT(2)", 20.0}, {"txtNC(2)", 20.0}, {"txtCostT(2)", 100.0}});
    EXPECT_EQ(power(false, {"txtCostC(2)=50"}), ExitCodes::done);
    EXPECT_EQ(errors.str(), "");
    // 20 x 100 + 20 x 50; 20 + 20 - 2 degrees of freedom.
    for (const char* line : {"Power               0.", "Critical value      2.02", "Degrees of freedom  38\n",
                             "Cost                $3,000\n",
                             "Effect              Standardized mean difference, d (total) 0.5\n"})
        EXPECT_NE(out.str().find(line), std::string::npos) << out.str();
    EXPECT_EQ(power(true), ExitCodes::done);
    const Json answer = Json::parse(out.str());
    EXPECT_TRUE(answer["valid"].get<bool>());
    EXPECT_EQ(answer["df"], 38);
    EXPECT_EQ(answer["power"].get<double>(), study().result.txtPower);
    EXPECT_EQ(answer["cost"], 2000);
    EXPECT_EQ(answer["message"], "");
    EXPECT_EQ(power(false, {"DType=1", "txtd=-1.25"}), ExitCodes::done);
    EXPECT_NE(out.str().find("d (within) -1.25\n"), std::string::npos) << out.str();
}

TEST_F(Printing, PowerThatThereIsNot) {
    const std::tuple<Values, const char*, const char*, const char*> table[] = {
        {{{"txtd", 0.5}, {"txtRsq(2)", 0.5}},
         "Standardized mean difference, d (total) 0.5",
         "It is not possible for R-squared",
         "standardized mean difference, d (total)"},
        {{{"DataType", 2.0}, {"BinaryType", 2.0}, {"txtRR", 1.5}},
         "Risk ratio 1.5",
         "The effect metric \"risk ratio\" has no test",
         "risk ratio"},
        {{{"DataType", 2.0}, {"BinaryType", 4.0}, {"txtP2", 0.75}},
         "Event rate in each group 0.75",
         "The effect metric \"event rate in each group\"",
         "event rate in each group"}};
    for (const auto& [values, effect, message, name] : table) {
        make(values);
        EXPECT_EQ(power(false), ExitCodes::noAnswer);
        EXPECT_EQ(out.str(), "Cost                n/a\nEffect              " + std::string(effect) + "\n");
        EXPECT_TRUE(errors.str().starts_with(message)) << errors.str();
        EXPECT_EQ(errors.str().find('\n'), errors.str().size() - 1) << "one line";
        EXPECT_EQ(errors.str().find("  "), std::string::npos);
        EXPECT_EQ(power(true), ExitCodes::noAnswer);
        const Json answer = Json::parse(out.str());
        EXPECT_FALSE(answer["valid"].get<bool>());
        for (const char* member : {"power", "criticalValue", "df", "lambda", "cost"})
            EXPECT_TRUE(answer.at(member).is_null()) << member;
        EXPECT_EQ(answer["effectName"], name);
        EXPECT_TRUE(answer["message"].get<std::string>().starts_with(message));
    }
}

TEST_F(Printing, NewStudiesAndWrongSettings) {
    EXPECT_EQ(makeNew({"made", {"NumLevels=3", "txtName(1)=a = b"}}, commands), ExitCodes::done);
    EXPECT_EQ(out.str(), "The file made has been saved.\n");
    loadValues(session, {});
    store.open(session, "made");
    EXPECT_EQ(study().NumLevels, 3);
    EXPECT_EQ(study().txtName(1), "a = b");
    EXPECT_EQ(problemOf([&] {
                  makeNew({"bad", {"txtd"}}, commands);
              }),
              "--set takes FIELD=VALUE, not \"txtd\".");
    EXPECT_THROW(makeNew({"bad", {"txtd=99"}}, commands), UseProblem);
    EXPECT_FALSE(files.files.contains("bad"));
    EXPECT_THROW(printScenarios({"none", false}, commands), FileProblem);
}

class PrintedScenarios : public Printing {
protected:
    // Without an effect the power is alpha; one unit an arm leaves no degrees of freedom.
    PrintedScenarios() {
        add(30, "Plain");
        add(1, "Größe");
    }
    void add(double size, const char* name) {
        addScenario(grid, name, "x", [&](SessionState& state) {
            state.study.txtNT(2) = state.study.txtNC(2) = size;
            state.study.txtCostT(2) = 1000;
        });
    }
    std::string print(bool json) {
        SaveGrid(files, "s", grid);
        out.str("");
        EXPECT_EQ(printScenarios({"s", json}, commands), ExitCodes::done);
        return out.str();
    }

    ScenarioGrid grid;
};

TEST_F(PrintedScenarios, AsJson) {
    EXPECT_EQ(print(true),
              R"({"scenarios":[{"name":"Plain","description":"x","power":"0.050","cost":"30,000"},)"
              R"({"name":"Größe","description":"x","power":"","cost":"1,000"}]})"
              "\n");
    grid = ScenarioGrid();
    add(5, "System ABCDE");
    EXPECT_EQ(print(true), "{\"scenarios\":[]}\n");
    EXPECT_EQ(print(false), "Name  Description  Power  Cost\n");
}

TEST_F(PrintedScenarios, InColumns) {
    grid.DeleteScenario("Größe");
    add(1, "Bare");
    EXPECT_EQ(print(false), "Name   Description  Power    Cost\n"
                            "Plain  x            0.050  30,000\n"
                            "Bare   x                    1,000\n");
}

TEST_F(PrintedScenarios, ColumnsStandInLineWithLettersOfEveryAlphabet) {
    EXPECT_EQ(print(false), "Name   Description  Power    Cost\n"
                            "Plain  x            0.050  30,000\n"
                            "Größe  x                    1,000\n");
}

}  // namespace
}  // namespace lorvane
