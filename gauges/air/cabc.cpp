/// Cabin temperature (overhead). The cabin is heated from the right side and follows its selector.
#include "module/aircraft.h"
#include "module/catalogue.h"

namespace tarnvale {
namespace {

f64 cabin_temperature(Element*) {
  constexpr u32 selected[] = {15, 17, 20, 21, 22, 23, 24, 25, 26, 27};
  const bool heated = aircraft.aircon_right_on == 1 && aircraft.aircon_right_auto == 1;
  return aircraft.dc_power_on != 0 && heated ? selected[aircraft.temp_selector_right] : 0;
}

constexpr Scale<5> scale{{{4, 33}, 0}, {{10, 16}, 20}, {{24, 7}, 30}, {{43, 5}, 40}, {{64, 33}, 60}};

constinit Body body{
    cabc,
    {
        lighting_overlay(330),
        needle("Cabin temperature", 320, {34, 34}, {7, 7}, scale, cabin_temperature),
    },
};

}  // namespace

constinit Gauge cabc{{.name = "Cabc", .width_mm = 71, .background = 310}, body};

}  // namespace tarnvale
