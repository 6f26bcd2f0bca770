#include "sections/british.h"

#include "checks/shear_resistance.h"
#include "core/state.h"
#include "sections/channels.h"
#include "sections/rolled_i.h"

namespace vn {

namespace {

// UB, UC, UBP and J share one layout: 1 to 3 designation; 4 g; 5 h; 6 b; 7 tw; 8 tf; 9 r;
// 10 A x 100; 11 S; 12 Iy x 10 000; 13 Wely x 1000; 14 Wply x 1000; 15 Iz x 10 000;
// 16 Welz x 1000; 17 Wplz x 1000; 18 Ix x 10 000; 19 Iw x 1e9.
void BritishITable(State& s, CatalogueId id) {
  if (id == catCount) Fault("subscript out of range");  // no such sub-family
  Section& c = s.section;
  c.g = Scaled(s, id, 4, 1);
  c.h = Scaled(s, id, 5, 1);
  c.b = Scaled(s, id, 6, 1);
  c.tw = Scaled(s, id, 7, 1);
  c.tf = Scaled(s, id, 8, 1);
  c.r = Scaled(s, id, 9, 1);
  c.A = Scaled(s, id, 10, 100);
  c.S = Scaled(s, id, 11, 1);
  c.Iy = Scaled(s, id, 12, 10000);
  c.Wely = Scaled(s, id, 13, 1000);
  c.Wply = Scaled(s, id, 14, 1000);
  c.Iz = Scaled(s, id, 15, 10000);
  c.Welz = Scaled(s, id, 16, 1000);
  c.Wplz = Scaled(s, id, 17, 1000);
  c.Ix = Scaled(s, id, 18, 10000);
  c.Iw = Scaled(s, id, 19, 1e9);
  c.IzDefl = c.Iz;

  SetSectionName(s, s.project.ProfileType, CatalogueListText(s.catalogues, id, SelectedRowOf(s, id)));

  const double h = c.h, b = c.b, tf = c.tf, tw = c.tw, r = c.r;
  c.Af = ToSingle(2 * b * tf);
  c.Aw = ToSingle((h - 2 * tf) * tw);
  c.hw = ToSingle(h - 2 * tf);
  c.d = ToSingle(h - 2 * (r + tf));
  // The whole half flange is the outstand, unlike the continental I sections.
  c.c = ToSingle(b / 2);
  c.tmax = c.tf <= c.tw ? c.tw : c.tf;
  IOutline(s, r);
}

}  // namespace

void BritishIProperties(State& s) { BritishITable(s, CatalogueOfType(s, 101)); }

void BritishJProperties(State& s) { BritishITable(s, catJ); }

void BritishChannelProperties(State& s) {
  Section& c = s.section;
  const CatalogueId id = CatalogueOfType(s, 103);
  // CH has the toe radius r2 after r, and every later column one place on.
  const int k = id == catCh ? 1 : 0;
  c.g = Scaled(s, id, 4, 1);
  c.h = Scaled(s, id, 5, 1);
  c.b = Scaled(s, id, 6, 1);
  c.tw = Scaled(s, id, 7, 1);
  c.tf = Scaled(s, id, 8, 1);
  c.r = Scaled(s, id, 9, 1);
  if (k) c.r2 = Scaled(s, id, 10, 1);
  c.A = Scaled(s, id, 10 + k, 100);
  const Catalogue& t = s.catalogues.table[static_cast<size_t>(id)];
  const int row = SelectedRowOf(s, id);
  c.S = ToSingle(static_cast<double>(t.at(row, 11 + k)) * 1000 / 1000);
  c.Iy = Scaled(s, id, 12 + k, 10000);
  c.Wely = Scaled(s, id, 13 + k, 1000);
  c.Wply = Scaled(s, id, 14 + k, 1000);
  c.Iz = Scaled(s, id, 15 + k, 10000);
  c.Welz = Scaled(s, id, 16 + k, 1000);
  c.Wplz = Scaled(s, id, 17 + k, 1000);
  c.Ix = Scaled(s, id, 18 + k, 10000);
  c.Iw = Scaled(s, id, 19 + k, 1e9);
  c.ey = Scaled(s, id, 20 + k, 10);
  // The table gives the shear centre's position x 10; less ey it is em.
  c.em = ToSingle(static_cast<double>(t.at(row, 21 + k)) * 10 - c.ey);
  c.IzDefl = c.Iz;

  SetSectionName(s, s.project.ProfileType, CatalogueListText(s.catalogues, id, row));

  const double h = c.h, b = c.b, tf = c.tf, tw = c.tw, r = c.r;
  c.c = ToSingle(b - tw - r);
  c.hw = ToSingle(h - 2 * tf);
  c.d = ToSingle(static_cast<double>(c.hw) - 2 * r);
  c.tmax = c.tf < c.tw ? c.tw : c.tf;
  ChannelOutline(s, r);
}

void SectionShearResistances(State& s) {
  // At this stage the record holds no resistances yet (VzRd, VplRd and MfyRd are 0), so the forces
  // of a check point play no part: the flange term needs MyEd < MfyRd.
  ComputeShearResistances(s, 0, 0);
}

void BritishChannelRoutines(State& s) {
  if (s.project.subFamily103 == 1) {
    ChannelEffective(s);
    SectionShearResistances(s);
    RolledICapacities(s);
  } else {
    TaperedChannelEffective(s);
    RolledICapacities(s);
  }
}

}  // namespace vn
