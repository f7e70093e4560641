/// Wing tank quantities (main panel): left and right.
#include "module/catalogue.h"
#include "module/needles.h"

namespace tarnvale {
namespace {

constexpr i32 full_tank = 1280;
constexpr PanelPoint pivot{3, 2};
constexpr Scale<2> left_scale{{{22, 62}, 0}, {{45, 63}, full_tank}};
constexpr Scale<2> right_scale{{{101, 62}, 0}, {{124, 63}, full_tank}};

constinit Body body{
    fuelrl,
    {
        lighting_overlay(12360),
        needle("Left tank quantity", 12350, {33, 34}, pivot, left_scale, shows_within<0, full_tank>)
            .from(token::left_tank_quantity)
            .fails_with(failure::fuel_quantity),
        needle("Right tank quantity", 12350, {112, 34}, pivot, right_scale, shows_within<0, full_tank>)
            .from(token::right_tank_quantity)
            .fails_with(failure::fuel_quantity),
    },
};

}  // namespace

constinit Gauge fuelrl{{.name = "Fuelrl", .width_mm = 147, .background = 12340}, body};

}  // namespace tarnvale
