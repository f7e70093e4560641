/// Brake accumulator pressures (first officer's panel).
#include "gauges/controls/brake_section.h"

namespace tarnvale {
namespace {

constexpr Scale<2> left_scale{{{13, 54}, 0}, {{64, 54}, 4000}};
constexpr Scale<2> right_scale{{{85, 54}, 0}, {{137, 54}, 4000}};

constinit Body body{
    fobrake,
    {
        lighting_overlay(20130),
        needle("Right accumulator pressure", accumulator_needle, {111, 38}, accumulator_pivot,
               right_scale, accumulator_pressure),
        needle("Left accumulator pressure", accumulator_needle, {39, 38}, accumulator_pivot, left_scale,
               accumulator_pressure),
    },
};

}  // namespace

constinit Gauge fobrake{{.name = "Fobrake", .width_mm = 147, .background = 20120}, body};

}  // namespace tarnvale
