#include "base/number_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace lorvane {
namespace {

TEST(NumberText, RoundsHalfAwayFromZeroOnTheShortestDecimal) {
    struct Case {
        double value;
        int decimals;
        const char* text;
    };
    for (const Case& c : {Case{0.125, 2, "0.13"},
                          {0.285, 2, "0.29"},
                          {1.005, 2, "1.01"},
                          {-0.125, 2, "-0.13"},
                          {0.5, 0, "1"},
                          {2.5, 0, "3"},
                          {0.4999, 0, "0"},
                          {9.995, 2, "10.00"},
                          {99.5, 0, "100"},
                          {1e-9, 4, "0.0000"},
                          {12, 3, "12.000"},
                          {1e15, 1, "1000000000000000.0"}})
        EXPECT_EQ(fixedText(c.value, c.decimals), c.text) << c.value;
}

TEST(NumberText, AZeroHasNoSign) {
    EXPECT_EQ(fixedText(-0.0, 2), "0.00");
    EXPECT_EQ(fixedText(-0.004, 2), "0.00");
    EXPECT_EQ(fixedText(-0.005, 2), "-0.01");
    EXPECT_EQ(shortestText(-0.0), "0");
}

TEST(NumberText, ASentenceHasShortNumbers) {
    EXPECT_EQ(sentenceText(1e308), "1e308");
    EXPECT_EQ(sentenceText(-2.5e15), "-2.5e15");
    EXPECT_EQ(sentenceText(1e-8), "1e-08");
    EXPECT_EQ(sentenceText(1e14), "100000000000000");
    EXPECT_EQ(sentenceText(0.000001), "0.000001");
    EXPECT_EQ(unreadNumber("0,13"), "\"0,13\"; use a point, not a comma, before the decimals.");
    EXPECT_EQ(unreadNumber("1,2,3"), "\"1,2,3\".");
}

TEST(NumberText, GroupsThousands) {
    EXPECT_EQ(groupedText(0), "0");
    EXPECT_EQ(groupedText(999), "999");
    EXPECT_EQ(groupedText(1000), "1,000");
    EXPECT_EQ(groupedText(-1234567), "-1,234,567");
    EXPECT_EQ(groupedText(std::numeric_limits<std::int32_t>::max()), "2,147,483,647");
}

TEST(NumberText, ShortestTextReadsBackAsTheSameNumber) {
    std::mt19937_64 random(7);
    for (int i = 0; i < 20000; ++i) {
        const double value =
            std::ldexp(static_cast<double>(random()) - 9e18, static_cast<int>(random() % 400) - 200);
        const auto back = readNumber(shortestText(value));
        ASSERT_TRUE(back.has_value());
        EXPECT_EQ(*back, value);
    }
}

TEST(NumberText, ReadsWholeNumbersAndNothingElse) {
    EXPECT_EQ(readNumber(" 1.5 "), 1.5);
    EXPECT_EQ(readNumber("+2"), 2);
    EXPECT_EQ(readNumber("-3e2"), -300);
    for (const char* text :
         {"", " ", "word", "1,5", "1.5x", "++1", "+-1", "inf", "nan", "1e999", "0x10", "1 2"})
        EXPECT_FALSE(readNumber(text).has_value()) << text;
}

}  // namespace
}  // namespace lorvane
