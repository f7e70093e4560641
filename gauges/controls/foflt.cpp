/// Flight-control hydraulics (first officer's panel).
#include "gauges/controls/hydraulic_dials.h"

namespace tarnvale {
namespace {

constexpr Scale<2> pressure_scale{{{84, 51}, 0}, {{135, 51}, hydraulic_pressure_full_scale}};
constexpr Scale<3> quantity_scale{
    {{11, 51}, 0}, {{62, 36}, hydraulic_quantity_full}, {{59, 50}, hydraulic_quantity_full_scale}};

constinit Body body{
    foflt,
    {
        lighting_overlay(20170),
        hydraulic_pressure(token::flight_hydraulic_pressure, {110, 35}, pressure_scale),
        hydraulic_quantity(token::flight_hydraulic_quantity, {35, 36}, quantity_scale),
    },
};

}  // namespace

constinit Gauge foflt{{.name = "Foflt", .width_mm = 146, .background = 20160}, body};

}  // namespace tarnvale
