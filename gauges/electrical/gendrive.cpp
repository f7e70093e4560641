/// Generator drive meters (overhead): how fast each generator's drive turns while it is switched on.
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/numbers.h"

namespace tarnvale {
namespace {

constexpr f64 full_speed = 16384;

template <u32& generator_switch>
f64 drive_speed(Element* needle) {
  return generator_switch == 1 ? limited(needle->needle.source.value, 0, full_speed) : 0;
}

constexpr PanelPoint pivot{3, 1};
constexpr Scale<2> left_scale{{{7, 28}, 0}, {{68, 28}, full_speed}};
constexpr Scale<2> right_scale{{{95, 28}, 0}, {{156, 28}, full_speed}};

}  // namespace

constinit Gauge<7, 0> gendrive{
    Face{.name = "Gendrive", .width_mm = 166, .background = 430},
    {
        lighting_overlay(450),
        needle(440, {38, 37}, pivot, left_scale, drive_speed<aircraft.gen1_switch>,
               {.source = token::gen1_drive}),
        needle(440, {126, 37}, pivot, right_scale, drive_speed<aircraft.gen2_switch>,
               {.source = token::gen2_drive}),
    },
};

}  // namespace tarnvale
