#include "core/numbers.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <iomanip>
#include <limits>
#include <random>

namespace gw {
namespace {

struct ReadCase {
    const char* text;
    double value;
    bool numeric;
};

class ReadNumberTest : public ::testing::TestWithParam<ReadCase> {};

TEST_P(ReadNumberTest, ReadsLeadingDecimalNumberOnly) {
    const ReadCase& c = GetParam();
    EXPECT_EQ(ReadNumber(c.text), c.value) << '"' << c.text << '"';
    EXPECT_EQ(IsNumericText(c.text), c.numeric) << '"' << c.text << '"';
}

INSTANTIATE_TEST_SUITE_P(
    Texts, ReadNumberTest,
    ::testing::Values(ReadCase{"12a", 12, false}, ReadCase{"   ", 0, false}, ReadCase{"  -3  ", -3, true},
                      ReadCase{"+4", 4, true}, ReadCase{"-.25", -0.25, true}, ReadCase{"5.", 5, true},
                      ReadCase{"1E+2", 100, true}, ReadCase{"1e+", 1, false}, ReadCase{".", 0, false},
                      ReadCase{"inf", 0, false}, ReadCase{"0x1A", 0, false}, ReadCase{"1,5", 1, false},
                      ReadCase{"1e400", 0, false}, ReadCase{"1e-400", 0, true}, ReadCase{"\t7\t", 7, true}));

TEST(ReadNumberTest, IgnoresTheUserLocale) {
    // A comma-decimal locale must not change how a field's text reads.
    const char* previous = std::setlocale(LC_ALL, nullptr);
    std::string saved = previous ? previous : "C";
    if (std::setlocale(LC_ALL, "de_DE.UTF-8") || std::setlocale(LC_ALL, "fr_FR.UTF-8")) {
        EXPECT_EQ(ReadNumber("1.5"), 1.5);
        EXPECT_EQ(FormatNumber(1.5), "1.5");
    }
    std::setlocale(LC_ALL, saved.c_str());
    EXPECT_EQ(ReadNumber("1.5"), 1.5);
}

struct FormatCase {
    double value;
    const char* text;
};

class FormatNumberTest : public ::testing::TestWithParam<FormatCase> {};

TEST_P(FormatNumberTest, WritesTheNumberFormat) { EXPECT_EQ(FormatNumber(GetParam().value), GetParam().text); }

INSTANTIATE_TEST_SUITE_P(Values, FormatNumberTest,
                         ::testing::Values(FormatCase{2, "2.0"}, FormatCase{3.14159, "3.1416"},
                                           FormatCase{1234567.891, "1234567.891"}, FormatCase{99.99999, "100.0"},
                                           FormatCase{-0.00001, "0.0"}, FormatCase{-0.00005, "-0.0001"},
                                           FormatCase{1e20, "100000000000000000000.0"}, FormatCase{2.00005, "2.0001"},
                                           FormatCase{99.7000000000000455, "99.7"}, FormatCase{std::nan(""), ""}));

TEST(PlainNumberTextTest, KeepsFifteenSignificantDigitsWithoutExponent) {
    EXPECT_EQ(PlainNumberText(1.0 / 75), "0.0133333333333333");
    EXPECT_EQ(PlainNumberText(1e-7), "0.0000001");
    EXPECT_EQ(PlainNumberText(0.1 + 0.2), "0.3");
    EXPECT_EQ(ThroughText(0.1 + 0.2), 0.3);
    EXPECT_EQ(PlainNumberText(std::nan("")), "");
}

TEST(FormatWholeNumberTest, NeverWritesMinusZero) {
    EXPECT_EQ(FormatWholeNumber(-0.0), "0");
    EXPECT_EQ(FormatWholeNumber(1e17), "100000000000000000");
}

TEST(FormattedNumbersTest, ReadBackToTheValueTheyShow) {
    for (double v : {0.1, -12.34567, 1e6 / 7, 123456.78915, -0.00004999}) {
        const std::string text = FormatNumber(v);
        EXPECT_TRUE(IsNumericText(text)) << text;
        EXPECT_NEAR(ReadNumber(text), v, 0.0000501) << text;
    }
}

// The fast 15-digit rounding must agree with the C library's exact one everywhere,
// including values whose shortest text has sixteen digits ending in 5.
TEST(PlainNumberTextTest, AgreesWithExactFifteenDigitRounding) {
    std::mt19937_64 rng(7);
    std::uniform_real_distribution<double> mantissa(1.0, 10.0);
    std::uniform_int_distribution<int> exponent(-12, 15);
    auto check = [](double v) {
        char exact[64];
        std::snprintf(exact, sizeof exact, "%.14e", v);
        ASSERT_EQ(ReadNumber(PlainNumberText(v)), std::strtod(exact, nullptr)) << exact;
    };
    for (int i = 0; i < 200000; ++i) {
        const double v = mantissa(rng) * std::pow(10.0, exponent(rng));
        check(v);
        check(-v);
    }
    for (double v : {0.1 + 0.2, 1.0000000000000005, 2.0000000000000049, 9.9999999999999995, 123456.78915, 1e15 - 0.5,
                     999999999999999.5}) {
        check(v);
    }
}

// The number format as the C library's exact 15-digit text gives it, rounded half
// away from zero at the fourth decimal by hand.
std::string FormatByTheCLibrary(double v) {
    char exact[64];
    std::snprintf(exact, sizeof exact, "%.14e", std::fabs(v));
    std::string digits;
    const char* e = exact;
    for (; *e != 'e'; ++e) {
        if (*e != '.') digits += *e;
    }
    const int exponent = std::atoi(e + 1);
    // Digit i (0-based) stands for 10^(exponent - i); pad so that 10^-5 is present.
    std::string fixed;  // integer digits then exactly five decimals
    for (int q = std::max(exponent, 0); q >= -5; --q) {
        const int i = exponent - q;
        fixed += i >= 0 && i < static_cast<int>(digits.size()) ? digits[i] : '0';
    }
    const bool up = fixed.back() >= '5';
    fixed.pop_back();
    if (up) {
        int i = static_cast<int>(fixed.size()) - 1;
        while (i >= 0 && fixed[i] == '9') fixed[i--] = '0';
        if (i < 0) {
            fixed.insert(fixed.begin(), '1');
        } else {
            ++fixed[i];
        }
    }
    std::string integer = fixed.substr(0, fixed.size() - 4), decimals = fixed.substr(fixed.size() - 4);
    while (integer.size() > 1 && integer[0] == '0') integer.erase(0, 1);
    while (decimals.size() > 1 && decimals.back() == '0') decimals.pop_back();
    const bool zero = integer == "0" && decimals == "0";
    return (v < 0 && !zero ? "-" : "") + integer + "." + decimals;
}

// Most values take a direct path that skips the 15-digit text; it must agree with the
// exact text everywhere, above all next to the halves of the fourth decimal.
TEST(FormatNumberTest, AgreesWithTheCLibraryOnRandomValuesAndNearHalves) {
    std::mt19937_64 rng(13);
    std::uniform_real_distribution<double> mantissa(1.0, 10.0);
    std::uniform_int_distribution<int> exponent(-9, 8);
    std::uniform_int_distribution<long long> tenThousandths(0, 9999999999LL);
    std::uniform_int_distribution<int> ulps(-40, 40);
    std::uniform_real_distribution<double> margin(-3e-4, 3e-4);
    for (int i = 0; i < 200000; ++i) {
        double v = mantissa(rng) * std::pow(10.0, exponent(rng));
        if (i % 3 == 1) {
            // A half of the fourth decimal, moved by a few units in the last place.
            v = (static_cast<double>(tenThousandths(rng)) + 0.5) / 1e4;
            for (int k = ulps(rng); k != 0; k += k > 0 ? -1 : 1) v = std::nextafter(v, k > 0 ? 1e300 : 0.0);
        } else if (i % 3 == 2) {
            // Just outside and inside the margin the direct path keeps from a half.
            v = (static_cast<double>(tenThousandths(rng)) + 0.5 + margin(rng)) / 1e4;
        }
        ASSERT_EQ(FormatNumber(v), FormatByTheCLibrary(v)) << std::setprecision(17) << v;
        ASSERT_EQ(FormatNumber(-v), FormatByTheCLibrary(-v)) << std::setprecision(17) << -v;
    }
    std::string appended = "x";
    AppendNumber(appended, 2.00005);
    AppendNumber(appended, std::nan(""));
    EXPECT_EQ(appended, "x2.0001");
}

// Short plain decimals take a fast path; it must read exactly what strtod reads.
TEST(ReadNumberTest, AgreesWithTheCLibraryOnPlainDecimals) {
    std::mt19937 rng(11);
    for (int i = 0; i < 200000; ++i) {
        std::string text;
        if (rng() % 4 == 0) text += '-';
        const int digits = 1 + static_cast<int>(rng() % 17);
        const int point = static_cast<int>(rng() % (digits + 1));
        for (int k = 0; k < digits; ++k) {
            if (k == point && k > 0) text += '.';
            text += static_cast<char>('0' + rng() % 10);
        }
        ASSERT_EQ(ReadNumber(text), std::strtod(text.c_str(), nullptr)) << text;
        ASSERT_TRUE(IsNumericText(text)) << text;
    }
}

}  // namespace
}  // namespace gw
