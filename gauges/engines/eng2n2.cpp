/// Engine 2 core speed (main panel), with the pressure ratio on a small pointer below.
#include "gauges/engines/engine_dials.h"

namespace tarnvale {
namespace {

constexpr Scale<3> speed{{{16, 60}, 0}, {{61, 60}, 100}, {{57, 63}, speed_full_scale}};
constexpr Scale<2> ratio{{{32, 64}, 1}, {{38, 64}, 1.8}};

constinit Body body{
    eng2n2,
    {
        lighting_overlay(14180),
        needle("Core speed", 10390, {39, 38}, {6, 5}, speed, shows_within<0, speed_full_scale>)
            .from(token::engine_2_core_speed),
        needle("Pressure ratio", 10330, {38, 56}, {4, 1}, ratio, expanded_pressure_ratio)
            .from(token::engine_2_pressure_ratio),
    },
};

}  // namespace

constinit Gauge eng2n2{{.name = "Eng2n2", .width_mm = 78, .background = 14170}, body};

}  // namespace tarnvale
