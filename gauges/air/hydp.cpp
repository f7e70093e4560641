/// Hydraulic panel (overhead): two rows of four pump switches, each with its light above it. The
/// warning lights watch each row for a pump left off.
#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {
namespace {

constinit Body body{
    hydp,
    {
        lamp("System 1 engine 1 pump lamp", 3290, {25, 53}, shows<&Aircraft::hyd_pump_upper_1>),
        icon("System 1 engine 1 pump switch", bitmap::pump_switch, {35, 78},
             shows<&Aircraft::hyd_pump_upper_1>),
        lamp("System 2 engine 1 pump lamp", 3290, {25, 130}, shows<&Aircraft::hyd_pump_lower_1>),
        icon("System 2 engine 1 pump switch", bitmap::pump_switch, {35, 155},
             shows<&Aircraft::hyd_pump_lower_1>),

        lamp("System 1 engine 2 pump lamp", 3310, {65, 53}, shows<&Aircraft::hyd_pump_upper_2>),
        icon("System 1 engine 2 pump switch", bitmap::pump_switch, {75, 78},
             shows<&Aircraft::hyd_pump_upper_2>),
        lamp("System 2 engine 2 pump lamp", 3310, {65, 130}, shows<&Aircraft::hyd_pump_lower_2>),
        icon("System 2 engine 2 pump switch", bitmap::pump_switch, {75, 155},
             shows<&Aircraft::hyd_pump_lower_2>),

        lamp("System 1 electric pump lamp", 3320, {105, 53}, shows<&Aircraft::hyd_pump_upper_3>),
        icon("System 1 electric pump switch", bitmap::pump_switch, {115, 78},
             shows<&Aircraft::hyd_pump_upper_3>),
        lamp("System 2 electric pump lamp", 3320, {105, 130}, shows<&Aircraft::hyd_pump_lower_3>),
        icon("System 2 electric pump switch", bitmap::pump_switch, {115, 155},
             shows<&Aircraft::hyd_pump_lower_3>),

        lamp("System 1 standby pump lamp", 3330, {145, 53}, shows<&Aircraft::hyd_pump_upper_4>),
        icon("System 1 standby pump switch", bitmap::pump_switch, {155, 78},
             shows<&Aircraft::hyd_pump_upper_4>),
        lamp("System 2 standby pump lamp", 3330, {145, 130}, shows<&Aircraft::hyd_pump_lower_4>),
        icon("System 2 standby pump switch", bitmap::pump_switch, {155, 155},
             shows<&Aircraft::hyd_pump_lower_4>),
    },
    {
        click("System 1 engine 1 pump switch", {31, 72, 26, 34}, toggles<&Aircraft::hyd_pump_upper_1>),
        click("System 2 engine 1 pump switch", {31, 149, 26, 34}, toggles<&Aircraft::hyd_pump_lower_1>),
        click("System 1 engine 2 pump switch", {71, 72, 26, 34}, toggles<&Aircraft::hyd_pump_upper_2>),
        click("System 2 engine 2 pump switch", {71, 149, 26, 34}, toggles<&Aircraft::hyd_pump_lower_2>),
        click("System 1 electric pump switch", {111, 72, 26, 34}, toggles<&Aircraft::hyd_pump_upper_3>),
        click("System 2 electric pump switch", {111, 149, 26, 34},
              toggles<&Aircraft::hyd_pump_lower_3>),
        click("System 1 standby pump switch", {151, 72, 26, 34}, toggles<&Aircraft::hyd_pump_upper_4>),
        click("System 2 standby pump switch", {151, 149, 26, 34}, toggles<&Aircraft::hyd_pump_lower_4>),
    },
};

}  // namespace

constinit Gauge hydp{{.name = "Hydp", .width_mm = 208, .background = 3270}, body};

}  // namespace tarnvale
