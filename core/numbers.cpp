#include "numbers.h"

#include <charconv>
#include <cmath>
#include <cstdlib>

namespace gw {
namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t'; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// Where a decimal number starts and ends inside a text, found by hand so that
// nothing the C library would also accept ("inf", "0x1A") slips through.
struct NumberSpan {
    size_t begin = 0;
    size_t end = 0;  // == begin when there is no number
    bool found() const { return end > begin; }
};

NumberSpan ScanNumber(std::string_view s, size_t pos) {
    NumberSpan span{pos, pos};
    size_t i = pos;
    if (i < s.size() && (s[i] == '+' || s[i] == '-')) ++i;
    size_t digits = 0;
    while (i < s.size() && IsDigit(s[i])) { ++i; ++digits; }
    if (i < s.size() && s[i] == '.') {
        size_t j = i + 1;
        size_t fraction = 0;
        while (j < s.size() && IsDigit(s[j])) { ++j; ++fraction; }
        if (digits + fraction > 0) { i = j; digits += fraction; }
    }
    if (digits == 0) return span;
    // The exponent belongs to the number only when at least one digit follows.
    if (i < s.size() && (s[i] == 'e' || s[i] == 'E')) {
        size_t j = i + 1;
        if (j < s.size() && (s[j] == '+' || s[j] == '-')) ++j;
        size_t expDigits = 0;
        while (j < s.size() && IsDigit(s[j])) { ++j; ++expDigits; }
        if (expDigits > 0) i = j;
    }
    span.end = i;
    return span;
}

// Decimal magnitude of a scanned number, used only to tell overflow from underflow
// when from_chars reports a value out of range.
bool LooksLikeOverflow(std::string_view n) {
    size_t i = 0;
    if (n[i] == '+' || n[i] == '-') ++i;
    long long magnitude = 0;
    bool seenNonZero = false;
    bool inFraction = false;
    long long leadingFractionZeros = 0;
    for (; i < n.size() && n[i] != 'e' && n[i] != 'E'; ++i) {
        if (n[i] == '.') { inFraction = true; continue; }
        if (!seenNonZero && n[i] != '0') seenNonZero = true;
        if (!inFraction && seenNonZero) ++magnitude;
        if (inFraction && !seenNonZero) ++leadingFractionZeros;
    }
    if (magnitude == 0) magnitude = -leadingFractionZeros;
    long long exponent = 0;
    if (i < n.size()) {
        ++i;
        bool negative = false;
        if (n[i] == '+' || n[i] == '-') { negative = n[i] == '-'; ++i; }
        for (; i < n.size(); ++i) {
            if (exponent < 100000000) exponent = exponent * 10 + (n[i] - '0');
        }
        if (negative) exponent = -exponent;
    }
    return magnitude + exponent > 0;
}

// Converts a scanned number; false when it does not fit a double.
bool ConvertSpan(std::string_view text, NumberSpan span, double& out) {
    std::string_view n = text.substr(span.begin, span.end - span.begin);
    bool negative = false;
    if (n.front() == '+' || n.front() == '-') {
        negative = n.front() == '-';
        n.remove_prefix(1);
    }
    double value = 0;
    auto result = std::from_chars(n.data(), n.data() + n.size(), value, std::chars_format::general);
    if (result.ec == std::errc::result_out_of_range) {
        if (LooksLikeOverflow(n)) return false;
        value = 0;  // underflow: the number is as good as zero
    } else if (result.ec != std::errc()) {
        return false;
    }
    out = negative ? -value : value;
    return std::isfinite(out);
}

// The value's 15 significant digits and the power of ten of the first one.
struct Digits15 {
    bool negative = false;
    std::string digits;  // exactly 15 digits, first non-zero unless the value is 0
    int exponent = 0;    // value = 0.d1d2... * 10^(exponent + 1)
};

Digits15 SplitDigits(double value) {
    Digits15 d;
    d.negative = std::signbit(value);
    char buf[64];
    auto r = std::to_chars(buf, buf + sizeof buf, std::fabs(value), std::chars_format::scientific, 14);
    std::string_view s(buf, static_cast<size_t>(r.ptr - buf));
    size_t e = s.find('e');
    for (size_t i = 0; i < e; ++i) {
        if (s[i] != '.') d.digits.push_back(s[i]);
    }
    d.exponent = std::atoi(std::string(s.substr(e + 1)).c_str());
    return d;
}

// Integer and fraction digits of the 15-digit value, written out in full.
void PlainParts(const Digits15& d, std::string& integerPart, std::string& fraction) {
    integerPart.clear();
    fraction.clear();
    if (d.exponent >= 0) {
        size_t intLen = static_cast<size_t>(d.exponent) + 1;
        if (intLen >= d.digits.size()) {
            integerPart = d.digits + std::string(intLen - d.digits.size(), '0');
        } else {
            integerPart = d.digits.substr(0, intLen);
            fraction = d.digits.substr(intLen);
        }
    } else {
        integerPart = "0";
        fraction = std::string(static_cast<size_t>(-d.exponent - 1), '0') + d.digits;
    }
    while (!fraction.empty() && fraction.back() == '0') fraction.pop_back();
}

bool AllZero(const std::string& s) { return s.find_first_not_of('0') == std::string::npos; }

}  // namespace

double ReadNumber(std::string_view text) {
    size_t i = 0;
    while (i < text.size() && IsBlank(text[i])) ++i;
    NumberSpan span = ScanNumber(text, i);
    double value = 0;
    if (!span.found() || !ConvertSpan(text, span, value)) return 0;
    return value;
}

bool IsNumericText(std::string_view text) {
    size_t begin = 0;
    size_t end = text.size();
    while (begin < end && IsBlank(text[begin])) ++begin;
    while (end > begin && IsBlank(text[end - 1])) --end;
    if (begin == end) return false;
    NumberSpan span = ScanNumber(text, begin);
    double value = 0;
    return span.found() && span.end == end && ConvertSpan(text, span, value);
}

std::string PlainNumberText(double value) {
    if (!std::isfinite(value)) return {};
    if (value == 0) return "0";
    Digits15 d = SplitDigits(value);
    std::string integerPart, fraction;
    PlainParts(d, integerPart, fraction);
    std::string out = d.negative ? "-" : "";
    out += integerPart;
    if (!fraction.empty()) out += "." + fraction;
    return out;
}

double ThroughText(double value) { return ReadNumber(PlainNumberText(value)); }

std::string FormatNumber(double value) {
    if (!std::isfinite(value)) return {};
    if (value == 0) return "0.0";
    Digits15 d = SplitDigits(value);
    std::string integerPart, fraction;
    PlainParts(d, integerPart, fraction);
    bool roundUp = fraction.size() > 4 && fraction[4] >= '5';
    fraction.resize(4, '0');
    std::string all = integerPart + fraction;
    if (roundUp) {
        size_t i = all.size();
        while (i > 0) {
            --i;
            if (all[i] == '9') {
                all[i] = '0';
            } else {
                ++all[i];
                break;
            }
            if (i == 0) all.insert(all.begin(), '1');
        }
    }
    integerPart = all.substr(0, all.size() - 4);
    fraction = all.substr(all.size() - 4);
    bool zero = AllZero(integerPart) && AllZero(fraction);
    while (fraction.size() > 1 && fraction.back() == '0') fraction.pop_back();
    return (d.negative && !zero ? "-" : "") + integerPart + "." + fraction;
}

std::string FormatWholeNumber(double wholeValue) {
    if (!std::isfinite(wholeValue)) return {};
    double w = std::trunc(wholeValue);
    if (w == 0) return "0";
    return PlainNumberText(w);
}

}  // namespace gw
