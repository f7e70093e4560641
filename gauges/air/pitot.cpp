/// Pitot heat (overhead): a switch for each side, and a light over it that shines while the heat is
/// off.
#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {

constinit Gauge<9, 2> pitot{
    Face{.name = "Pitot", .width_mm = 71, .background = 1050},
    {
        icon(2130, {12, 32}, 2, shows<aircraft.pitot_heat_left>),
        icon(2130, {50, 32}, 2, shows<aircraft.pitot_heat_right>),
        lamp(2120, {4, 7}, lit_at<aircraft.pitot_heat_left, 0>),
        lamp(2120, {41, 6}, lit_at<aircraft.pitot_heat_right, 0>),
    },
    {
        click({8, 30, 20, 45}, toggles<aircraft.pitot_heat_left>),
        click({46, 30, 20, 45}, toggles<aircraft.pitot_heat_right>),
    },
};

}  // namespace tarnvale
