// Number texts as the program prints and reads them.
//
// Every number a person reads goes through FormatNumber with one of the program's format patterns
// ("#0.00", "0.000E+0", "0.0#", "#" ...), every number a person types goes through ParseNumber.
// The rules are those of the Visual Basic run-time the program was written for; see format.cpp.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vn {

// The number `v` in the format `pattern`, with the run-time's rules:
//  - '0' is a digit that is always shown (padded with zero), '#' a digit shown only when needed:
//    "#" of 0 is the empty text, "#0" of 0 is "0", "##.0" of 0.5 is ".5".
//  - '.' is the decimal sign, printed as ',' when `decimalComma` is set.
//  - Digits after the decimal sign: the '0's are always shown, the '#'s only when not zero
//    ("0.0#": 0.7 -> "0.7", 0.75 -> "0.75", 1 -> "1.0").
//  - "E+" / "E-" (or "e+" / "e-") after the mantissa: scientific form; the exponent always has its
//    sign with "E+", only a minus with "E-"; its '0's give the least number of exponent digits.
//  - Integer digits beyond the placeholders are all printed; there is no digit grouping
//    (a ',' in a pattern is ignored).
//  - Any other character is copied as it stands ("#0.0 " ends in a blank, "0.0 kNm" in " kNm");
//    '\' copies the next character, text in double quotes is copied.
//  - Rounding is half away from zero, on the value's 15-significant-digit decimal text.
//  - A negative value gets a leading '-', unless it rounds to zero in the pattern.
//  - An empty pattern gives the general text of the value (up to 15 significant digits).
std::string FormatNumber(double v, std::string_view pattern, bool decimalComma = false);

// The shortest text of a Single as the run-time converts it to text: up to 7 significant digits,
// no trailing zeros, no trailing point; E notation with a two-digit exponent below 0.0001 and from
// 1E+07 upwards (0.1f -> "0.1", 200.0f -> "200", 1e-5f -> "1E-05", 12345678f -> "1.234568E+07").
// Used in the list texts of the catalogues ("HEA" + "200").
std::string SingleText(float v, bool decimalComma = false);

// The portable text of a number in the project file: '.' as decimal sign, as few digits as the
// value needs so that reading the text back gives the same float (double) again.
std::string FloatFileText(float v);
std::string DoubleFileText(double v);
inline std::string NumberText(double v) { return DoubleFileText(v); }

// The value of a typed text.
//  decimalComma set: leading blanks go, every '.' becomes ',' and the whole text must be a number
//    (blanks around it, a sign, digits with ',' as decimal sign, an exponent); anything else,
//    the empty text included, sets *mismatch (run-time error 13) and gives 0.
//  decimalComma clear: leading blanks go, every ',' becomes '.', and the longest numeric prefix is
//    read as the run-time's Val does: blanks, tabs and line feeds anywhere are skipped ("1 2" is
//    12), a sign, digits, one decimal point, an exponent with E or D. No number gives 0, never a
//    mismatch.
// A value beyond the range of the result sets *overflow (run-time error 6) and gives 0.
// The flags are only ever set, never cleared; either pointer may be null.
double ParseNumberD(std::string_view text, bool decimalComma, bool* mismatch, bool* overflow = nullptr);
// The same, stored into a Single as the fields do.
float ParseNumber(std::string_view text, bool decimalComma, bool* mismatch, bool* overflow = nullptr);

// A value stored into an Integer field: rounded to the nearest integer, halves to the even one
// (99.5 -> 100, 100.5 -> 100, -0.5 -> 0). Outside -32768..32767 (or not finite) it sets *overflow
// and gives 0.
std::int16_t RoundToInteger(double v, bool* overflow);

}  // namespace vn
