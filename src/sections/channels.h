// Rolled channels: UPE (type 5, parallel flanges) and UNP (type 16, tapered flanges). After their
// own properties and effective section they are classified and resisted as rolled I sections with
// one web and two one-sided flanges.
#pragma once

namespace vn {

struct State;

void UpeProperties(State& s);
void UnpProperties(State& s);

// The effective section of a channel: one flange outstand on each side of the web, no pass about z
// (Weffz = Welz).
void ChannelEffective(State& s);
void TaperedChannelEffective(State& s);

}  // namespace vn
