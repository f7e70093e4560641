/// Generator drive meters (overhead): the oil temperature of each generator's drive while it is
/// switched on.
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/numbers.h"

namespace tarnvale {
namespace {

constexpr f64 full_scale = 16384;  // 140 degrees Celsius

template <auto generator_switch>
f64 oil_temperature(Element* needle) {
  return variable<generator_switch>() == up ? limited(needle->needle.source.value, 0, full_scale) : 0;
}

constexpr PanelPoint pivot{3, 1};
constexpr Scale<2> left_scale{{{7, 28}, 0}, {{68, 28}, full_scale}};
constexpr Scale<2> right_scale{{{95, 28}, 0}, {{156, 28}, full_scale}};

constinit Body body{
    gendrive,
    {
        lighting_overlay(450),
        needle("Drive 1 oil temperature", 440, {38, 37}, pivot, left_scale,
               oil_temperature<&Aircraft::gen1_switch>)
            .from(token::engine_1_oil_temperature),
        needle("Drive 2 oil temperature", 440, {126, 37}, pivot, right_scale,
               oil_temperature<&Aircraft::gen2_switch>)
            .from(token::engine_2_oil_temperature),
    },
};

}  // namespace

constinit Gauge gendrive{{.name = "Gendrive", .width_mm = 166, .background = 430}, body};

}  // namespace tarnvale
