#include "members/lightest.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <mutex>

#include "core/format.h"
#include "core/json.h"
#include "core/state.h"
#include "core/types.h"
#include "members/parallel.h"
#include "sections/section_dialogs.h"

namespace vn {

namespace {

// Upper case without blanks: "l-Equal " is "L-EQUAL".
std::string Key(const std::string& text) {
  std::string k;
  for (char c : text)
    if (c != ' ' && c != '\t') k += static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return k;
}

}  // namespace

const std::vector<CatalogueFamily>& CatalogueFamilies() {
  static const std::vector<CatalogueFamily> kFamilies = {
      {"HEA", 1, 0, catHea},       {"HEB", 2, 0, catHeb},     {"HEM", 3, 0, catHem},
      {"IPE", 4, 0, catIpe},       {"INP", 15, 0, catInp},    {"UPE", 5, 0, catUpe},
      {"UNP", 16, 0, catUnp},      {"SHS", 6, 0, catShs},     {"RHS", 7, 0, catRhs},
      {"CFSHS", 8, 0, catCfshs},   {"CFRHS", 9, 0, catCfrhs}, {"L-equal", 10, 0, catL1},
      {"L-unequal", 11, 0, catL2}, {"UB", 101, 1, catUb},     {"UC", 101, 2, catUc},
      {"UBP", 101, 3, catUbp},     {"J", 102, 0, catJ},       {"PFC", 103, 1, catPfc},
      {"CH", 103, 2, catCh},
  };
  return kFamilies;
}

const CatalogueFamily* FamilyByName(const std::string& name) {
  const std::string k = Key(name);
  for (const CatalogueFamily& f : CatalogueFamilies()) {
    if (k == Key(f.name)) return &f;
    // A number stands for its family where the family has one table.
    if (f.type != 101 && f.type != 103 && k == std::to_string(f.type)) return &f;
  }
  return nullptr;
}

bool ParseFamilies(const std::string& list, std::vector<const CatalogueFamily*>* out, std::string* error) {
  out->clear();
  auto add = [out](const CatalogueFamily* f) {
    if (std::find(out->begin(), out->end(), f) == out->end()) out->push_back(f);
  };
  size_t at = 0;
  while (at <= list.size()) {
    const size_t comma = std::min(list.find(',', at), list.size());
    const std::string item = Key(list.substr(at, comma - at));
    at = comma + 1;
    if (item.empty()) continue;
    if (item == "ALL") {
      for (const CatalogueFamily& f : CatalogueFamilies()) add(&f);
    } else if (item == "101" || item == "103") {
      for (const CatalogueFamily& f : CatalogueFamilies())
        if (std::to_string(f.type) == item) add(&f);
    } else if (const CatalogueFamily* f = FamilyByName(item)) {
      add(f);
    } else {
      *error = "no catalogue family \"" + item + "\"; the families are";
      for (const CatalogueFamily& f : CatalogueFamilies())
        *error += std::string(" ") + f.name + " (" + std::to_string(f.type) + ")";
      *error += ", or all";
      return false;
    }
  }
  if (out->empty()) {
    *error = "no catalogue family given";
    return false;
  }
  return true;
}

void PutCatalogueRow(State& s, const CatalogueFamily& f, int row) {
  Project& p = s.project;
  p.ProfileType = static_cast<Integer>(f.type);
  if (const SectionDialogInfo* d = SectionDialogOfType(f.type); d && d->name) p.profileName = d->name;
  if (f.type == 101) p.subFamily101 = static_cast<Integer>(f.subFamily);
  if (f.type == 103) p.subFamily103 = static_cast<Integer>(f.subFamily);
  p.SelectedRow[static_cast<size_t>(f.table)] = static_cast<Integer>(row);
}

std::vector<std::pair<std::string, std::string>> ChoiceEvents(const CatalogueFamily& f, int row) {
  const SectionDialogInfo* d = SectionDialogOfType(f.type);
  std::vector<std::pair<std::string, std::string>> events;
  if (!d) return events;
  events.emplace_back(d->menu, "");
  if (f.subFamily > 0) events.emplace_back(std::string(d->form) + ".prof" + std::to_string(f.subFamily), "");
  events.emplace_back(std::string(d->form) + ".cbo", std::to_string(row));
  return events;
}

LightestResult FindLightest(const State& member, const std::vector<const CatalogueFamily*>& families,
                            int workers, const Progress& progress, const std::atomic<bool>* cancel) {
  struct Task {
    const CatalogueFamily* family;
    int row;
  };
  std::vector<Task> tasks;
  for (const CatalogueFamily* f : families)
    for (int row = 0; row < CatalogueInfo(f->table).rows; ++row) tasks.push_back({f, row});

  // The pictures of the member are not needed by the runs and are the largest part of a copy.
  State base = member;
  base.view.pictures.clear();
  base.view.items.clear();

  std::vector<LightestRow> rows(tasks.size());
  for (size_t i = 0; i < tasks.size(); ++i) {
    try {
      rows[i].section = CatalogueListText(member.catalogues, tasks[i].family->table, tasks[i].row);
    } catch (const std::exception&) {
      rows[i].section = std::string(tasks[i].family->name) + " row " + std::to_string(tasks[i].row);
    }
  }
  std::vector<char> done(tasks.size(), 0);
  std::atomic<int> count{0};
  std::mutex tell;
  const int total = static_cast<int>(tasks.size());
  ParallelFor(
      tasks.size(), WorkerCount(workers),
      [&](std::size_t i, int) {
        const Task& t = tasks[i];
        LightestRow& r = rows[i];
        r.family = t.family;
        r.row = t.row;
        try {
          // Each row on its own copy: nothing of one row's run reaches another's.
          State s = base;
          PutCatalogueRow(s, *t.family, t.row);
          RunMember(s);
          r.outcome = OutcomeOf(s);
        } catch (const std::exception&) {
          r.outcome = MemberOutcome{};  // a row that can't be run passes nothing
        }
        done[i] = 1;
        const int n = count.fetch_add(1) + 1;
        if (progress) {
          std::lock_guard<std::mutex> lock(tell);
          progress(n, total);
        }
      },
      cancel);

  LightestResult result;
  for (size_t i = 0; i < rows.size(); ++i) {
    if (!done[i]) {
      result.cancelled = true;
      continue;
    }
    ++result.rowsRun;
    if (!rows[i].outcome.ran) ++result.failedRuns;
    if (rows[i].outcome.passes) result.passing.push_back(std::move(rows[i]));
  }
  std::stable_sort(result.passing.begin(), result.passing.end(),
                   [](const LightestRow& a, const LightestRow& b) { return a.outcome.g < b.outcome.g; });
  return result;
}

namespace {

std::string FamilyNames(const std::vector<const CatalogueFamily*>& families, const char* sep) {
  std::string t;
  for (const CatalogueFamily* f : families) t += (t.empty() ? "" : sep) + std::string(f->name);
  return t;
}

// The shortest text that reads back as the same double.
std::string JsonNumber(double v) {
  char buf[32];
  const auto [end, ec] = std::to_chars(buf, buf + sizeof buf, v);
  return ec == std::errc() ? std::string(buf, end) : std::string("0");
}

std::string JsonNumber(float v) {
  char buf[32];
  const auto [end, ec] = std::to_chars(buf, buf + sizeof buf, v);
  return ec == std::errc() ? std::string(buf, end) : std::string("0");
}

}  // namespace

std::string LightestText(const LightestResult& r, const std::vector<const CatalogueFamily*>& families,
                         double limit, bool decimalComma) {
  std::string out =
      "Lightest sections that pass (every ratio <= " + FormatNumber(limit, "0.0", decimalComma) +
      "), by mass: " + FamilyNames(families, ", ") + ", " + std::to_string(r.rowsRun) + " rows run, " +
      std::to_string(r.passing.size()) + " pass";
  if (r.failedRuns > 0) out += ", " + std::to_string(r.failedRuns) + " ended in the calculation error";
  if (r.cancelled) out += " (stopped before the end)";
  out += "\n";
  if (r.passing.empty()) return out + "No row of these families passes.\n";
  std::vector<std::array<std::string, 4>> rows;
  rows.push_back({"g kg/m", "section", "IR", "control"});
  for (const LightestRow& row : r.passing)
    rows.push_back({FormatNumber(row.outcome.g, "#0.0", decimalComma), row.section, row.outcome.ratioText,
                    DescribeControl(row.outcome)});
  size_t w0 = 0, w1 = 0, w2 = 0;
  for (const auto& row : rows) {
    w0 = std::max(w0, row[0].size());
    w1 = std::max(w1, row[1].size());
    w2 = std::max(w2, row[2].size());
  }
  for (const auto& row : rows)
    out += std::string(w0 - row[0].size(), ' ') + row[0] + "  " + row[1] +
           std::string(w1 - row[1].size(), ' ') + "  " + std::string(w2 - row[2].size(), ' ') + row[2] +
           "  " + row[3] + "\n";
  return out;
}

std::string LightestJson(const LightestResult& r, const std::vector<const CatalogueFamily*>& families,
                         double limit) {
  std::string out = "{\"families\":[";
  for (size_t i = 0; i < families.size(); ++i) out += (i ? "," : "") + JsonString(families[i]->name);
  out += "],\"IRlimit\":" + JsonNumber(limit) + ",\"rowsRun\":" + std::to_string(r.rowsRun) +
         ",\"failedRuns\":" + std::to_string(r.failedRuns) +
         ",\"cancelled\":" + (r.cancelled ? "true" : "false") + ",\"passing\":[";
  for (size_t i = 0; i < r.passing.size(); ++i) {
    const LightestRow& row = r.passing[i];
    const MemberOutcome& o = row.outcome;
    out += i ? ",\n" : "\n";
    out += "{\"family\":" + JsonString(row.family->name) + ",\"type\":" + std::to_string(row.family->type) +
           ",\"row\":" + std::to_string(row.row) + ",\"section\":" + JsonString(row.section) +
           ",\"g\":" + JsonNumber(o.g) + ",\"IR\":" + JsonNumber(o.ratio) +
           ",\"IRtext\":" + JsonString(o.ratioText) + ",\"block\":" + JsonString(o.block) +
           ",\"formula\":" + JsonString(o.formula) + ",\"clause\":" + JsonString(o.clause) + ",\"choose\":[";
    const auto events = ChoiceEvents(*row.family, row.row);
    for (size_t k = 0; k < events.size(); ++k)
      out += (k ? "," : "") + JsonString(events[k].second.empty() ? events[k].first
                                                                  : events[k].first + "=" + events[k].second);
    out += "]}";
  }
  out += "]}";
  return out;
}

}  // namespace vn
