/// Vertical speed indicator (main panel).
#include "module/catalogue.h"
#include "module/numbers.h"

namespace tarnvale {
namespace {

constexpr f64 full_scale = 6000;  // feet a minute

/// The host measures in 1/256 metres a second.
f64 feet_a_minute(Element* needle) {
  constexpr f64 units = 1.30048;
  needle->needle.source.value /= units;
  return limited(needle->needle.source.value, -full_scale, full_scale);
}

constexpr Scale<17> scale{
    {{95, 58}, -full_scale}, {{88, 76}, -4000}, {{80, 84}, -3000}, {{69, 89}, -2000},
    {{55, 92}, -1500},       {{40, 89}, -1000}, {{22, 73}, -500},  {{20, 63}, -300},
    {{15, 51}, 0},           {{21, 39}, 300},   {{21, 30}, 500},   {{40, 14}, 1000},
    {{55, 11}, 1500},        {{69, 13}, 2000},  {{79, 19}, 3000},  {{87, 27}, 4000},
    {{92, 43}, full_scale},
};

constinit Body body{
    vsitcas,
    {
        lighting_overlay(14470),
        needle("Vertical speed", 14460, {55, 51}, {2, 2}, scale, feet_a_minute)
            .from(token::vertical_speed)
            .fails_with(failure::vertical_speed)
            .rate(1),
        icon("Power flag", 14450, {55, 34}).from(token::battery),
    },
};

}  // namespace

constinit Gauge vsitcas{{.name = "Vsitcas", .width_mm = 111, .background = 14440}, body};

}  // namespace tarnvale
