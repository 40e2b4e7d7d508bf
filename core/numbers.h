#pragma once
// Reading and writing the numbers that live in the fields as text.
// Everything here is locale-independent: the decimal separator is always a point.

#include <string>
#include <string_view>

namespace gw {

// The longest leading decimal number of the text (leading blanks, optional sign,
// digits with optional fraction and exponent); 0 when the text does not start with
// one. "inf", "nan", hex and digit grouping are not numbers. A number too large
// for a double reads as 0.
double ReadNumber(std::string_view text);

// True when the text, apart from surrounding blanks, is exactly one decimal number
// as ReadNumber reads it. The empty text is not numeric.
bool IsNumericText(std::string_view text);

// The number format "#####0.0###": at least one integer digit, one to four decimals,
// no grouping, no exponent. The value first passes through its 15-significant-digit
// text, and is then rounded half away from zero. A value that rounds to zero is
// written "0.0" (never "-0.0"). A value that is not finite gives the empty text:
// the degenerate curves the solvers meet show an empty result, never "inf" or "nan".
std::string FormatNumber(double value);

// FormatNumber's text appended to `out`, for long tables: no string per number.
void AppendNumber(std::string& out, double value);

// A plain decimal text of up to 15 significant digits, without exponent and without
// trailing zeros ("1.5", "100", "-0.0133333333333333"); empty for a non-finite value.
// This is the text a result passes through on its way into a field.
std::string PlainNumberText(double value);

// A whole number as plain text ("12", "0", "-3"); never "-0"; empty when not finite.
std::string FormatWholeNumber(double wholeValue);

// The round trip through the plain 15-digit text: what a field would read back.
double ThroughText(double value);

}  // namespace gw
