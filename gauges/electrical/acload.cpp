/// AC load meters (overhead): how much each engine's generator carries while it is switched to its
/// bus, and what the APU's generator or the ground unit carries.
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/numbers.h"

namespace tarnvale {
namespace {

constexpr f64 full_load_percent = 125;

f64 metered(const Element* needle) {
  return limited(needle->needle.source.value, 0, full_load_percent);
}

template <auto generator_switch>
f64 generator_load(Element* needle) {
  return variable<generator_switch>() == up ? metered(needle) : 0;
}

/// The third meter serves whichever of the APU and the ground unit feeds the buses; the APU goes
/// first.
f64 auxiliary_load(Element* needle) {
  if (aircraft.dc_power_on != 1) return 0;
  if (aircraft.apu_gen_switch == up) return metered(needle) + 45;
  return aircraft.ext_power_switch == 1 ? metered(needle) + 35 : 0;
}

constexpr PanelPoint pivot{4, 1};
constexpr Scale<2> left_scale{{{9, 32}, 0}, {{70, 32}, full_load_percent}};
constexpr Scale<2> middle_scale{{{97, 30}, 0}, {{158, 30}, full_load_percent}};
constexpr Scale<2> right_scale{{{204, 26}, 0}, {{265, 26}, full_load_percent}};

constinit Body body{
    acload,
    {
        lighting_overlay(420),
        needle("Generator 1 load", 410, {40, 40}, pivot, left_scale,
               generator_load<&Aircraft::gen1_switch>)
            .from(token::generator_1_load),
        needle("Generator 2 load", 410, {128, 39}, pivot, middle_scale,
               generator_load<&Aircraft::gen2_switch>)
            .from(token::generator_2_load),
        needle("Auxiliary load", 410, {235, 34}, pivot, right_scale, auxiliary_load)
            .from(token::auxiliary_load),
    },
};

}  // namespace

constinit Gauge acload{{.name = "Acload", .width_mm = 275, .background = 390}, body};

}  // namespace tarnvale
