/// Turbine gas temperatures (main panel): a dial for each engine.
#include "gauges/engines/engine_dials.h"

namespace tarnvale {
namespace {

constexpr i32 full_scale = 3800;
constexpr PanelPoint pivot{4, 2};
constexpr Scale<2> left_scale{{{6, 48}, 0}, {{65, 45}, full_scale}};
constexpr Scale<2> right_scale{{{85, 48}, 0}, {{144, 45}, full_scale}};

constinit Body body{
    engtgt,
    {
        lighting_overlay(10370),
        needle("Engine 1 gas temperature", 10360, {35, 35}, pivot, left_scale,
               shows_within<0, full_scale>)
            .from(token::engine_1_gas_temperature)
            .flags(image_flag::transparent),
        needle("Engine 2 gas temperature", 10360, {114, 35}, pivot, right_scale,
               shows_within<0, full_scale>)
            .from(token::engine_2_gas_temperature)
            .flags(image_flag::transparent),
    },
};

}  // namespace

constinit Gauge engtgt{{.name = "Engtgt", .width_mm = 149, .background = 10350}, body};

}  // namespace tarnvale
