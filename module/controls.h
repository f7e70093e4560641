/// The controls that stand on many panels, each as the value routines that show it and the mouse
/// routines that work it. A routine is made for one variable: `shows<aircraft.wing_antiice_left>`.
///
/// Switches, levers and guards click like a toggle switch; buttons, knobs and selectors like a button.
#pragma once

#include "module/aircraft.h"
#include "module/host.h"
#include "module/mouse.h"

namespace tarnvale {

// ---- Showing a variable

/// The variable is the image.
template <u32& position>
f64 shows(Element*) {
  return position;
}

/// A lamp that is lit (image 1) while the variable holds `value`.
template <u32& variable, u32 value = 1>
f64 lit_at(Element*) {
  return variable == value;
}

/// Sets `flag` from a host token: 1 exactly while the token truncates to 1.
void mirror(u32 token, u32& flag);

/// A switch whose position is the host's state: the variable follows the token at every showing.
template <u32 token, u32& flag>
f64 mirrors(Element*) {
  mirror(token, flag);
  return flag;
}

// ---- Switches and buttons

/// A two-position switch.
template <u32& flag>
i32 toggles(PanelPoint, u32) {
  flag = flag == 0;
  request(toggle_click_sound_request);
  return 0;
}

/// A push button that stays in and comes out again, or a two-position knob.
template <u32& flag>
i32 pushes(PanelPoint, u32) {
  flag = flag == 0;
  request(click_sound_request);
  return 0;
}

/// A switch with positions 0..last that goes round.
template <u32& position, u32 last>
i32 advances(PanelPoint, u32) {
  position = position < last ? position + 1 : 0;
  request(toggle_click_sound_request);
  return 0;
}

/// The halves of a three-position lever (0 centre, 1 up, 2 down). From up or down either half brings
/// it back to the centre.
template <u32& lever>
i32 lever_up(PanelPoint, u32) {
  lever = lever != 0 ? 0 : 1;
  request(toggle_click_sound_request);
  return 0;
}

template <u32& lever>
i32 lever_down(PanelPoint, u32) {
  lever = lever != 0 ? 0 : 2;
  request(toggle_click_sound_request);
  return 0;
}

/// The halves of a selector with positions 0..last, which stops at both ends.
template <u32& position>
i32 steps_down(PanelPoint, u32) {
  if (position > 0) --position;
  request(click_sound_request);
  return 0;
}

template <u32& position, u32 last>
i32 steps_up(PanelPoint, u32) {
  if (position < last) ++position;
  request(click_sound_request);
  return 0;
}

/// A switch or a button that changes nothing here: it asks the host, and its picture follows the
/// host's state.
template <u32 key>
i32 switch_sends(PanelPoint, u32) {
  send(key);
  request(toggle_click_sound_request);
  return 0;
}

template <u32 key>
i32 button_sends(PanelPoint, u32) {
  send(key);
  request(click_sound_request);
  return 0;
}

// ---- Guarded switches

/// A switch under a guard: it moves off its rest only while the guard is open, and a closed guard
/// holds it at rest.
struct Guarded {
  u32 open = 0;      ///< 1: the guard stands open
  u32 position = 0;  ///< 0 off, 1..last
};

/// A guarded switch that other gauges read, so that its position is part of the shared state.
struct GuardedShared {
  u32 open = 0;
  u32& position;
};

template <auto& control>
f64 guard_image(Element*) {
  return control.open;
}

/// The switch under its guard, which forces it to rest whenever it is closed.
template <auto& control>
f64 guarded_image(Element*) {
  if (control.open == 0) control.position = 0;
  return control.position;
}

template <auto& control>
i32 moves_guard(PanelPoint, u32) {
  control.open = control.open == 0;
  request(toggle_click_sound_request);
  return 0;
}

/// One step on while the guard is open, from the last position and under a closed guard to rest.
template <auto& control, u32 last = 1>
i32 works_guarded(PanelPoint, u32) {
  control.position = control.open != 0 && control.position < last ? control.position + 1 : 0;
  request(toggle_click_sound_request);
  return 0;
}

// ---- Press-to-test

/// The clock of a press-to-test hold; lights that are tested together share one.
struct TestClock {
  u32 deadline = 0;  ///< whole seconds of the running clock
  u32 reading = 0;   ///< the clock when last looked at
};

/// Starts or prolongs a test: two seconds from now.
void start_test(TestClock& clock, u32& flag);

/// Reads the clock and ends the test when its time is over, or when the clock has been set back.
/// Returns whether the test goes on. `margin` is how far back a deadline may lie ahead: seconds.
bool test_goes_on(TestClock& clock, u32& flag, u32 margin = 18);

template <TestClock& clock, u32& flag>
i32 tests(PanelPoint, u32) {
  start_test(clock, flag);
  return 0;
}

/// The round test light (image 0 lit, 1 dark) that shines only while it is tested.
template <TestClock& clock, u32& flag>
f64 test_light(Element*) {
  return test_goes_on(clock, flag) ? 0 : 1;
}

}  // namespace tarnvale
