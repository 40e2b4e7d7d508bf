#include "core/numbers.h"

#include <charconv>
#include <cmath>
#include <algorithm>
#include <cstring>

namespace gw {
namespace {

constexpr double kPow10[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                             1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

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
    while (i < s.size() && IsDigit(s[i])) {
        ++i;
        ++digits;
    }
    if (i < s.size() && s[i] == '.') {
        size_t j = i + 1;
        size_t fraction = 0;
        while (j < s.size() && IsDigit(s[j])) {
            ++j;
            ++fraction;
        }
        if (digits + fraction > 0) {
            i = j;
            digits += fraction;
        }
    }
    if (digits == 0) return span;
    // The exponent belongs to the number only when at least one digit follows.
    if (i < s.size() && (s[i] == 'e' || s[i] == 'E')) {
        size_t j = i + 1;
        if (j < s.size() && (s[j] == '+' || s[j] == '-')) ++j;
        size_t expDigits = 0;
        while (j < s.size() && IsDigit(s[j])) {
            ++j;
            ++expDigits;
        }
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
        if (n[i] == '.') {
            inFraction = true;
            continue;
        }
        if (!seenNonZero && n[i] != '0') seenNonZero = true;
        if (!inFraction && seenNonZero) ++magnitude;
        if (inFraction && !seenNonZero) ++leadingFractionZeros;
    }
    if (magnitude == 0) magnitude = -leadingFractionZeros;
    long long exponent = 0;
    if (i < n.size()) {
        ++i;
        bool negative = false;
        if (n[i] == '+' || n[i] == '-') {
            negative = n[i] == '-';
            ++i;
        }
        for (; i < n.size(); ++i) {
            if (exponent < 100000000) exponent = exponent * 10 + (n[i] - '0');
        }
        if (negative) exponent = -exponent;
    }
    return magnitude + exponent > 0;
}

// Plain decimals of at most fifteen digits without exponent, the usual content of
// a field: the digits as an integer and one division by an exact power of ten give
// the correctly rounded value.
bool FastConvert(std::string_view n, double& out) {
    if (n.size() > 16) return false;
    unsigned long long mantissa = 0;
    int digits = 0;
    int fraction = -1;
    for (char c : n) {
        if (c == '.') {
            fraction = 0;
        } else if (IsDigit(c)) {
            mantissa = mantissa * 10 + static_cast<unsigned>(c - '0');
            ++digits;
            if (fraction >= 0) ++fraction;
        } else {
            return false;  // an exponent
        }
    }
    if (digits > 15) return false;
    out = fraction > 0 ? static_cast<double>(mantissa) / kPow10[fraction] : static_cast<double>(mantissa);
    return true;
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
    if (FastConvert(n, value)) {
        out = negative ? -value : value;
        return true;
    }
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
    char digits[15];   // first non-zero unless the value is 0
    int exponent = 0;  // the first digit stands for 10^exponent

    // The digit that stands for 10^power, 0 outside the fifteen.
    char At(int power) const {
        const int i = exponent - power;
        return i >= 0 && i < 15 ? digits[i] : '0';
    }
};

// Digits and exponent of a scientific text "d.ddde+XX" from to_chars.
int ParseScientific(const char* p, const char* end, char* digits) {
    int n = 0;
    for (; p < end && *p != 'e'; ++p) {
        if (*p != '.') digits[n++] = *p;
    }
    return n;
}

int ParseExponent(const char* end, const char* e) {
    const bool negative = e[1] == '-';
    int exponent = 0;
    for (const char* p = e + 2; p < end; ++p) exponent = exponent * 10 + (*p - '0');
    return negative ? -exponent : exponent;
}

Digits15 PreciseDigits(double magnitude, bool negative) {
    Digits15 d;
    d.negative = negative;
    char buf[40];
    auto r = std::to_chars(buf, buf + sizeof buf, magnitude, std::chars_format::scientific, 14);
    ParseScientific(buf, r.ptr, d.digits);
    d.exponent = ParseExponent(r.ptr, std::find(buf, r.ptr, 'e'));
    return d;
}

// The 15-digit rounding of the value. The shortest text that reads back to the
// value is cheap to get and, padded or rounded, gives the same fifteen digits; the
// one case it cannot decide (sixteen digits ending in 5, a tie in the shortest
// text but not in the value) takes the exact conversion.
// Values from 1e-8 up to 1e15, which is every number a curve produces: the value
// times a power of ten, rounded to an integer of fifteen digits, with the product's
// exact remainder from fma deciding the rare case where the rounded product sits
// on a half. Rounds exact halves to even, as the C library does.
bool FastDigits(double magnitude, bool negative, Digits15& d) {
    if (!(magnitude >= 1e-8 && magnitude < 1e15)) return false;
    int e = 0;
    if (magnitude >= 1) {
        while (e < 15 && magnitude >= kPow10[e + 1]) ++e;
    } else {
        e = -1;
        while (magnitude * kPow10[-e] < 1) --e;  // exact enough: only picks the scale
    }
    const int k = 14 - e;
    if (k < 0 || k > 22) return false;
    const double scale = kPow10[k];
    const double p = magnitude * scale;
    if (!(p >= 1e14 && p < 1e15)) return false;  // the scale was off by one
    const double err = std::fma(magnitude, scale, -p);
    double whole = std::floor(p);
    const double frac = p - whole;
    if (frac > 0.5 || (frac == 0.5 && (err > 0 || (err == 0 && std::fmod(whole, 2) != 0)))) whole += 1;
    auto n = static_cast<unsigned long long>(whole);
    if (n == 1000000000000000ULL) {  // rounding carried into a sixteenth digit
        n /= 10;
        ++e;
    }
    d.negative = negative;
    d.exponent = e;
    for (int i = 14; i >= 0; --i) {
        d.digits[i] = static_cast<char>('0' + n % 10);
        n /= 10;
    }
    return true;
}

Digits15 SplitDigits(double value) {
    const double magnitude = std::fabs(value);
    const bool negative = std::signbit(value);
    Digits15 fast;
    if (FastDigits(magnitude, negative, fast)) return fast;
    char buf[40];
    auto r = std::to_chars(buf, buf + sizeof buf, magnitude, std::chars_format::scientific);
    char digits[20];
    const int n = ParseScientific(buf, r.ptr, digits);
    if (n == 16 && digits[15] == '5') return PreciseDigits(magnitude, negative);

    Digits15 d;
    d.negative = negative;
    d.exponent = ParseExponent(r.ptr, std::find(buf, r.ptr, 'e'));
    for (int i = 0; i < 15; ++i) d.digits[i] = i < n ? digits[i] : '0';
    if (n > 15 && digits[15] >= '5') {
        int i = 14;
        while (i >= 0 && d.digits[i] == '9') d.digits[i--] = '0';
        if (i >= 0) {
            ++d.digits[i];
        } else {
            d.digits[0] = '1';
            ++d.exponent;
        }
    }
    return d;
}

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
    const Digits15 d = SplitDigits(value);
    int lowest = d.exponent - 14;  // power of the last significant digit
    while (lowest < 0 && d.At(lowest) == '0') ++lowest;
    std::string out;
    out.reserve(24);
    if (d.negative) out += '-';
    for (int q = std::max(d.exponent, 0); q >= 0; --q) out += d.At(q);
    if (lowest < 0) {
        out += '.';
        for (int q = -1; q >= lowest; --q) out += d.At(q);
    }
    return out;
}

double ThroughText(double value) { return ReadNumber(PlainNumberText(value)); }

namespace {

// The number format by way of the 15-digit text: exact for every finite value.
size_t FormatThroughDigits(double value, char* text) {
    const Digits15 d = SplitDigits(value);
    // Digits from the highest integer place down to the fourth decimal, then
    // rounded half away from zero on the fifth decimal of the 15-digit value.
    char buf[400];
    int n = 0;
    buf[n++] = '0';  // room for a carry out of the top digit
    for (int q = std::max(d.exponent, 0); q >= -4; --q) buf[n++] = d.At(q);
    if (d.At(-5) >= '5') {
        int i = n - 1;
        while (buf[i] == '9') buf[i--] = '0';
        ++buf[i];
    }
    int begin = buf[0] == '0' ? 1 : 0;
    const int pointAt = n - 4;
    int end = n;
    while (end > pointAt + 1 && buf[end - 1] == '0') --end;
    bool zero = true;
    for (int i = begin; i < end; ++i) zero = zero && buf[i] == '0';
    size_t length = 0;
    if (d.negative && !zero) text[length++] = '-';
    for (int i = begin; i < pointAt; ++i) text[length++] = buf[i];
    text[length++] = '.';
    for (int i = pointAt; i < end; ++i) text[length++] = buf[i];
    return length;
}

// Below a million, the value times 10^4 lies within 1e-5 of its 15-digit rounding
// times 10^4 (half a unit of the fifteenth digit is at most 5e-10, and the product's
// own rounding adds less than 2e-6), so unless the fraction is that close to a half,
// rounding the product to the nearest integer gives the four decimals the 15-digit
// text gives. Near a half the exact path decides. Returns 0 when it cannot decide.
size_t FormatDirectly(double value, char* text) {
    const double magnitude = std::fabs(value);
    if (!(magnitude < 1e6)) return 0;  // also NaN and infinities
    const double scaled = magnitude * 1e4;
    const double whole = std::floor(scaled);
    const double fraction = scaled - whole;
    if (std::fabs(fraction - 0.5) < 1e-4) return 0;
    auto n = static_cast<unsigned long long>(whole) + (fraction > 0.5 ? 1 : 0);
    size_t length = 0;
    if (value < 0 && n != 0) text[length++] = '-';
    auto r = std::to_chars(text + length, text + length + 24, n / 10000);
    length = static_cast<size_t>(r.ptr - text);
    unsigned decimals = static_cast<unsigned>(n % 10000);
    text[length++] = '.';
    text[length++] = static_cast<char>('0' + decimals / 1000);
    decimals %= 1000;
    // At least one decimal, then only as many as are not trailing zeros.
    for (unsigned place = 100; decimals != 0; place /= 10) {
        text[length++] = static_cast<char>('0' + decimals / place);
        decimals %= place;
    }
    return length;
}

size_t FormatInto(double value, char* text) {
    if (value == 0) {
        std::memcpy(text, "0.0", 3);
        return 3;
    }
    if (size_t length = FormatDirectly(value, text)) return length;
    return FormatThroughDigits(value, text);
}

}  // namespace

std::string FormatNumber(double value) {
    if (!std::isfinite(value)) return {};
    char text[400];
    return std::string(text, FormatInto(value, text));
}

void AppendNumber(std::string& out, double value) {
    if (!std::isfinite(value)) return;
    char text[400];
    out.append(text, FormatInto(value, text));
}

std::string FormatWholeNumber(double wholeValue) {
    if (!std::isfinite(wholeValue)) return {};
    double w = std::trunc(wholeValue);
    if (w == 0) return "0";
    return PlainNumberText(w);
}

}  // namespace gw
