/// First officer's warning lights: a pair for each hydraulic system, lit by a pump left off, and
/// between them one for the engines that also goes with system 1.
#include "module/catalogue.h"
#include "module/systems.h"

namespace tarnvale {
namespace {

f64 system_1_light(Element*) {
  const Aircraft& a = aircraft;
  return a.hyd_pump_upper_1 == 0 || a.hyd_pump_upper_2 == 0 || a.hyd_pump_upper_3 == 0 ||
         a.hyd_pump_upper_4 == 0;
}

f64 system_2_light(Element*) {
  const Aircraft& a = aircraft;
  return a.hyd_pump_lower_1 == 0 || a.hyd_pump_lower_2 == 0 || a.hyd_pump_lower_3 == 0 ||
         a.hyd_pump_lower_4 == 0;
}

f64 engine_light(Element* element) { return no_engine_runs() ? 1 : system_1_light(element); }

constexpr Bitmaps pump_light{20080, 2}, pressure_light{20090, 2};

constinit Body body{
    fowarn,
    {
        lamp("System 1 pressure light", pressure_light, {3, 87}, system_1_light),
        lamp("System 1 pump light", pump_light, {3, 115}, system_1_light),
        lamp("Engine light", 20110, {3, 59}, engine_light),
        lamp("System 2 pressure light", pressure_light, {3, 31}, system_2_light),
        lamp("System 2 pump light", pump_light, {3, 3}, system_2_light),
    },
};

}  // namespace

constinit Gauge fowarn{{.name = "Fowarn", .width_mm = 29, .background = 20070}, body};

}  // namespace tarnvale
