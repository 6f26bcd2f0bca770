#include "sections/channels.h"

#include <cmath>

#include "core/format.h"
#include "core/state.h"
#include "sections/rolled_i.h"

namespace vn {

namespace {

// 8 x 2 pi, the UNP flange slope of 8 percent entered as 8 degrees.
constexpr double kUnpSlope = static_cast<double>(50.2654839f);

void ChannelWork(State& s) {
  EffWork w;
  EffectiveAboutY(s, w, 1);
  s.section.Weffz = s.section.Welz;
}

}  // namespace

void UpeProperties(State& s) {
  Section& c = s.section;
  const Project& p = s.project;
  const CatalogueId id = catUpe;
  c.h = Scaled(s, id, 1, 1);
  c.b = Scaled(s, id, 2, 1);
  c.tw = Scaled(s, id, 3, 1);
  c.tf = Scaled(s, id, 4, 1);
  c.r = Scaled(s, id, 5, 1);
  c.ey = Scaled(s, id, 6, 1);
  c.em = Scaled(s, id, 7, 1);
  c.A = Scaled(s, id, 8, 1);
  c.Iy = Scaled(s, id, 9, 10000);
  c.Iz = Scaled(s, id, 10, 10000);
  c.Wply = Scaled(s, id, 11, 1000);
  c.Wplz = Scaled(s, id, 12, 1000);
  c.Ix = Scaled(s, id, 13, 1000);  // the table's stored unit for Ix: x 1000, not x 10 000
  c.Iw = Scaled(s, id, 14, 1e9);
  c.IzDefl = c.Iz;

  SetSectionName(s, p.ProfileType, CatalogueInfo(id).prefix + FormatNumber(c.h, "00", s.decimalComma));

  const double h = c.h, b = c.b, tf = c.tf, tw = c.tw, r = c.r;
  c.S = ToSingle((2 * b + h + 2 * tf + 2 * (b - tw - r) + (h - 2 * tf - 2 * r) + PiSingle * r) / 1000);
  c.Wely = ToSingle(Div(c.Iy, h / 2));
  c.Welz = ToSingle(Div(c.Iz, b - c.ey));  // the fibre at the flange tips
  c.g = ToSingle(static_cast<double>(p.rho) * c.A * 1e-6);
  c.c = ToSingle(b - tw - r);
  c.hw = ToSingle(h - 2 * tf);
  c.d = ToSingle(static_cast<double>(c.hw) - 2 * r);
  c.tmax = c.tf < c.tw ? c.tw : c.tf;
  ChannelOutline(s, r);
}

void UnpProperties(State& s) {
  Section& c = s.section;
  const Project& p = s.project;
  const CatalogueId id = catUnp;
  c.h = Scaled(s, id, 1, 1);
  c.b = Scaled(s, id, 2, 1);
  c.tw = Scaled(s, id, 3, 1);
  c.tf = Scaled(s, id, 4, 1);
  c.r1 = Scaled(s, id, 5, 1);
  c.r2 = Scaled(s, id, 6, 1);
  c.ey = Scaled(s, id, 7, 1);
  // The table gives the shear centre's position from the back of the web.
  c.em = ToSingle(static_cast<double>(Scaled(s, id, 8, 1)) - c.ey);
  c.A = Scaled(s, id, 9, 1);
  c.Iy = Scaled(s, id, 10, 10000);
  c.Iz = Scaled(s, id, 11, 10000);
  c.Ix = Scaled(s, id, 12, 1e6);
  c.Iw = Scaled(s, id, 13, 1e9);
  c.Wply = Scaled(s, id, 14, 1000);
  c.Wplz = Scaled(s, id, 15, 1000);
  c.IzDefl = c.Iz;

  SetSectionName(s, p.ProfileType, CatalogueInfo(id).prefix + FormatNumber(c.h, "00", s.decimalComma));

  const double h = c.h, b = c.b, tf = c.tf, tw = c.tw, r1 = c.r1, r2 = c.r2;
  // The sloped inner flange faces enter as an angle of 8 degrees; the toe radius r2 rounds the tips.
  c.S = ToSingle((2 * b + h + 2 * tf + 2 * (b - tw - r1) + (h - 2 * tf - 2 * r1) -
                  b * std::sin(kUnpSlope / 360) + PiSingle * r1 - 2 * (r2 - r2 * PiSingle / 4)) /
                 1000);
  c.Wely = ToSingle(Div(c.Iy, h / 2));
  c.Welz = ToSingle(Div(c.Iz, b - c.ey));
  c.g = ToSingle(static_cast<double>(p.rho) * c.A * 1e-6);
  c.c = ToSingle(b - tw - r1);
  c.hw = ToSingle(h - 2 * tf);
  c.d = ToSingle(static_cast<double>(c.hw) - 2 * r1);
  c.tmax = c.tf < c.tw ? c.tw : c.tf;
  ChannelOutline(s, r1);
}

void ChannelEffective(State& s) { ChannelWork(s); }

void TaperedChannelEffective(State& s) { ChannelWork(s); }

}  // namespace vn
