#include "core/json.h"

#include <array>
#include <charconv>
#include <cstdio>
#include <sstream>
#include <type_traits>

#include "core/fields.h"
#include "core/format.h"
#include "design/design_basis.h"

namespace vn {

namespace {

// The length of the well-formed UTF-8 sequence at text[i], or 0 where the bytes are not one
// (a stray continuation byte, a sequence cut short, an overlong form, a surrogate, beyond U+10FFFF).
size_t Utf8Length(const std::string& text, size_t i) {
  auto at = [&](size_t k) { return k < text.size() ? static_cast<unsigned char>(text[k]) : 0u; };
  auto cont = [&](size_t k) { return (at(k) & 0xC0u) == 0x80u; };
  const unsigned b = at(i);
  if (b < 0x80) return 1;
  if (b >= 0xC2 && b <= 0xDF) return cont(i + 1) ? 2 : 0;
  if (b >= 0xE0 && b <= 0xEF) {
    const unsigned b1 = at(i + 1);
    if (b == 0xE0 && b1 < 0xA0) return 0;  // overlong
    if (b == 0xED && b1 > 0x9F) return 0;  // a surrogate
    return cont(i + 1) && cont(i + 2) ? 3 : 0;
  }
  if (b >= 0xF0 && b <= 0xF4) {
    const unsigned b1 = at(i + 1);
    if (b == 0xF0 && b1 < 0x90) return 0;  // overlong
    if (b == 0xF4 && b1 > 0x8F) return 0;  // beyond U+10FFFF
    return cont(i + 1) && cont(i + 2) && cont(i + 3) ? 4 : 0;
  }
  return 0;
}

// A JSON string of any bytes: control characters escaped, well-formed UTF-8 passed on, and each
// byte that is not part of it (a name typed in a single-byte code page, a damaged file) replaced by
// U+FFFD, so that the output is valid JSON whatever a file or a field holds.
void Escape(std::string& out, const std::string& text) {
  out += '"';
  for (size_t i = 0; i < text.size();) {
    const unsigned char ch = static_cast<unsigned char>(text[i]);
    const size_t n = Utf8Length(text, i);
    if (n == 0) {
      out += "\\ufffd";
      ++i;
      continue;
    }
    if (n > 1) {
      out.append(text, i, n);
      i += n;
      continue;
    }
    ++i;
    switch (ch) {
      case '"': out += "\\\""; break;
      case '\\': out += "\\\\"; break;
      case '\n': out += "\\n"; break;
      case '\r': out += "\\r"; break;
      case '\t': out += "\\t"; break;
      default:
        if (ch < 0x20) {
          char buf[8];
          std::snprintf(buf, sizeof buf, "\\u%04x", ch);
          out += buf;
        } else {
          out += static_cast<char>(ch);
        }
    }
  }
  out += '"';
}

class JsonWriter {
 public:
  std::string out;

  template <class T>
  void operator()(const char* name, const T& value) {
    Key(name);
    Value(value);
  }

  template <class F>
  void Object(const char* name, F&& body) {
    Key(name);
    Open('{');
    body();
    Close('}');
  }

  template <class T, size_t N, class F>
  void Array(const char* name, const std::array<T, N>& a, F&& body) {
    Key(name);
    Open('[');
    for (const T& row : a) {
      Comma();
      Open('{');
      body(row);
      Close('}');
    }
    Close(']');
  }

  void Open(char c) {
    out += c;
    first_ = true;
  }
  void Close(char c) {
    out += c;
    first_ = false;
  }
  void Key(const char* name) {
    Comma();
    Escape(out, name);
    out += ':';
    first_ = true;  // the value follows without a comma
  }
  void Comma() {
    if (!first_) out += ',';
    first_ = false;
  }

  void Value(const std::string& v) {
    Escape(out, v);
    first_ = false;
  }
  void Value(float v) { Raw(std::isfinite(v) ? FloatFileText(v) : "null"); }
  void Value(double v) { Raw(std::isfinite(v) ? DoubleFileText(v) : "null"); }
  void Value(bool v) { Raw(v ? "true" : "false"); }
  template <class T>
  std::enable_if_t<std::is_integral_v<T>> Value(T v) {
    Raw(std::to_string(v));
  }
  template <class T, size_t N>
  void Value(const std::array<T, N>& a) {
    Open('[');
    for (const T& x : a) {
      Comma();
      Value(x);
    }
    Close(']');
  }
  template <class T>
  void Value(const std::vector<T>& a) {
    Open('[');
    for (const T& x : a) {
      Comma();
      Value(x);
    }
    Close(']');
  }
  template <class T>
  void Value(const std::map<std::string, T>& m) {
    Open('{');
    for (const auto& [k, x] : m) {
      Key(k.c_str());
      Value(x);
    }
    Close('}');
  }

 private:
  void Raw(const std::string& text) {
    out += text;
    first_ = false;
  }
  bool first_ = true;
};

// Finds a field by its path and assigns it from text.
class FieldSetter {
 public:
  FieldSetter(std::string path, std::string value) : path_(std::move(path)), value_(std::move(value)) {}
  bool done = false;

  template <class T>
  void operator()(const char* name, T& field) {
    if (done || Prefix() + name != path_) {
      // An array of plain values: "Project.ChPointX[2]".
      if constexpr (IsArray<T>::value) {
        const std::string base = Prefix() + name + "[";
        if (!done && path_.rfind(base, 0) == 0 && path_.back() == ']') {
          size_t i = std::stoul(path_.substr(base.size(), path_.size() - base.size() - 1));
          if (i < field.size()) Assign(field[i]);
        }
      }
      return;
    }
    Assign(field);
  }
  template <class F>
  void Object(const char* name, F&& body) {
    stack_.push_back(std::string(name) + ".");
    body();
    stack_.pop_back();
  }
  template <class T, size_t N, class F>
  void Array(const char* name, std::array<T, N>& a, F&& body) {
    for (size_t i = 0; i < N; ++i) {
      stack_.push_back(std::string(name) + "[" + std::to_string(i) + "].");
      body(a[i]);
      stack_.pop_back();
    }
  }
  void Push(const std::string& p) { stack_.push_back(p); }

 private:
  template <class T>
  struct IsArray : std::false_type {};
  template <class T, size_t N>
  struct IsArray<std::array<T, N>> : std::true_type {};

  std::string Prefix() const {
    std::string p;
    for (const auto& s : stack_) p += s;
    return p;
  }
  void Assign(std::string& f) {
    f = value_;
    done = true;
  }
  template <class T>
  void Assign(T& f) {
    if constexpr (std::is_arithmetic_v<T>) {
      double v = std::stod(value_);
      f = static_cast<T>(v);
      done = true;
    }
  }
  std::string path_, value_;
  std::vector<std::string> stack_;
};

}  // namespace

std::string JsonString(const std::string& text) {
  std::string out;
  Escape(out, text);
  return out;
}

std::string StateToJson(const State& s) {
  JsonWriter w;
  w.Open('{');
  // The rules in force by name, beside the flag strictRules of the project.
  w("Rules", RulesName(s));
  w.Object("Project", [&] { VisitProject(w, s.project); });
  w.Object("Loads", [&] { VisitLoads(w, s.loads); });
  w.Object("Section", [&] { VisitSection(w, s.section); });
  w.Object("CombinationFactors", [&] { VisitCombination(w, s.comb); });
  w.Object("Checks", [&] { VisitChecks(w, s.checks); });
  w.Object("Analysis", [&] { VisitAnalysis(w, s.analysis); });
  w.Object("SteelGrades", [&] {
    w.Key("rows");
    w.Open('[');
    for (int i = 0; i <= s.steel.gradeLast && i < 31; ++i) {
      const SteelGradeRow& r = s.steel.rows[static_cast<size_t>(i)];
      w.Comma();
      w.Open('{');
      w("name", r.name);
      w("fy40", r.fy40);
      w("fyOver40", r.fyOver40);
      w.Close('}');
    }
    w.Close(']');
    w("gradeLast", s.steel.gradeLast);
  });
  w("NEdAbs", s.NEdAbs);
  w.Object("View", [&] {
    w("caption", s.view.caption);
    w("txtError", s.view.txtErrorVisible ? s.view.txtError : std::string());
    w("txtErrorVisible", s.view.txtErrorVisible);
    w("message", s.view.lastMessage);
    w("text", s.view.text);
    w("value", s.view.value);
    w("visible", s.view.visible);
    w("enabled", s.view.enabled);
    w("items", s.view.items);
    w.Key("sectionValues");
    w.Open('[');
    for (const auto& line : s.view.sectionValues) {
      w.Comma();
      w.Open('{');
      w("label", line.label);
      w("value", line.value);
      w("unit", line.unit);
      w.Close('}');
    }
    w.Close(']');
    w.Key("summary");
    w.Open('[');
    for (const auto& line : s.view.summary) {
      w.Comma();
      w.Open('{');
      w("left", line.left);
      w("note", line.note);
      w("ratio", line.ratio);
      w("colour", line.colour);
      w("limit", line.limit);
      w("title", line.title);
      w.Close('}');
    }
    w.Close(']');
  });
  w("txtError", s.view.txtErrorVisible ? s.view.txtError : std::string());
  w("resultsValid", s.resultsValid);
  w("message", s.view.lastMessage);
  w("decimalComma", s.decimalComma);
  w.Close('}');
  return w.out;
}

bool SetFieldByPath(State& s, const std::string& path, const std::string& value) {
  try {
    FieldSetter setter(path, value);
    setter.Object("Project", [&] { VisitProject(setter, s.project); });
    if (!setter.done) setter.Object("Loads", [&] { VisitLoads(setter, s.loads); });
    return setter.done;
  } catch (const std::exception&) {
    return false;
  }
}

}  // namespace vn
