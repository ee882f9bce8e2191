// The details of every item in every design: whole sentences that hold for the study.
#include <set>

#include "app_bench.h"
#include "base/letter_case.h"
#include "base/names.h"

namespace lorvane {
namespace {

constexpr const char* levelNames[] = {"", "Pupils", "Classes", "Schools", "Towns"};

// All designs, outcomes and ways of entry, with values that fit together and with values that do not.
class EveryDetail : public AppBench {
protected:
    std::string where;  ///< the study, for messages
    void load(int levels, int randomized, const Values& more) {
        Values values = {{"NumLevels", double(levels)},
                         {"RandomizedLevel", double(randomized)},
                         {"txtd", 0.2},
                         {"txtPrev", 0.3},
                         {"txtOR", 1.3},
                         {"txtRR", 1.2},
                         {"txtRD", 0.06},
                         {"txtP2", 0.36}};
        where = "levels " + std::to_string(levels) + " randomized " + std::to_string(randomized);
        for (int level = 1; level <= 4; ++level) {
            values.push_back({indexedName("txtName", level), std::string(levelNames[level])});
            const auto add = [&](const char* stem, double value) {
                values.push_back({indexedName(stem, level), value});
            };
            add("txtNT", level + 3.0);
            add("txtNC", level + 4.0);
            add("txtNB", level + 3.0);
            add("txtICC", 0.05);
            add("txtMRange", level == 1 ? 1.0 : 0.2);
            add("txtTauSq", 0.01);
            add("txtDRange", 0.3);
            add("txtOmega", 0.2);
            add("txtQ", level - 1.0);
            add("txtRsq", level > 1 ? 0.2 : 0.0);
            add("txtModel", level % 2);
            add("txtCostT", 10.0 * level);
        }
        for (const Assignment& assignment : more) {
            values.push_back(assignment);
            const double* number = std::get_if<double>(&assignment.value);
            where += " " + assignment.name + "=" + (number != nullptr ? std::to_string(*number) : "");
        }
        app.load(values);
    }
    template <typename Action>
    void forEveryDesign(Action action) {
        for (int levels = 2; levels <= 4; ++levels) {
            for (int randomized = 1; randomized <= levels; ++randomized)
                action(levels, randomized);
        }
    }
    // A span moves all ICCs, so what holds while the others stay is seen where ICCs are entered.
    bool isEntered(std::string_view field, int level) const {
        if (field == "txtNT" || field == "txtNB")
            return study().isBlocked(level) == (field == "txtNB");
        if (field == "txtICC" || field == "txtMRange")
            return (study().IccMetric == IccMetrics::icc) == (field == "txtICC") &&
                   (field == "txtICC" || level == study().RandomizedLevel);
        return true;
    }
    std::optional<DetailText> at(int item, int row) const {
        return detailText(app.session().state(), DetailItem{item}, row);
    }
};

std::string faultOf(const DetailText& text, int levels) {
    const std::string words = text.title + ".\n" + plainText(text.paragraphs);
    for (const char* part : {"{", "}", "**", "  ", " .", " ,", "..", ",.", "nan", "inf", " \n", "n/a"}) {
        if (words.find(part) != std::string::npos)
            return part + (" in: " + words);
    }
    for (int level = levels + 1; level <= 4; ++level) {
        if (lowerCased(words).find(lowerCased(levelNames[level])) != std::string::npos)
            return std::string("unused level in: ") + words;
    }
    for (const Paragraph& paragraph : text.paragraphs) {
        if (!plainText(paragraph).ends_with('.'))
            return "unfinished: " + plainText(paragraph);
    }
    return text.title.empty() || text.paragraphs.empty() ? "empty" : "";
}

TEST_F(EveryDetail, IsWholeInEveryDesignAndWayOfEntry) {
    const Values outcomes[] = {{{"DType", 1.0}},
                               {{"DType", 2.0}},
                               {{"DataType", 2.0}, {"BinaryType", 1.0}},
                               {{"DataType", 2.0}, {"BinaryType", 2.0}},
                               {{"DataType", 2.0}, {"BinaryType", 3.0}},
                               {{"DataType", 2.0}, {"BinaryType", 4.0}}};
    const Values entries[] = {
        {{"ICC Metric", 1.0}, {"Tau-sq Metric", 1.0}},
        {{"ICC Metric", 2.0}, {"Tau-sq Metric", 2.0}},
        {{"ICC Metric", 1.0}, {"Tau-sq Metric", 3.0}},
        {{"ICC Metric", 2.0}, {"RangeMode", 2.0}},
        {{"ICC Metric", 1.0}, {"txtICC(2)", 0.98}, {"Tau-sq Metric", 3.0}},
        {{"ICC Metric", 2.0}, {"txtMRange(2)", 0.9}, {"txtDRange(2)", 90000.0}},
        {{"txtTauSq(2)", 900000.0}, {"txtCostT(1)", 1000000.0}, {"txtNT(2)", 1000000.0}}};
    const auto check = [&](int levels, const Values& values, int randomized) {
        load(levels, randomized, values);
        EXPECT_FALSE(at(0, 0) || at(8, 0) || at(8, 1));
        for (int item = 1; item <= 12; ++item) {
            for (int row = 0; item != 8 && row <= levels; ++row)
                EXPECT_EQ(faultOf(*at(item, row), levels), "") << where << " item " << item << " row " << row;
            if (!detailLevels(study(), DetailItem{item}).empty()) {
                EXPECT_EQ(plainText(at(item, 0)->paragraphs.back()),
                          "Click on a specific row to get details for that row.");
            }
        }
    };
    forEveryDesign([&](int levels, int randomized) {
        for (Values values : outcomes) {
            for (const Values& entry : entries) {
                Values all = values;
                all.insert(all.end(), entry.begin(), entry.end());
                check(levels, all, randomized);
            }
        }
    });
}

// What a text says of power holds for the study at hand.
TEST_F(EveryDetail, IsRightAboutPower) {
    const struct {
        const char* says;
        int item;
        const char* field;
        double step;
        int sign;  ///< of the change of power
    } claims[] = {{"Power falls as this ICC rises", 4, "txtICC", 0.03, -1},
                  {"Power falls as this ICC rises", 4, "txtMRange", 0.03, -1},
                  {"Power falls as this span rises", 5, "txtICC", 0.03, -1},
                  {"Power falls as this span rises", 5, "txtMRange", 0.03, -1},
                  {"Power falls as tau-squared rises", 6, "txtTauSq", 0.01, -1},
                  {"does not change power", 6, "txtTauSq", 0.01, 0},
                  {"Power falls as effects differ more", 7, "txtTauSq", 0.01, -1},
                  {"which raises power", 9, "txtModel", -1, -1},
                  {"So there is sampling error", 9, "txtModel", 1, 1},
                  {"Power rises with R-squared", 10, "txtRsq", 0.1, 1},
                  {"R-squared at this level does not change power", 10, "txtRsq", 0.1, 0},
                  {"Power rises with the number of", 3, "txtNT", 1, 1},
                  {"Power rises with the number of", 3, "txtNB", 1, 1},
                  {"Costs do not change power", 11, "txtCostT", 5, 0}};
    std::set<std::string> told;
    const auto check = [&](int levels, int randomized, const Values& values) {
        for (const auto& claim : claims) {
            for (int level = 1; level <= levels; ++level) {
                load(levels, randomized, values);
                const std::string words = plainText(at(claim.item, level)->paragraphs);
                if (words.find(claim.says) == std::string::npos || !isEntered(claim.field, level))
                    continue;
                told.insert(claim.says);
                const std::string field = indexedName(claim.field, level);
                const double power = number("txtPower");
                app.set(Values{{field, number(field) + claim.step}});
                const double change = number("txtPower") - power;
                EXPECT_TRUE(claim.sign == 0 ? change == 0 : change * claim.sign > 0)
                    << where << " " << field << " power " << power << " change " << change << "\n"
                    << words;
            }
        }
    };
    forEveryDesign([&](int levels, int randomized) {
        for (const double metric : {1.0, 2.0}) {
            check(levels, randomized, {{"ICC Metric", metric}});
            check(levels, randomized, {{"ICC Metric", metric}, {"DType", 1.0}});
            check(levels, randomized, {{"ICC Metric", metric}, {"DataType", 2.0}});
            // Its formula takes the model of a level to the level above, deliberately.
            if (randomized < 4)
                check(levels, randomized, {{"ICC Metric", metric}, {"DataType", 2.0}, {"BinaryType", 3.0}});
        }
    });
    for (const auto& claim : claims)
        EXPECT_TRUE(told.contains(claim.says)) << claim.says;
}

}  // namespace
}  // namespace lorvane
