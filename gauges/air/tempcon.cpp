/// Air-conditioning panel (overhead): on each side a supply switch, a valve knob, the automatic
/// temperature control with its selector, and the duct's overheat light; in the middle the guarded
/// override, with which the ducts heat up past their selectors.
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/guards.h"
#include "module/holds.h"

namespace tarnvale {
namespace {

/// Which way each selector's knob leans: the way it was last turned, for two seconds.
enum Lean : u32 { upright, turned_down, turned_up };

constinit u32 left_lean, right_lean;
constinit HoldClock left_lean_clock, right_lean_clock;

template <auto lean, auto clock>
f64 leaning_knob(Element*) {
  hold_goes_on(*clock, *lean);
  return *lean;
}

template <auto lean, auto clock, Lean way>
void start_leaning() {
  start_hold(*clock, *lean);
  *lean = way;
}

/// At its end a selector still clicks, but its knob does not turn.
template <auto selector, auto lean, auto clock>
void turn_colder() {
  if (variable<selector>() > 0) start_leaning<lean, clock, turned_down>();
  step_down<selector>();
}

template <auto selector, auto lean, auto clock>
void turn_hotter() {
  constexpr u32 last = 9;
  if (variable<selector>() < last) start_leaning<lean, clock, turned_up>();
  step_up<selector, last>();
}

constinit GuardedShared temp_override{.position = aircraft.temp_override_switch};

constinit HoldClock test_clock;
constinit u32 testing, testing_left_duct, testing_right_duct;

/// Image 0 is the lit one: a hot duct, or a test.
template <auto tested, auto temperature_normal>
f64 duct_light(Element*) {
  return hold_goes_on(test_clock, *tested) ? 0 : variable<temperature_normal>();
}

constinit Body body{
    tempcon,
    {
        icon("Right temperature selector", {190, 3}, {122, 92},
             leaning_knob<&right_lean, &right_lean_clock>),
        icon("Left temperature selector", {190, 3}, {9, 92},
             leaning_knob<&left_lean, &left_lean_clock>),
        icon("Right automatic control switch", 180, {140, 161}, shows<&Aircraft::aircon_right_auto>),
        icon("Left automatic control switch", 180, {30, 161}, shows<&Aircraft::aircon_left_auto>),
        icon("Override guard", bitmap::red_guard, {78, 124}, guard_image<&temp_override>),
        icon("Override switch", bitmap::disconnect_switch, {78, 124}, guarded_image<&temp_override>),
        lamp("Right duct hot light", bitmap::round_light, {95, 87},
             duct_light<&testing_right_duct, &Aircraft::duct_right_temp_normal>),
        lamp("Left duct hot light", bitmap::round_light, {66, 87},
             duct_light<&testing_left_duct, &Aircraft::duct_left_temp_normal>),
        lamp("Test light", bitmap::round_light, {49, 3}, test_light<&test_clock, &testing>),
        icon("Trim 2 knob", bitmap::flow_knob, {133, 45}, shows<&Aircraft::aircon_valve_right>),
        icon("Trim 1 knob", bitmap::flow_knob, {23, 45}, shows<&Aircraft::aircon_valve_left>),
        icon("Pack 2 switch", bitmap::toggle_switch, {108, 39}, shows<&Aircraft::aircon_right_on>),
        icon("Pack 1 switch", bitmap::toggle_switch, {62, 39}, shows<&Aircraft::aircon_left_on>),
    },
    {
        click("Pack 1 switch", {58, 38, 20, 43}, toggles<&Aircraft::aircon_left_on>),
        click("Pack 2 switch", {104, 38, 20, 43}, toggles<&Aircraft::aircon_right_on>),
        click("Trim 1 knob", {21, 43, 30, 30}, pushes<&Aircraft::aircon_valve_left>),
        click("Trim 2 knob", {131, 43, 30, 30}, pushes<&Aircraft::aircon_valve_right>),
        click("Override switch", {78, 148, 27, 40}, works_guarded<&temp_override>),
        click("Override guard", {78, 124, 27, 22}, moves_guard<&temp_override>),
        click("Left automatic control switch", {26, 158, 20, 38}, toggles<&Aircraft::aircon_left_auto>),
        click("Right automatic control switch", {136, 158, 20, 38},
              toggles<&Aircraft::aircon_right_auto>),
        decrease("Left temperature selector down", {8, 93, 25, 50},
                 does<turn_colder<&Aircraft::temp_selector_left, &left_lean, &left_lean_clock>>),
        increase("Left temperature selector up", {35, 93, 25, 50},
                 does<turn_hotter<&Aircraft::temp_selector_left, &left_lean, &left_lean_clock>>),
        decrease("Right temperature selector down", {123, 93, 25, 50},
                 does<turn_colder<&Aircraft::temp_selector_right, &right_lean, &right_lean_clock>>),
        increase("Right temperature selector up", {150, 93, 25, 50},
                 does<turn_hotter<&Aircraft::temp_selector_right, &right_lean, &right_lean_clock>>),
        click("Test light", {49, 3, 26, 26}, tests<&test_clock, &testing>),
        click("Left duct hot light test", {66, 86, 25, 28}, tests<&test_clock, &testing_left_duct>),
        click("Right duct hot light test", {96, 86, 25, 28}, tests<&test_clock, &testing_right_duct>),
    },
};

}  // namespace

constinit Gauge tempcon{{.name = "Tempcon", .width_mm = 180, .background = 170}, body};

}  // namespace tarnvale
