#include "cli/cli_controls.h"

#include <filesystem>
#include <fstream>

#include "core/captions.h"
#include "core/events.h"
#include "core/format.h"
#include "core/state.h"
#include "design/design_basis.h"
#include "sections/catalogue.h"

namespace vn::cli {

namespace {

std::string Trim(const std::string& t) {
  const size_t a = t.find_first_not_of(' '), b = t.find_last_not_of(' ');
  return a == std::string::npos ? std::string() : t.substr(a, b - a + 1);
}

std::string JsonText(const std::string& t) {
  std::string out = "\"";
  for (unsigned char ch : t) {
    if (ch == '"' || ch == '\\') {
      out += '\\';
      out += static_cast<char>(ch);
    } else if (ch < 0x20) {
      char buf[8];
      std::snprintf(buf, sizeof buf, "\\u%04x", ch);
      out += buf;
    } else {
      out += static_cast<char>(ch);
    }
  }
  return out + "\"";
}

struct Listed {
  std::string name, kind, dialog, caption, frame, tip, unit, limits, limit;
};

// The caption as one text: the row's label before the column's ("ULS Permanent (G) =").
std::string CaptionText(const ControlCaption& c) {
  std::string row = Trim(ShownText(c.row)), caption = Trim(ShownText(c.caption));
  if (row.empty()) return caption;
  return caption.empty() ? row : row + " " + caption;
}

std::vector<Listed> List(State& s) {
  std::vector<Listed> out;
  for (const ControlEntry& e : Controls().Entries()) {
    Listed l;
    l.name = e.form.empty() ? e.name : e.form + "." + e.name;
    if (e.firstIndex >= 0)
      l.name += "(" + std::to_string(e.firstIndex) + ".." + std::to_string(e.lastIndex) + ")";
    l.kind = KindText(e.kind);
    l.dialog = e.form.empty() ? "main" : e.form;
    const ControlCaption c = CaptionOf(e.form, e.name, &s);
    l.caption = CaptionText(c);
    l.frame = Trim(ShownText(c.frame));
    l.tip = Trim(c.tip);
    l.unit = UnitOfField(s, e, e.firstIndex);
    l.limits = e.limits;
    l.limit = e.limit;
    out.push_back(l);
  }
  return out;
}

}  // namespace

std::string ControlsText(State& s) {
  const std::vector<Listed> all = List(s);
  size_t w[3] = {0, 0, 0};
  for (const Listed& l : all) {
    w[0] = std::max(w[0], l.name.size());
    w[1] = std::max(w[1], l.kind.size());
    w[2] = std::max(w[2], l.dialog.size());
  }
  std::string out;
  for (const Listed& l : all) {
    std::string line = l.name + std::string(w[0] - l.name.size() + 2, ' ') + l.kind +
                       std::string(w[1] - l.kind.size() + 2, ' ') + l.dialog +
                       std::string(w[2] - l.dialog.size() + 2, ' ');
    if (!l.caption.empty()) line += "\"" + l.caption + "\"  ";
    if (!l.tip.empty()) line += "(" + l.tip + ")  ";
    if (!l.frame.empty()) line += "in \"" + l.frame + "\"  ";
    if (!l.unit.empty()) line += "unit " + l.unit + "  ";
    if (!l.limits.empty()) line += "limits " + l.limits + "  ";
    if (!l.limit.empty()) line += "message \"" + l.limit + "\"";
    line.erase(line.find_last_not_of(' ') + 1);
    out += line + "\n";
  }
  return out;
}

std::string ControlsJson(State& s) {
  std::string out = "[";
  bool first = true;
  for (const Listed& l : List(s)) {
    out += first ? "\n" : ",\n";
    first = false;
    out += "{\"name\":" + JsonText(l.name) + ",\"kind\":" + JsonText(l.kind) +
           ",\"dialog\":" + JsonText(l.dialog);
    if (!l.caption.empty()) out += ",\"caption\":" + JsonText(l.caption);
    if (!l.tip.empty()) out += ",\"tip\":" + JsonText(l.tip);
    if (!l.frame.empty()) out += ",\"frame\":" + JsonText(l.frame);
    if (!l.unit.empty()) out += ",\"unit\":" + JsonText(l.unit);
    if (!l.limits.empty()) out += ",\"limits\":" + JsonText(l.limits);
    if (!l.limit.empty()) out += ",\"message\":" + JsonText(l.limit);
    out += "}";
  }
  return out + "\n]";
}

bool ResolveEventText(State& s, const std::string& control, std::string* text, std::string* error) {
  int index = -1;
  const ControlEntry* e = Controls().Find(control, &index);
  if (!e || e->kind != ControlKind::List || ChoiceIndex(*text) >= 0) return true;
  std::vector<std::string> entries;
  const int i = ChoiceByText(s, *e, *text, &entries);
  if (i >= 0) {
    *text = std::to_string(i);
    return true;
  }
  *error = "varnelt-cli: " + control + " has no entry \"" + *text + "\"; its entries are:";
  for (size_t k = 0; k < entries.size(); ++k) *error += "\n  " + std::to_string(k) + "  " + entries[k];
  if (entries.empty()) *error += " none";
  return false;
}

std::string NumberWarning(const State& s, const std::string& control, const std::string& text) {
  int index = -1;
  const ControlEntry* e = Controls().Find(control, &index);
  if (!e || e->kind != ControlKind::Field) return {};
  // Under the decimal comma a text that is no number is refused with its own message.
  if (s.decimalComma) return {};
  std::string strict = text;
  for (char& ch : strict)
    if (ch == '.') ch = ',';
  bool mismatch = false;
  ParseNumberD(strict, true, &mismatch);
  if (!mismatch) return {};
  bool ignored = false;
  const double read = ParseNumberD(text, false, &ignored);
  std::string value = FormatNumber(read, "0.####", s.decimalComma);
  if (!value.empty() && (value.back() == '.' || value.back() == ',')) value.pop_back();
  return "varnelt-cli: warning: " + control + ": \"" + text + "\" is not a number; read as " + value;
}

std::vector<std::string> DataFileProblems(const std::string& dir) {
  namespace fs = std::filesystem;
  std::vector<std::string> problems;
  auto check = [&](const std::string& file, std::uintmax_t need) {
    const fs::path path = fs::path(dir) / file;
    std::error_code ec;
    if (!fs::exists(path, ec)) {
      problems.push_back("data file missing: " + path.string());
      return;
    }
    const std::uintmax_t size = fs::file_size(path, ec);
    std::ifstream in(path, std::ios::binary);
    if (ec || !in) {
      problems.push_back("data file unreadable: " + path.string());
    } else if (size < need) {
      problems.push_back("data file cut short: " + path.string() + " (" + std::to_string(size) + " of " +
                         std::to_string(need) + " bytes)");
    }
  };
  check(kSteelGradeFile, 1);
  for (int i = 0; i < catCount; ++i) {
    const CatalogueSpec& c = CatalogueInfo(static_cast<CatalogueId>(i));
    check(c.file, static_cast<std::uintmax_t>(c.rows) * static_cast<std::uintmax_t>(c.cols) * 4u);
  }
  return problems;
}

}  // namespace vn::cli
