// Number texts: the format patterns, the text of a Single, the file texts, and the reading of typed
// numbers.
//
// Rounding in FormatNumber. The run-time formats a Double by first turning it into its decimal text
// of 15 significant digits (the same text CStr gives) and then rounding that text half away from
// zero at the last digit the pattern shows. We do the same: the 15-digit text comes from a
// correctly rounded std::to_chars, the pattern's rounding works on its digits. So 2.5 in "#0" is
// "3", 0.125 in "0.00" is "0.13", and 1.005 in "0.00" is "1.01": the Double
// is 1.00499999999999989..., but its 15-digit text is 1.00500000000000, as the person who
// typed 1.005 expects.
//
// A negative value that rounds to zero in the pattern is printed without its minus sign
// (-0.001 in "0.00" gives "0.00", -0.4 in "#0" gives "0"): a "-0.00" in a result line would only
// puzzle the reader. kMinusOnZero is the one place that decides it.
#include "core/format.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>
#include <vector>

namespace vn {

namespace {

constexpr bool kMinusOnZero = false;

// A non-negative value as 0.digits * 10^point; `digits` has no trailing zeros and is empty for 0.
struct Decimal {
  std::string digits;
  int point = 0;
};

Decimal ToDecimal15(double a) {
  Decimal d;
  if (a == 0.0) return d;
  char buf[64];
  auto r = std::to_chars(buf, buf + sizeof buf, a, std::chars_format::scientific, 14);
  std::string_view t(buf, r.ptr - buf);  // d.dddddddddddddde+XX
  size_t e = t.find('e');
  for (size_t i = 0; i < e; ++i)
    if (t[i] != '.') d.digits += t[i];
  int exp10 = 0;
  std::string_view es = t.substr(e + 1);
  if (!es.empty() && es[0] == '+') es.remove_prefix(1);
  std::from_chars(es.data(), es.data() + es.size(), exp10);
  d.point = exp10 + 1;
  while (!d.digits.empty() && d.digits.back() == '0') d.digits.pop_back();
  return d;
}

// The first `keep` digits of d (padded with zeros), rounded half away from zero on the next digit.
// A carry out of the first digit puts a "1" in front and moves the point one place to the right.
std::string RoundDigits(Decimal& d, int keep) {
  std::string s = d.digits.substr(0, std::min<size_t>(keep, d.digits.size()));
  s.resize(keep, '0');
  if (keep < static_cast<int>(d.digits.size()) && d.digits[keep] >= '5') {
    int i = keep - 1;
    while (i >= 0 && s[i] == '9') s[i--] = '0';
    if (i >= 0) {
      ++s[i];
    } else {
      s.insert(s.begin(), '1');
      ++d.point;
    }
  }
  return s;
}

enum class Tok { Lit, Zero, Hash, Point, Exp };
struct Token {
  Tok kind;
  std::string_view text;  // the literal, or "E+" / "E-" as written: a view into the pattern
};

// The tokens of a pattern: held in place for the patterns of the program (a few characters), on
// the heap only for a pattern longer than that. A pattern gives at most one token per character,
// and one more may be inserted.
class Tokens {
 public:
  explicit Tokens(size_t patternSize) {
    if (patternSize + 1 > kInPlace) heap_.resize(patternSize + 1);
    data_ = heap_.empty() ? inPlace_.data() : heap_.data();
  }
  Tokens(const Tokens&) = delete;
  Tokens& operator=(const Tokens&) = delete;
  void push_back(const Token& t) { data_[size_++] = t; }
  void insert(size_t at, const Token& t) {
    for (size_t i = size_; i > at; --i) data_[i] = data_[i - 1];
    data_[at] = t;
    ++size_;
  }
  size_t size() const { return size_; }
  const Token& operator[](size_t i) const { return data_[i]; }
  const Token* begin() const { return data_; }
  const Token* end() const { return data_ + size_; }

 private:
  static constexpr size_t kInPlace = 32;
  std::array<Token, kInPlace> inPlace_;
  std::vector<Token> heap_;
  Token* data_;
  size_t size_ = 0;
};

void Tokenize(std::string_view p, Tokens& toks) {
  bool point = false, exp = false;
  for (size_t i = 0; i < p.size(); ++i) {
    char c = p[i];
    if (c == '"') {
      size_t j = p.find('"', i + 1);
      if (j == std::string_view::npos) j = p.size();
      toks.push_back({Tok::Lit, p.substr(i + 1, j - i - 1)});
      i = j;
    } else if (c == '\\') {
      if (i + 1 < p.size()) {
        ++i;
        toks.push_back({Tok::Lit, p.substr(i, 1)});
      }
    } else if (c == '0' || c == '#') {
      toks.push_back({c == '0' ? Tok::Zero : Tok::Hash, {}});
    } else if (c == '.' && !point && !exp) {
      toks.push_back({Tok::Point, {}});
      point = true;
    } else if ((c == 'E' || c == 'e') && !exp && i + 1 < p.size() && (p[i + 1] == '+' || p[i + 1] == '-')) {
      toks.push_back({Tok::Exp, p.substr(i, 2)});
      ++i;
      exp = true;
    } else if (c != ',') {  // no digit grouping: a ',' is dropped
      toks.push_back({Tok::Lit, p.substr(i, 1)});
    }
  }
}

// Hands out the digits of a whole number to a run of n placeholders from the left. The digits are
// padded with zeros to the run's '0' placeholders (all from the first '0' on); digits beyond the
// run all go with its first placeholder, missing ones leave the first placeholders empty.
struct Filler {
  std::string s;
  int n = 0;
  int k = 0;
  size_t pos = 0;
  void Init(std::string digits, int count, int firstZero) {
    s = std::move(digits);
    n = count;
    int need = count - firstZero;
    if (static_cast<int>(s.size()) < need) s.insert(0, need - s.size(), '0');
  }
  std::string Next() {
    int extra = static_cast<int>(s.size()) - n;
    size_t take = extra >= 0 ? (k == 0 ? extra + 1 : 1) : (k >= -extra ? 1 : 0);
    ++k;
    std::string out = s.substr(pos, take);
    pos += take;
    return out;
  }
};

std::string GeneralText(double v, int precision, bool decimalComma) {
  if (v == 0.0) return "0";
  if (!std::isfinite(v)) return std::isnan(v) ? "NaN" : (v < 0 ? "-Inf" : "Inf");
  char buf[64];
  auto r = std::to_chars(buf, buf + sizeof buf, v, std::chars_format::general, precision);
  std::string s(buf, r.ptr);
  for (char& c : s) {
    if (c == 'e') c = 'E';
    if (c == '.' && decimalComma) c = ',';
  }
  return s;
}

bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\n'; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// The parts of a number read from a text; ToDouble puts them together.
struct NumberParts {
  bool negative = false;
  std::string intDigits, fracDigits;
  bool expNegative = false;
  std::string expDigits;
};

double ToDouble(const NumberParts& n, bool* overflow) {
  std::string s = (n.intDigits.empty() ? "0" : n.intDigits) + "." + n.fracDigits + "0";
  if (!n.expDigits.empty()) s += (n.expNegative ? "e-" : "e") + n.expDigits;
  double v = 0.0;
  auto r = std::from_chars(s.data(), s.data() + s.size(), v);
  if (r.ec == std::errc::result_out_of_range) {
    // Too large or too small for a Double: the order of magnitude tells which.
    size_t lead = n.intDigits.find_first_not_of('0');
    long mag = lead != std::string::npos ? static_cast<long>(n.intDigits.size() - lead)
                                         : -static_cast<long>(n.fracDigits.find_first_not_of('0'));
    long e = 0;
    for (char c : n.expDigits) e = std::min(e * 10 + (c - '0'), 100000L);
    mag += n.expNegative ? -e : e;
    if (mag > 0 && (n.intDigits + n.fracDigits).find_first_not_of('0') != std::string::npos) {
      if (overflow) *overflow = true;
    }
    return 0.0;
  }
  return n.negative ? -v : v;
}

// The longest numeric prefix after leading blanks: a blank inside ends the number as any other
// character that can't belong to it, so "2 3" is 2 and "1 000" is 1, never 23 or 1000.
NumberParts ScanVal(std::string_view t) {
  NumberParts n;
  size_t i = 0;
  while (i < t.size() && IsBlank(t[i])) ++i;
  if (i < t.size() && (t[i] == '+' || t[i] == '-')) n.negative = t[i++] == '-';
  for (; i < t.size() && IsDigit(t[i]); ++i) n.intDigits += t[i];
  if (i < t.size() && t[i] == '.') {
    for (++i; i < t.size() && IsDigit(t[i]); ++i) n.fracDigits += t[i];
  }
  if (n.intDigits.empty() && n.fracDigits.empty()) return NumberParts{};
  if (i < t.size() && (t[i] == 'E' || t[i] == 'e' || t[i] == 'D' || t[i] == 'd')) {
    size_t j = i + 1;
    bool neg = false;
    if (j < t.size() && (t[j] == '+' || t[j] == '-')) neg = t[j++] == '-';
    std::string digits;
    for (; j < t.size() && IsDigit(t[j]); ++j) digits += t[j];
    if (!digits.empty()) {
      n.expNegative = neg;
      n.expDigits = digits;
    }
  }
  return n;
}

// The strict conversion: blanks around, a sign, digits with ',' as decimal sign, an exponent.
bool ScanStrict(std::string_view t, NumberParts& n) {
  size_t i = 0;
  auto blanks = [&] {
    while (i < t.size() && (t[i] == ' ' || t[i] == '\t')) ++i;
  };
  blanks();
  if (i < t.size() && (t[i] == '+' || t[i] == '-')) n.negative = t[i++] == '-';
  while (i < t.size() && IsDigit(t[i])) n.intDigits += t[i++];
  if (i < t.size() && t[i] == ',') {
    ++i;
    while (i < t.size() && IsDigit(t[i])) n.fracDigits += t[i++];
  }
  if (n.intDigits.empty() && n.fracDigits.empty()) return false;
  if (i < t.size() && (t[i] == 'E' || t[i] == 'e' || t[i] == 'D' || t[i] == 'd')) {
    ++i;
    if (i < t.size() && (t[i] == '+' || t[i] == '-')) n.expNegative = t[i++] == '-';
    while (i < t.size() && IsDigit(t[i])) n.expDigits += t[i++];
    if (n.expDigits.empty()) return false;
  }
  blanks();
  return i == t.size();
}

// The patterns of the result texts: whole digits "#...#0...0", a decimal sign with decimals
// "0...0#...#", and a plain text after them ("#0.0", "0.00", "#0", "0.000 m", "0.0 kNm"). For these
// the general rules below come down to: the 15-digit text rounded half away from zero at the last
// decimal, the whole digits padded with zeros to the count of '0's before the sign, the decimals
// without the trailing zeros that fall on '#'s, the sign, the text. FormatFixed writes exactly
// that into a buffer; any other pattern takes the general way.
struct FixedPattern {
  int wholeZeros = 0;     // '0's of the whole digits: the least number of them
  int decimals = 0;       // placeholders after the decimal sign
  int decimalZeros = 0;   // of which '0's, which come first
  bool point = false;     // the pattern has a decimal sign
  std::string_view tail;  // the text after the number
};

bool IsFixedPattern(std::string_view p, FixedPattern& f) {
  size_t i = 0;
  while (i < p.size() && p[i] == '#') ++i;
  while (i < p.size() && p[i] == '0') {
    ++i;
    ++f.wholeZeros;
  }
  if (i < p.size() && p[i] == '.') {
    f.point = true;
    ++i;
    while (i < p.size() && p[i] == '0') {
      ++i;
      ++f.decimalZeros;
    }
    f.decimals = f.decimalZeros;
    while (i < p.size() && p[i] == '#') {
      ++i;
      ++f.decimals;
    }
  }
  // Without a placeholder or decimal sign the digits would follow the text: the general way.
  if (i == 0) return false;
  f.tail = p.substr(i);
  for (char c : f.tail)
    if (c == '0' || c == '#' || c == '.' || c == ',' || c == 'E' || c == 'e' || c == '"' || c == '\\')
      return false;
  return true;
}

// v finite. False (nothing written) for a value whose digits would not fit the buffer.
bool FormatFixed(double v, const FixedPattern& f, bool decimalComma, std::string& out) {
  const double a = std::fabs(v);
  // The 15-digit text: digits without trailing zeros, as 0.digits * 10^point.
  char digits[32];
  int nDigits = 0, point = 0;
  if (a != 0.0) {
    char buf[64];
    auto r = std::to_chars(buf, buf + sizeof buf, a, std::chars_format::scientific, 14);
    const char* e = std::find(buf, r.ptr, 'e');
    for (const char* c = buf; c < e; ++c)
      if (*c != '.') digits[nDigits++] = *c;
    int exp10 = 0;
    const char* es = e + 1;
    if (es < r.ptr && *es == '+') ++es;
    std::from_chars(es, r.ptr, exp10);
    point = exp10 + 1;
    while (nDigits > 0 && digits[nDigits - 1] == '0') --nDigits;
  }
  const int keep = point + f.decimals;
  constexpr int kMax = 96;
  if (keep > kMax) return false;
  // The first `keep` digits, padded with zeros, rounded half away from zero on the next one.
  char s[kMax + 2];
  int ns = 0;
  if (keep >= 0) {
    for (int i = 0; i < keep; ++i) s[ns++] = i < nDigits ? digits[i] : '0';
    if (keep < nDigits && digits[keep] >= '5') {
      int i = keep - 1;
      while (i >= 0 && s[i] == '9') s[i--] = '0';
      if (i >= 0) {
        ++s[i];
      } else {
        std::memmove(s + 1, s, static_cast<size_t>(ns));
        s[0] = '1';
        ++ns;
        ++point;
      }
    }
  }
  // Whole digits and decimals.
  const char* whole = s;
  int nWhole = 0;
  char frac[kMax + 2];
  int nFrac = 0;
  if (ns == 0) {
    for (int i = 0; i < f.decimals; ++i) frac[nFrac++] = '0';
  } else if (point >= 0) {
    nWhole = point;
    for (int i = point; i < ns; ++i) frac[nFrac++] = s[i];
  } else {
    for (int i = 0; i < -point; ++i) frac[nFrac++] = '0';
    for (int i = 0; i < ns; ++i) frac[nFrac++] = s[i];
  }
  bool zero = true;
  for (int i = 0; i < nWhole && zero; ++i) zero = whole[i] == '0';
  for (int i = 0; i < nFrac && zero; ++i) zero = frac[i] == '0';
  while (nFrac > f.decimalZeros && frac[nFrac - 1] == '0') --nFrac;
  if (nFrac > f.decimals) nFrac = f.decimals;

  out.reserve(static_cast<size_t>(nWhole + nFrac + 4) + f.tail.size());
  if (v < 0 && (!zero || kMinusOnZero)) out += '-';
  for (int i = nWhole; i < f.wholeZeros; ++i) out += '0';
  out.append(whole, static_cast<size_t>(nWhole));
  if (f.point) {
    out += decimalComma ? ',' : '.';
    out.append(frac, static_cast<size_t>(nFrac));
  }
  out += f.tail;
  return true;
}

}  // namespace

std::string FormatNumber(double v, std::string_view pattern, bool decimalComma) {
  if (!std::isfinite(v)) return GeneralText(v, 15, decimalComma);
  if (pattern.empty()) return GeneralText(v, 15, decimalComma);
  if (FixedPattern f; IsFixedPattern(pattern, f)) {
    std::string out;
    if (FormatFixed(v, f, decimalComma, out)) return out;
  }

  Tokens toks(pattern.size());
  Tokenize(pattern, toks);
  // Count the placeholders of the integer part, the decimals and the exponent.
  int nInt = 0, nFrac = 0, nExp = 0, intFirstZero = -1, expFirstZero = -1, fracLastZero = 0;
  int region = 0;  // 0 integer part, 1 decimals, 2 exponent
  size_t mantissaEnd = toks.size();
  for (size_t i = 0; i < toks.size(); ++i) {
    const Token& t = toks[i];
    if (t.kind == Tok::Point) {
      region = 1;
      mantissaEnd = std::min(mantissaEnd, i);
    } else if (t.kind == Tok::Exp) {
      region = 2;
      mantissaEnd = std::min(mantissaEnd, i);
    } else if (t.kind == Tok::Zero || t.kind == Tok::Hash) {
      bool zero = t.kind == Tok::Zero;
      if (region == 0) {
        if (zero && intFirstZero < 0) intFirstZero = nInt;
        ++nInt;
      } else if (region == 1) {
        ++nFrac;
        if (zero) fracLastZero = nFrac;
      } else {
        if (zero && expFirstZero < 0) expFirstZero = nExp;
        ++nExp;
      }
    }
  }
  if (nInt == 0) {  // the whole digits have to go somewhere: before the point, or at the end
    toks.insert(mantissaEnd, Token{Tok::Hash, {}});
    nInt = 1;
  }
  if (intFirstZero < 0) intFirstZero = nInt;
  if (expFirstZero < 0) expFirstZero = nExp;
  bool scientific = region == 2;

  double a = std::fabs(v);
  Decimal d = ToDecimal15(a);
  std::string ip, fp;  // whole digits without leading zeros, decimals
  int exponent = 0;
  if (scientific) {
    if (!d.digits.empty()) {
      std::string s = RoundDigits(d, nInt + nFrac);
      s.resize(nInt + nFrac);  // a carry made "1000": one zero too many
      exponent = d.point - nInt;
      ip = s.substr(0, nInt);
      fp = s.substr(nInt);
      ip.erase(0, std::min(ip.find_first_not_of('0'), ip.size()));
    } else {
      fp.assign(nFrac, '0');
    }
  } else {
    int keep = d.point + nFrac;
    std::string s = keep >= 0 ? RoundDigits(d, keep) : std::string();
    if (s.empty()) {
      fp.assign(nFrac, '0');
    } else if (d.point >= 0) {
      ip = s.substr(0, d.point);
      fp = s.substr(d.point);
    } else {
      fp = std::string(-d.point, '0') + s;
    }
  }
  bool zero =
      ip.find_first_not_of('0') == std::string::npos && fp.find_first_not_of('0') == std::string::npos;
  while (static_cast<int>(fp.size()) > fracLastZero && fp.back() == '0') fp.pop_back();

  Filler whole, expo;
  whole.Init(ip, nInt, intFirstZero);
  std::string ed = std::to_string(exponent < 0 ? -exponent : exponent);
  expo.Init(ed == "0" ? "" : ed, nExp, expFirstZero);

  std::string out;
  if (v < 0 && (!zero || kMinusOnZero)) out += '-';
  region = 0;
  int fracIndex = 0;
  for (const Token& t : toks) {
    switch (t.kind) {
      case Tok::Lit: out += t.text; break;
      case Tok::Point:
        out += decimalComma ? ',' : '.';
        region = 1;
        break;
      case Tok::Exp:
        out += t.text[0];
        if (exponent < 0)
          out += '-';
        else if (t.text[1] == '+')
          out += '+';
        region = 2;
        break;
      default:
        if (region == 0)
          out += whole.Next();
        else if (region == 2)
          out += expo.Next();
        else if (fracIndex < static_cast<int>(fp.size()))
          out += fp[fracIndex++];
    }
  }
  return out;
}

std::string SingleText(float v, bool decimalComma) { return GeneralText(v, 7, decimalComma); }

std::string FloatFileText(float v) {
  char buf[64];
  auto r = std::to_chars(buf, buf + sizeof buf, v);
  return std::string(buf, r.ptr);
}

std::string DoubleFileText(double v) {
  char buf[64];
  auto r = std::to_chars(buf, buf + sizeof buf, v);
  return std::string(buf, r.ptr);
}

double ParseNumberD(std::string_view text, bool decimalComma, bool* mismatch, bool* overflow) {
  std::string t(text);
  t.erase(0, std::min(t.find_first_not_of(' '), t.size()));
  NumberParts n;
  if (decimalComma) {
    for (char& c : t)
      if (c == '.') c = ',';
    if (!ScanStrict(t, n)) {
      if (mismatch) *mismatch = true;
      return 0.0;
    }
  } else {
    for (char& c : t)
      if (c == ',') c = '.';
    n = ScanVal(t);
  }
  return ToDouble(n, overflow);
}

float ParseNumber(std::string_view text, bool decimalComma, bool* mismatch, bool* overflow) {
  bool over = false;
  double d = ParseNumberD(text, decimalComma, mismatch, &over);
  // A Double rounds to a Single's infinity from 2^128 - 2^103 on (half an ulp above the largest).
  if (over || std::fabs(d) >= std::ldexp(1.0, 128) - std::ldexp(1.0, 103)) {
    if (overflow) *overflow = true;
    return 0.0f;
  }
  return static_cast<float>(d);
}

std::int16_t RoundToInteger(double v, bool* overflow) {
  if (!(std::fabs(v) < 1e9)) {
    if (overflow) *overflow = true;
    return 0;
  }
  double f = std::floor(v);
  double diff = v - f;
  double r = diff > 0.5 ? f + 1 : diff < 0.5 ? f : (std::fmod(f, 2.0) == 0.0 ? f : f + 1);
  if (r < -32768.0 || r > 32767.0) {
    if (overflow) *overflow = true;
    return 0;
  }
  return static_cast<std::int16_t>(r);
}

}  // namespace vn
