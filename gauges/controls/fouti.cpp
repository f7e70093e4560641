/// Utility hydraulics: gear, flaps, speed brake and lift dumpers (first officer's panel).
#include "gauges/controls/hydraulic_dials.h"

namespace tarnvale {
namespace {

constexpr Scale<2> pressure_scale{{{82, 49}, 0}, {{134, 49}, hydraulic_pressure_full_scale}};
constexpr Scale<3> quantity_scale{
    {{11, 49}, 0}, {{49, 11}, hydraulic_quantity_full}, {{59, 48}, hydraulic_quantity_full_scale}};

constinit Body body{
    fouti,
    {
        lighting_overlay(20150),
        hydraulic_pressure(token::utility_hydraulic_pressure, {109, 34}, pressure_scale),
        hydraulic_quantity(token::utility_hydraulic_quantity, {35, 33}, quantity_scale),
    },
};

}  // namespace

constinit Gauge fouti{{.name = "Fouti", .width_mm = 145, .background = 20140}, body};

}  // namespace tarnvale
