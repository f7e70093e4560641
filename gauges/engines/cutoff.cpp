/// Fuel control panel (throttle pedestal): fuel levers, pumps and crossfeed, with the lights of valves
/// and low pressure. The levers are the host's; two toggles are connected to nothing else.
#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {
namespace {

/// A pump switched on alone feeds both engines while the crossfeed is open.
template <auto own_pump, auto other_pump, u32 feed_both, u32 pump_moved>
void press_pump() {
  const bool feeds_both = aircraft.fuel_crossfeed_switch == 1 && variable<other_pump>() == 0;
  if (variable<own_pump>() == 0 && feeds_both) send(feed_both);
  toggle<own_pump, pump_moved>();
}

constexpr MouseRoutine presses_pump_1 =
    does<press_pump<&Aircraft::fuel_pump1_switch, &Aircraft::fuel_pump2_switch,
                    event::feed_both_from_tank_1, event::boost_pump_1_toggle>>;
constexpr MouseRoutine presses_pump_2 =
    does<press_pump<&Aircraft::fuel_pump2_switch, &Aircraft::fuel_pump1_switch,
                    event::feed_both_from_tank_2, event::boost_pump_2_toggle>>;

constexpr ValueRoutine pump_1_low = lit_at<&Aircraft::fuel_pump1_switch, 0>;
constexpr ValueRoutine pump_2_low = lit_at<&Aircraft::fuel_pump2_switch, 0>;

constinit Body body{
    cutoff,
    {
        lamp("Right feed light", 4470, {199, 130}, lit_at<&Aircraft::fuel_selector_right, 2>),
        lamp("Left feed light", 4470, {5, 130}, lit_at<&Aircraft::fuel_selector_left, 2>),
        lamp("Engine 2 fuel valve light", 4460, {185, 51}).from(token::fuel_lever_2),
        lamp("Engine 1 fuel valve light", 4460, {3, 51}).from(token::fuel_lever_1),
        lamp("Pump 2 right low pressure light", 4420, {138, 50}, pump_2_low),
        lamp("Pump 2 left low pressure light", 4420, {114, 50}, pump_2_low),
        lamp("Pump 1 right low pressure light", 4420, {76, 50}, pump_1_low),
        lamp("Pump 1 left low pressure light", 4420, {52, 50}, pump_1_low),
        icon("Right auxiliary switch", 4440, {195, 65}, shows<&Aircraft::fuel_aux_switch_right>),
        icon("Pump 2 switch", 4450, {149, 68}, shows<&Aircraft::fuel_pump2_switch>),
        icon("Pump 1 switch", 4440, {54, 65}, shows<&Aircraft::fuel_pump1_switch>),
        icon("Left auxiliary switch", 4440, {5, 65}, shows<&Aircraft::fuel_aux_switch_left>),
        icon("Crossfeed switch", 4430, {102, 15}, shows<&Aircraft::fuel_crossfeed_switch>),
        icon("Engine 2 fuel lever", 4410, {152, 3}).from(token::fuel_lever_2),
        icon("Engine 1 fuel lever", 4410, {18, 3}).from(token::fuel_lever_1),
    },
    {
        click("Engine 1 fuel lever", {18, 3, 39, 43}, switch_sends<event::fuel_lever_1_toggle>),
        click("Engine 2 fuel lever", {152, 3, 39, 43}, switch_sends<event::fuel_lever_2_toggle>),
        click("Crossfeed switch", {94, 7, 28, 32},
              toggles<&Aircraft::fuel_crossfeed_switch, event::crossfeed_toggle>),
        click("Left auxiliary switch", {2, 64, 22, 32}, toggles<&Aircraft::fuel_aux_switch_left>),
        click("Pump 1 switch", {50, 64, 22, 32}, presses_pump_1),
        click("Pump 2 switch", {145, 64, 22, 32}, presses_pump_2),
        click("Right auxiliary switch", {192, 64, 22, 32}, toggles<&Aircraft::fuel_aux_switch_right>),
    },
};

}  // namespace

constinit Gauge cutoff{{.name = "Cutoff", .width_mm = 216, .background = 4390}, body};

}  // namespace tarnvale
