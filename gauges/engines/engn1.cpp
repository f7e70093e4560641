/// Fan speeds (main panel): a dial for each engine, with the pressure ratio on a small pointer below.
#include "gauges/engines/engine_dials.h"

namespace tarnvale {
namespace {

constexpr i32 speed_needle = 10320, ratio_pointer = 10330;
constexpr PanelPoint speed_pivot{6, 5}, ratio_pivot{4, 1};

constexpr Scale<3> left_speed{{{13, 57}, 0}, {{59, 57}, 100}, {{55, 60}, speed_full_scale}};
constexpr Scale<2> left_ratio{{{28, 64}, 1}, {{35, 66}, 1.8}};
constexpr Scale<3> right_speed{{{93, 57}, 0}, {{139, 57}, 100}, {{134, 60}, speed_full_scale}};
constexpr Scale<2> right_ratio{{{107, 64}, 1}, {{114, 66}, 1.8}};

constinit Body body{
    engn1,
    {
        lighting_overlay(10340),
        needle("Engine 1 fan speed", speed_needle, {37, 35}, speed_pivot, left_speed,
               shows_within<0, speed_full_scale>)
            .from(token::engine_1_fan_speed),
        needle("Engine 1 pressure ratio", ratio_pointer, {35, 53}, ratio_pivot, left_ratio,
               expanded_pressure_ratio)
            .from(token::engine_1_pressure_ratio),
        needle("Engine 2 fan speed", speed_needle, {116, 35}, speed_pivot, right_speed,
               shows_within<0, speed_full_scale>)
            .from(token::engine_2_fan_speed),
        needle("Engine 2 pressure ratio", ratio_pointer, {114, 53}, ratio_pivot, right_ratio,
               expanded_pressure_ratio)
            .from(token::engine_2_pressure_ratio),
    },
};

}  // namespace

constinit Gauge engn1{{.name = "Engn1", .width_mm = 152, .background = 10310}, body};

}  // namespace tarnvale
