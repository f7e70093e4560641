/// Wing anti-ice pressures (overhead): a needle for each wing, and the switch that raises what the
/// regulators hold. The pressures are made up here.
#include "gauges/air/antiice_supply.h"
#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {
namespace {

constexpr u32 full_scale = 1200;

/// One wing's supply: its switch, and what its regulator holds with the switch here off and on.
struct Supply {
  u32& on;
  u32 limit[2];
  u32 pressure;
};

constinit u32 raised_limit = 0;
constinit Supply left{aircraft.wing_antiice_left, {500, 510}, 10};
constinit Supply right{aircraft.wing_antiice_right, {580, 590}, 10};

template <auto wing>
f64 wing_pressure(Element*) {
  Supply& supply = *wing;
  const u32 kept = supply_kept(supply.pressure, full_scale, supply.on != 0);
  supply.pressure = supply_regulated(kept, supply.limit[raised_limit], supply.on != 0);
  return supply.pressure;
}

constexpr PanelPoint pivot{7, 7};
constexpr Scale<4> left_scale{{{24, 63}, 0}, {{22, 61}, 10}, {{40, 5}, 600}, {{66, 55}, full_scale}};
constexpr Scale<4> right_scale{
    {{108, 66}, 0}, {{106, 64}, 10}, {{124, 9}, 600}, {{150, 58}, full_scale}};

constinit Body body{
    airfoil,
    {
        lighting_overlay(1150),
        needle("Left wing anti-ice pressure", 1140, {41, 36}, pivot, left_scale, wing_pressure<&left>),
        needle("Right wing anti-ice pressure", 1140, {125, 39}, pivot, right_scale,
               wing_pressure<&right>),
        icon("High pressure switch", 2210, {22, 81}, shows<&raised_limit>),
    },
    {
        click("High pressure switch", {17, 77, 50, 20}, toggles<&raised_limit>),
    },
};

}  // namespace

constinit Gauge airfoil{{.name = "Airfoil", .width_mm = 162, .background = 1130}, body};

}  // namespace tarnvale
