/// Hydraulic panel (overhead): two rows of four pump switches, each with its light above it. The warning
/// lights watch each row for a pump left off.
#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {

constinit Gauge<33, 8> hydp{
    Face{.name = "Hydp", .width_mm = 208, .background = 3270},
    {
        lamp(3290, {25, 53}, shows<aircraft.hyd_pump_upper_1>),
        icon(3280, {35, 78}, 2, shows<aircraft.hyd_pump_upper_1>),
        lamp(3290, {25, 130}, shows<aircraft.hyd_pump_lower_1>),
        icon(3280, {35, 155}, 2, shows<aircraft.hyd_pump_lower_1>),

        lamp(3310, {65, 53}, shows<aircraft.hyd_pump_upper_2>),
        icon(3280, {75, 78}, 2, shows<aircraft.hyd_pump_upper_2>),
        lamp(3310, {65, 130}, shows<aircraft.hyd_pump_lower_2>),
        icon(3280, {75, 155}, 2, shows<aircraft.hyd_pump_lower_2>),

        lamp(3320, {105, 53}, shows<aircraft.hyd_pump_upper_3>),
        icon(3280, {115, 78}, 2, shows<aircraft.hyd_pump_upper_3>),
        lamp(3320, {105, 130}, shows<aircraft.hyd_pump_lower_3>),
        icon(3280, {115, 155}, 2, shows<aircraft.hyd_pump_lower_3>),

        lamp(3330, {145, 53}, shows<aircraft.hyd_pump_upper_4>),
        icon(3280, {155, 78}, 2, shows<aircraft.hyd_pump_upper_4>),
        lamp(3330, {145, 130}, shows<aircraft.hyd_pump_lower_4>),
        icon(3280, {155, 155}, 2, shows<aircraft.hyd_pump_lower_4>),
    },
    {
        click({31, 72, 26, 34}, toggles<aircraft.hyd_pump_upper_1>),
        click({31, 149, 26, 34}, toggles<aircraft.hyd_pump_lower_1>),
        click({71, 72, 26, 34}, toggles<aircraft.hyd_pump_upper_2>),
        click({71, 149, 26, 34}, toggles<aircraft.hyd_pump_lower_2>),
        click({111, 72, 26, 34}, toggles<aircraft.hyd_pump_upper_3>),
        click({111, 149, 26, 34}, toggles<aircraft.hyd_pump_lower_3>),
        click({151, 72, 26, 34}, toggles<aircraft.hyd_pump_upper_4>),
        click({151, 149, 26, 34}, toggles<aircraft.hyd_pump_lower_4>),
    },
};

}  // namespace tarnvale
