// The typed dimensions of the section dialogs (welded, box, HSQ, T, flat bar, tube, plate and
// general sections): one protocol for every field, and one table of limits, each with the text the
// warning box shows and the test that text states. A family adds its rows here.
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

#include "core/control_registry.h"
#include "core/events.h"
#include "core/format.h"
#include "core/pipeline.h"
#include "core/recalculate.h"
#include "core/state.h"
#include "sections/section_dialogs.h"

namespace vn {

namespace {

// One limit of a field: the test that its message states. The state holds the value just stored.
struct Limit {
  const char* message;
  std::function<bool(const State&, double)> holds;
};

struct DimensionField {
  const char* form;                       // "p21"
  const char* field;                      // "isth"
  bool thickness;                         // shown with "##0.0", other dimensions with "##0"
  std::function<double&(State&)> number;  // a Number slot, or
  std::function<Single&(State&)> single;  // a Single slot
  std::vector<Limit> limits;              // tested in order; the first that fails is shown
};

// The field's text: a 32-bit value by its shortest decimal, so that a typed 1.185E+9 reads
// 1185000000 and not the 1184999936 the float holds.
std::string FieldText(const State& s, const DimensionField& f, double v) {
  if (f.single) v = std::strtod(SingleText(static_cast<Single>(v)).c_str(), nullptr);
  return FormatNumber(v, f.thickness ? "##0.0" : "##0", s.decimalComma);
}

template <class F>
std::function<Single&(State&)> S(F f) {
  return f;
}
template <class F>
std::function<double&(State&)> N(F f) {
  return f;
}

bool AtLeast(double v, double bound) { return v >= bound; }

std::vector<DimensionField> BuildTable() {
  std::vector<DimensionField> t;
  const Limit h20{" h >= 20 ", [](const State&, double v) { return AtLeast(v, 20); }};
  const Limit b5{" b >= 5 ", [](const State&, double v) { return AtLeast(v, 5); }};
  const Limit b2of5{" b2 >= 5 ", [](const State&, double v) { return AtLeast(v, 5); }};
  const Limit tf{" tf >= 0.1 ", [](const State&, double v) { return AtLeast(v, 0.1f); }};
  const Limit tf1{" tf1 >= 0.1 ", [](const State&, double v) { return AtLeast(v, 0.1f); }};
  const Limit tf2{" tf2 >= 0.1 ", [](const State&, double v) { return AtLeast(v, 0.1f); }};
  const Limit tw{" tw >= 0.1 ", [](const State&, double v) { return AtLeast(v, 0.1f); }};

  // p21: double symmetric welded I
  t.push_back(
      {"p21", "isth", false, nullptr, S([](State& s) -> Single& { return s.project.p21.isth; }), {h20}});
  t.push_back(
      {"p21", "istb1", false, nullptr, S([](State& s) -> Single& { return s.project.p21.istb1; }), {b5}});
  t.push_back(
      {"p21", "isttw", true, nullptr, S([](State& s) -> Single& { return s.project.p21.isttw; }), {tw}});
  t.push_back(
      {"p21", "isttf", true, nullptr, S([](State& s) -> Single& { return s.project.p21.isttf; }), {tf}});

  // p22: single symmetric welded I
  t.push_back(
      {"p22", "isth", false, nullptr, S([](State& s) -> Single& { return s.project.p22.isth; }), {h20}});
  t.push_back(
      {"p22", "istb1", false, nullptr, S([](State& s) -> Single& { return s.project.p22.istb1; }), {b5}});
  t.push_back(
      {"p22", "istb2", false, nullptr, S([](State& s) -> Single& { return s.project.p22.istb2; }), {b2of5}});
  t.push_back(
      {"p22", "isttw", true, nullptr, S([](State& s) -> Single& { return s.project.p22.isttw; }), {tw}});
  t.push_back(
      {"p22", "isttf1", true, nullptr, S([](State& s) -> Single& { return s.project.p22.isttf1; }), {tf1}});
  t.push_back(
      {"p22", "isttf2", true, nullptr, S([](State& s) -> Single& { return s.project.p22.isttf2; }), {tf2}});

  // p23: welded box
  t.push_back(
      {"p23", "isth", false, nullptr, S([](State& s) -> Single& { return s.project.p23.isth; }), {h20}});
  t.push_back(
      {"p23", "istb1", false, nullptr, S([](State& s) -> Single& { return s.project.p23.istb1; }), {b5}});
  t.push_back(
      {"p23", "isttw", true, nullptr, S([](State& s) -> Single& { return s.project.p23.isttw; }), {tw}});
  t.push_back(
      {"p23", "isttf", true, nullptr, S([](State& s) -> Single& { return s.project.p23.isttf; }), {tf}});
  t.push_back({"p23",
               "ista",
               false,
               nullptr,
               S([](State& s) -> Single& { return s.project.p23.ista; }),
               {{" a >= 0 ", [](const State&, double v) { return v >= 0; }},
                {" a < b/2-tw ", [](const State& s, double v) {
                   return v < s.project.p23.istb1 / 2.0 - s.project.p23.isttw;
                 }}}});

  // p24: HSQ with symmetric flanges; its c is typed in the field istc.
  t.push_back(
      {"p24", "isth", false, nullptr, S([](State& s) -> Single& { return s.project.p24.isth; }), {h20}});
  t.push_back(
      {"p24", "istb1", false, nullptr, S([](State& s) -> Single& { return s.project.p24.istb1; }), {b5}});
  t.push_back({"p24",
               "istb2",
               false,
               nullptr,
               S([](State& s) -> Single& { return s.project.p24.istb2; }),
               {{" b2 > 50 ", [](const State&, double v) { return v > 50; }},
                {" b2 >= b1-2*tw ", [](const State& s, double v) {
                   return v >= s.project.p24.istb1 - 2.0 * s.project.p24.isttw;
                 }}}});
  t.push_back(
      {"p24", "isttw", true, nullptr, S([](State& s) -> Single& { return s.project.p24.isttw; }), {tw}});
  t.push_back(
      {"p24", "isttf1", true, nullptr, S([](State& s) -> Single& { return s.project.p24.isttf1; }), {tf1}});
  t.push_back(
      {"p24", "isttf2", true, nullptr, S([](State& s) -> Single& { return s.project.p24.isttf2; }), {tf2}});
  t.push_back({"p24",
               "istc",
               false,
               nullptr,
               S([](State& s) -> Single& { return s.project.p24.c; }),
               {{" 0 <= c <= b1/2 ",
                 [](const State& s, double v) { return v >= 0 && v <= s.project.p24.istb1 / 2.0; }}}});
  t.push_back(
      {"p24",
       "iload",
       false,
       nullptr,
       S([](State& s) -> Single& { return s.project.p24.iload; }),
       {{" 50% <= Load on one flange <= 90% ", [](const State&, double v) { return v >= 50 && v <= 90; }}}});

  // p25: HSQ with unequal flanges
  t.push_back(
      {"p25", "isth", false, nullptr, S([](State& s) -> Single& { return s.project.p25.isth; }), {h20}});
  t.push_back({"p25",
               "istb1",
               false,
               nullptr,
               S([](State& s) -> Single& { return s.project.p25.istb1; }),
               {{" 5 < b1 < (b2-c) ", [](const State& s, double v) {
                   return v > 5 && v < s.project.p25.istb2 - s.project.p25.istc;
                 }}}});
  t.push_back(
      {"p25", "istb2", false, nullptr, S([](State& s) -> Single& { return s.project.p25.istb2; }), {b2of5}});
  t.push_back(
      {"p25", "isttw", true, nullptr, S([](State& s) -> Single& { return s.project.p25.isttw; }), {tw}});
  t.push_back(
      {"p25", "isttf1", true, nullptr, S([](State& s) -> Single& { return s.project.p25.isttf1; }), {tf1}});
  t.push_back(
      {"p25", "isttf2", true, nullptr, S([](State& s) -> Single& { return s.project.p25.isttf2; }), {tf2}});
  t.push_back({"p25",
               "istc",
               false,
               nullptr,
               S([](State& s) -> Single& { return s.project.p25.istc; }),
               {{" 0 <= c <= b1/2 ",
                 [](const State& s, double v) { return v >= 0 && v <= s.project.p25.istb1 / 2.0; }}}});

  // p26: T
  t.push_back(
      {"p26", "isth", false, N([](State& s) -> double& { return s.project.p26.isth; }), nullptr, {h20}});
  t.push_back(
      {"p26", "istb1", false, N([](State& s) -> double& { return s.project.p26.istb1; }), nullptr, {b5}});
  t.push_back(
      {"p26", "isttw", true, N([](State& s) -> double& { return s.project.p26.isttw; }), nullptr, {tw}});
  t.push_back(
      {"p26", "isttf1", true, nullptr, S([](State& s) -> Single& { return s.project.p26.isttf1; }), {tf1}});

  // p27: box with unequal flanges; its a is the distance typed in istc.
  t.push_back(
      {"p27", "isth", false, N([](State& s) -> double& { return s.project.p27.isth; }), nullptr, {h20}});
  t.push_back({"p27",
               "istb1",
               false,
               N([](State& s) -> double& { return s.project.p27.istb1; }),
               nullptr,
               {{" b1 >= 20 ", [](const State&, double v) { return v >= 20; }}}});
  t.push_back({"p27",
               "istb2",
               false,
               N([](State& s) -> double& { return s.project.p27.istb2; }),
               nullptr,
               {{" b2 >= (a+tw) ",
                 [](const State& s, double v) { return v >= s.project.p27.istc + s.project.p27.isttw; }}}});
  t.push_back(
      {"p27", "isttw", true, N([](State& s) -> double& { return s.project.p27.isttw; }), nullptr, {tw}});
  t.push_back(
      {"p27", "isttf1", true, N([](State& s) -> double& { return s.project.p27.isttf1; }), nullptr, {tf1}});
  t.push_back(
      {"p27", "isttf2", true, N([](State& s) -> double& { return s.project.p27.isttf2; }), nullptr, {tf2}});
  t.push_back({"p27",
               "istc",
               false,
               nullptr,
               S([](State& s) -> Single& { return s.project.p27.istc; }),
               {{" c >= 0 ", [](const State&, double v) { return v >= 0; }}}});

  // p28: flat bar
  t.push_back({"p28",
               "isth",
               false,
               nullptr,
               S([](State& s) -> Single& { return s.project.p28.isth; }),
               {{" h >= 5 ", [](const State&, double v) { return v >= 5; }}}});
  t.push_back(
      {"p28", "isttw", true, nullptr, S([](State& s) -> Single& { return s.project.p28.isttw; }), {tw}});

  // p31: tube
  t.push_back({"p31",
               "istd",
               false,
               nullptr,
               S([](State& s) -> Single& { return s.project.p31.istd; }),
               {{" d >= 20 ", [](const State&, double v) { return v >= 20; }}}});
  t.push_back(
      {"p31", "isttw", true, nullptr, S([](State& s) -> Single& { return s.project.p31.isttw; }), {tw}});

  // p41: general section, the values themselves
  auto general = [&t](const char* field, const char* message, bool strict, Single GeneralInput::*slot) {
    const double bound = std::string(message).find("50") != std::string::npos ? 50 : 1000;
    t.push_back(
        {"p41",
         field,
         false,
         nullptr,
         std::function<Single&(State&)>([slot](State& s) -> Single& { return s.project.p41.*slot; }),
         {{message, [bound, strict](const State&, double v) { return strict ? v > bound : v >= bound; }}}});
  };
  general("istax", " A >= 50 ", false, &GeneralInput::istax);
  general("istay", " Ay >= 50 ", false, &GeneralInput::istay);
  general("istaz", " Az >= 50 ", false, &GeneralInput::istaz);
  general("istix", " Ix >= 1000 ", false, &GeneralInput::istix);
  general("istiy", " Iy >= 1000 ", false, &GeneralInput::istiy);
  general("istiz", " Iz >= 1000 ", false, &GeneralInput::istiz);
  general("istiw", " Iw >= 1000 ", false, &GeneralInput::istiw);
  general("istwely", " Wely >= 1000 ", false, &GeneralInput::istwely);
  general("istwelz", " Welz >= 1000 ", false, &GeneralInput::istwelz);
  general("istwply", " 1000 < Wply ", true, &GeneralInput::istwply);
  general("istwplz", " 1000 < Wplz ", true, &GeneralInput::istwplz);

  // p51: plate with flat bar
  t.push_back(
      {"p51", "isth", false, N([](State& s) -> double& { return s.project.p51.isth; }), nullptr, {h20}});
  t.push_back(
      {"p51", "istb1", false, N([](State& s) -> double& { return s.project.p51.istb1; }), nullptr, {b5}});
  t.push_back(
      {"p51", "isttw", true, N([](State& s) -> double& { return s.project.p51.isttw; }), nullptr, {tw}});
  t.push_back(
      {"p51", "isttf1", true, nullptr, S([](State& s) -> Single& { return s.project.p51.isttf1; }), {tf1}});

  // p52, p54: plate with a catalogued bar
  for (const char* form : {"p52", "p54"}) {
    const bool l = std::string(form) == "p52";
    t.push_back({form,
                 "istb1",
                 false,
                 N([l](State& s) -> double& { return l ? s.project.p52.istb1 : s.project.p54.istb1; }),
                 nullptr,
                 {{" b1 > 0 ", [](const State&, double v) { return v > 0; }}}});
    t.push_back({form,
                 "istt1",
                 true,
                 nullptr,
                 S([l](State& s) -> Single& { return l ? s.project.p52.istt1 : s.project.p54.istt1; }),
                 {{" t1 >= 0.1 ", [](const State&, double v) { return AtLeast(v, 0.1f); }}}});
  }

  // p53, p56: plate with a welded L or T girder
  for (const char* form : {"p53", "p56"}) {
    auto rec = [form](State& s) -> PlateWeldedInput& {
      return std::string(form) == "p53" ? s.project.p53 : s.project.p56;
    };
    t.push_back({form, "isth", false, N([rec](State& s) -> double& { return rec(s).isth; }), nullptr, {h20}});
    t.push_back(
        {form, "istb1", false, N([rec](State& s) -> double& { return rec(s).istb1; }), nullptr, {b5}});
    t.push_back(
        {form, "istb2", false, N([rec](State& s) -> double& { return rec(s).istb2; }), nullptr, {b2of5}});
    t.push_back({form, "isttw", true, N([rec](State& s) -> double& { return rec(s).isttw; }), nullptr, {tw}});
    t.push_back(
        {form, "isttf1", true, N([rec](State& s) -> double& { return rec(s).isttf1; }), nullptr, {tf1}});
    t.push_back({form, "isttf2", true, nullptr, S([rec](State& s) -> Single& { return rec(s).isttf2; }), {}});
  }
  return t;
}

// Leaving a dimension field: parse, store, show, test the limits; a failed limit keeps the user in
// the field without a recalculation.
EventResult LeaveDimensionField(State& s, const DimensionField& f, std::string_view text) {
  EnsureSectionDialogActive(s, f.form);
  const std::string self = std::string(f.form) + "." + f.field;
  EventResult r;
  Single typed = 0;
  if (!ParseFieldText(s, self, text, &typed, &r)) {
    if (r.refused) r.message = "Input string mismatch";  // the old value stands
    return r;
  }
  double stored;
  if (f.single) {
    f.single(s) = typed;
    stored = f.single(s);
  } else {
    f.number(s) = typed;
    stored = f.number(s);
  }
  r.text = FieldText(s, f, stored);
  s.view.text[self] = r.text;
  for (const Limit& limit : f.limits) {
    if (!limit.holds(s, stored)) {
      r.refused = true;
      r.message = limit.message;
      r.focus = self;
      return r;
    }
  }
  Recalculate(s);
  ShowSectionValues(s);
  ShowDialogOptions(s, f.form);  // the flange load of an HSQ may have been turned off
  return r;
}

const std::vector<DimensionField>& Table() {
  static const std::vector<DimensionField> table = BuildTable();
  return table;
}

}  // namespace

void ShowDimensionFields(State& s, std::string_view form) {
  for (const DimensionField& f : Table()) {
    if (form != f.form) continue;
    const double v = f.single ? static_cast<double>(f.single(s)) : f.number(s);
    s.view.text[std::string(f.form) + "." + f.field] = FieldText(s, f, v);
  }
}

std::vector<std::string> DimensionFieldNames(std::string_view form) {
  std::vector<std::string> names;
  for (const DimensionField& f : Table())
    if (form == f.form) names.push_back(f.field);
  return names;
}

void RegisterDimensionFieldControls(ControlTable& t) {
  for (const DimensionField& f : Table()) {
    AddControl(t, f.form, f.field,
               [&f](State& s, int, std::string_view text) { return LeaveDimensionField(s, f, text); });
  }
}

}  // namespace vn
