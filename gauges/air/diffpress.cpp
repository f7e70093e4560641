/// Differential-pressure gauge (overhead): the aircraft's altitude on one needle, the cabin's
/// differential pressure on the other. The pressure follows the altitude in steps; the cabin-altitude
/// controller watches it.
#include "module/aircraft.h"
#include "module/bands.h"
#include "module/catalogue.h"
#include "module/counters.h"
#include "module/numbers.h"

namespace tarnvale {
namespace {

constexpr f64 highest_ft = 50000;
constexpr u32 lowest_pressure = 10, full_scale = 100;

/// From 36000 to 37000 ft the pressure steps on between its neighbours, so that a climb and a descent
/// through there show the same.
constexpr Band<u32> schedule[] = {
    {100, 10},   {3000, 22},
    {4000, 24},  {6000, 27},
    {8000, 30},  {10000, 36},
    {12000, 42}, {15500, 50},
    {30000, 65}, {35000, 75},
    {36000, 77}, {37000, 80},
    {38000, 84}, {highest_ft + 1, full_scale},
};

f64 altitude(const Element* needle) { return limited(needle->needle.source.value, 0, highest_ft); }

f64 show_altitude(Element* needle) { return altitude(needle); }

f64 show_pressure(Element* needle) {
  u32& pressure = aircraft.cabin_diff_pressure;
  pressure = held(pressure, lowest_pressure, full_scale);
  if (const auto* band = band_at<u32>(schedule, altitude(needle))) pressure = band->value;
  return pressure;
}

constexpr PanelPoint centre{59, 55};
constexpr Scale<2> altitude_scale{{{58, 25}, 0}, {{40, 28}, highest_ft}};
constexpr Scale<5> pressure_scale{
    {{54, 7}, 0}, {{58, 6}, lowest_pressure}, {{29, 100}, 66}, {{13, 81}, 75}, {{27, 16}, full_scale}};

constinit Body body{
    diffpress,
    {
        lighting_overlay(1290),
        needle("Aircraft altitude", 24220, centre, {0, 2}, altitude_scale, show_altitude)
            .from(token::indicated_altitude),
        needle("Differential pressure", 1280, centre, {9, 10}, pressure_scale, show_pressure)
            .from(token::indicated_altitude),
    },
};

}  // namespace

constinit Gauge diffpress{{.name = "Diffpress", .width_mm = 116, .background = 1270}, body};

}  // namespace tarnvale
