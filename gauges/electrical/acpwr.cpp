/// AC power panel (overhead): a guarded bus switch on each side with an indicator that latches when
/// the switch is thrown and can be pressed to test, two toggle switches and two push buttons.
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/guards.h"
#include "module/holds.h"
#include "module/systems.h"

namespace tarnvale {
namespace {

constinit Guarded left, right;

/// What each side's light latches: it stays after the guard has forced the switch off, until the
/// switch itself is worked again.
constinit u32 left_latched, right_latched;

constinit HoldClock test_clock;
constinit u32 testing_left, testing_right;

template <auto control, auto latched>
void work_disconnect() {
  work_guarded<control>();
  *latched = control->position;
}
template <auto control, auto latched>
constexpr MouseRoutine works_disconnect = does<work_disconnect<control, latched>>;

/// Image 0 is the lit one.
template <auto latched, auto testing>
f64 disconnect_light(Element*) {
  const bool tested = hold_goes_on(test_clock, *testing);
  return tested || *latched == 1 ? 0 : 1;
}

constinit Body body{
    acpwr,
    {
        lamp("APU generator lamp", 110, {67, 49}, lit_at<&Aircraft::apu_gen_switch>),
        lamp("Bus 2 lamp", 90, {110, 10}, apu_on_bus),
        lamp("Bus 1 lamp", 80, {21, 10}, apu_on_bus),
        icon("Drive 2 disconnect guard", bitmap::red_guard, {142, 34}, guard_image<&right>),
        icon("Drive 2 disconnect switch", bitmap::disconnect_switch, {142, 34}, guarded_image<&right>),
        icon("Drive 1 disconnect guard", bitmap::red_guard, {11, 36}, guard_image<&left>),
        icon("Drive 1 disconnect switch", bitmap::disconnect_switch, {11, 36}, guarded_image<&left>),
        lamp("Drive 2 disconnect light", bitmap::round_light, {147, 118},
             disconnect_light<&right_latched, &testing_right>),
        lamp("Drive 1 disconnect light", bitmap::round_light, {13, 121},
             disconnect_light<&left_latched, &testing_left>),
        icon("TRU 2 switch", bitmap::toggle_switch, {107, 111},
             shows<&Aircraft::acpwr_switch_right_on>),
        icon("TRU 1 switch", bitmap::toggle_switch, {67, 111}, shows<&Aircraft::acpwr_switch_left_on>),
        icon("Bus 2 tie knob", bitmap::flow_knob, {123, 158}, shows<&Aircraft::acpwr_button_right_on>),
        icon("Bus 1 tie knob", bitmap::flow_knob, {40, 159}, shows<&Aircraft::acpwr_button_left_on>),
    },
    {
        click("Bus 1 tie knob", {38, 157, 30, 30}, pushes<&Aircraft::acpwr_button_left_on>),
        click("Bus 2 tie knob", {121, 156, 30, 30}, pushes<&Aircraft::acpwr_button_right_on>),
        click("TRU 1 switch", {64, 110, 18, 43}, toggles<&Aircraft::acpwr_switch_left_on>),
        click("TRU 2 switch", {104, 110, 18, 43}, toggles<&Aircraft::acpwr_switch_right_on>),
        click("Drive 1 disconnect switch", {11, 60, 27, 40}, works_disconnect<&left, &left_latched>),
        click("Drive 1 disconnect guard", {11, 36, 27, 22}, moves_guard<&left>),
        click("Drive 2 disconnect switch", {141, 58, 27, 40}, works_disconnect<&right, &right_latched>),
        click("Drive 2 disconnect guard", {141, 34, 27, 22}, moves_guard<&right>),
        click("Drive 1 disconnect light test", {13, 122, 25, 25}, tests<&test_clock, &testing_left>),
        click("Drive 2 disconnect light test", {148, 119, 25, 25}, tests<&test_clock, &testing_right>),
    },
};

}  // namespace

constinit Gauge acpwr{{.name = "Acpwr", .width_mm = 180, .background = 70}, body};

}  // namespace tarnvale
