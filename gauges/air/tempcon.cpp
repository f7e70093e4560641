/// Air-conditioning panel (overhead): on each side a supply switch, a valve knob, the automatic
/// temperature control with its selector, and the duct's overheat light; in the middle the guarded
/// override, with which the ducts heat up past their selectors.
#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {
namespace {

/// Which way a selector's knob leans: the way it was last turned, for two seconds.
struct Lean {
  u32 way = 0;  ///< 0 upright, 1 turned down, 2 turned up
  TestClock clock;
};

constinit Lean left_lean{};
constinit Lean right_lean{};

template <Lean& lean>
f64 leaning_knob(Element*) {
  test_goes_on(lean.clock, lean.way);
  return lean.way;
}

void start_leaning(Lean& lean, u32 way) {
  start_test(lean.clock, lean.way);
  lean.way = way;
}

/// At its end a selector still clicks, but its knob does not turn.
template <u32& selector, Lean& lean>
i32 turns_down(PanelPoint point, u32 flags) {
  if (selector > 0) start_leaning(lean, 1);
  return steps_down<selector>(point, flags);
}

template <u32& selector, Lean& lean>
i32 turns_up(PanelPoint point, u32 flags) {
  constexpr u32 last = 9;
  if (selector < last) start_leaning(lean, 2);
  return steps_up<selector, last>(point, flags);
}

constinit GuardedShared temp_override{.position = aircraft.temp_override_switch};

constinit TestClock test_clock;
constinit u32 testing, testing_left_duct, testing_right_duct;

/// Image 0 is the lit one: a hot duct, or a test.
template <u32& tested, u32& temperature_normal>
f64 duct_light(Element*) {
  return test_goes_on(test_clock, tested) ? 0 : temperature_normal;
}

}  // namespace

constinit Gauge<27, 15> tempcon{
    Face{.name = "Tempcon", .width_mm = 180, .background = 170},
    {
        icon(190, {122, 92}, 3, leaning_knob<right_lean>),
        icon(190, {9, 92}, 3, leaning_knob<left_lean>),
        icon(180, {140, 161}, 2, shows<aircraft.aircon_right_auto>),
        icon(180, {30, 161}, 2, shows<aircraft.aircon_left_auto>),
        icon(2160, {78, 124}, 2, guard_image<temp_override>),
        icon(2150, {78, 124}, 2, guarded_image<temp_override>),
        lamp(2110, {95, 87}, duct_light<testing_right_duct, aircraft.duct_right_temp_normal>),
        lamp(2110, {66, 87}, duct_light<testing_left_duct, aircraft.duct_left_temp_normal>),
        lamp(2110, {49, 3}, test_light<test_clock, testing>),
        icon(2140, {133, 45}, 2, shows<aircraft.aircon_valve_right>),
        icon(2140, {23, 45}, 2, shows<aircraft.aircon_valve_left>),
        icon(2130, {108, 39}, 2, shows<aircraft.aircon_right_on>),
        icon(2130, {62, 39}, 2, shows<aircraft.aircon_left_on>),
    },
    {
        click({58, 38, 20, 43}, toggles<aircraft.aircon_left_on>),
        click({104, 38, 20, 43}, toggles<aircraft.aircon_right_on>),
        click({21, 43, 30, 30}, pushes<aircraft.aircon_valve_left>),
        click({131, 43, 30, 30}, pushes<aircraft.aircon_valve_right>),
        click({78, 148, 27, 40}, works_guarded<temp_override>),
        click({78, 124, 27, 22}, moves_guard<temp_override>),
        click({26, 158, 20, 38}, toggles<aircraft.aircon_left_auto>),
        click({136, 158, 20, 38}, toggles<aircraft.aircon_right_auto>),
        decrease({8, 93, 25, 50}, turns_down<aircraft.temp_selector_left, left_lean>),
        increase({35, 93, 25, 50}, turns_up<aircraft.temp_selector_left, left_lean>),
        decrease({123, 93, 25, 50}, turns_down<aircraft.temp_selector_right, right_lean>),
        increase({150, 93, 25, 50}, turns_up<aircraft.temp_selector_right, right_lean>),
        click({49, 3, 26, 26}, tests<test_clock, testing>),
        click({66, 86, 25, 28}, tests<test_clock, testing_left_duct>),
        click({96, 86, 25, 28}, tests<test_clock, testing_right_duct>),
    },
};

}  // namespace tarnvale
