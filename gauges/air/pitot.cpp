/// Pitot heat (overhead): a switch for each side, and a light over it that shines while the heat is
/// off.
#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {
namespace {

constinit Body body{
    pitot,
    {
        icon("Left pitot heat switch", bitmap::toggle_switch, {12, 32},
             shows<&Aircraft::pitot_heat_left>),
        icon("Right pitot heat switch", bitmap::toggle_switch, {50, 32},
             shows<&Aircraft::pitot_heat_right>),
        lamp("Left pitot heat lamp", bitmap::off_lamp, {4, 7}, lit_at<&Aircraft::pitot_heat_left, 0>),
        lamp("Right pitot heat lamp", bitmap::off_lamp, {41, 6},
             lit_at<&Aircraft::pitot_heat_right, 0>),
    },
    {
        click("Left pitot heat switch", {8, 30, 20, 45}, toggles<&Aircraft::pitot_heat_left>),
        click("Right pitot heat switch", {46, 30, 20, 45}, toggles<&Aircraft::pitot_heat_right>),
    },
};

}  // namespace

constinit Gauge pitot{{.name = "Pitot", .width_mm = 71, .background = 1050}, body};

}  // namespace tarnvale
