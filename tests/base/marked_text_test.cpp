// Marks of strong text.
#include "base/marked_text.h"

#include <gtest/gtest.h>

namespace lorvane {
namespace {

TEST(MarkedText, ReadsPairsOfMarksAndLeavesALoneOne) {
    const std::pair<const char*, Paragraph> texts[] = {
        {"", {}},
        {"plain", {{"plain"}}},
        {"**all**", {{"all", true}}},
        {"an ICC of **0.10**, then **1**.",
         {{"an ICC of "}, {"0.10", true}, {", then "}, {"1", true}, {"."}}},
        {"**a****b**", {{"a", true}, {"b", true}}},
        {"2 ** 3", {{"2 ** 3"}}},
        {"**a** and ** b", {{"a", true}, {" and ** b"}}},
        {"****", {}}};
    for (const auto& [text, runs] : texts)
        EXPECT_EQ(markedText(text), runs) << text;
}

TEST(MarkedText, IsPlainWithoutItsMarks) {
    EXPECT_EQ(plainText(markedText("an ICC of **0.10**.")), "an ICC of 0.10.");
    EXPECT_EQ(plainText(std::vector<Paragraph>{markedText("**a** b"), markedText("c")}), "a b\n\nc");
    EXPECT_EQ(plainText(std::vector<Paragraph>{}), "");
}

}  // namespace
}  // namespace lorvane
