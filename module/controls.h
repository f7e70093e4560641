/// The controls that stand on many panels, each as the value routine that shows it and the mouse
/// routine that works it. A routine is made for one variable: `shows<&Aircraft::wing_antiice_left>`.
///
/// Switches and levers click like a toggle switch; buttons, knobs and selectors like a button.
/// What a control does is a plain function (`toggle`), which a gauge may call in a routine of its own;
/// the row names its mouse routine (`toggles`).
#pragma once

#include "module/host.h"
#include "module/numbers.h"
#include "module/variables.h"

namespace tarnvale {

// ---- Showing a variable

/// The variable is the image.
template <auto position>
f64 shows(Element*) {
  return variable<position>();
}

/// A lamp that is lit (image 1) while the variable holds `value`.
template <auto watched, u32 value = 1>
f64 lit_at(Element*) {
  return variable<watched>() == value;
}

/// Sets `flag` from a host token: 1 exactly while the token truncates to 1.
void mirror(u32 token, u32& flag);

/// A switch whose position is the host's state: the variable follows the token at every showing.
template <u32 token, auto flag>
f64 mirrors(Element*) {
  mirror(token, variable<flag>());
  return variable<flag>();
}

// ---- Mouse routines

/// The mouse routine of a plain function: of nothing, or of the mouse flags that fired.
template <auto act>
i32 does(PanelPoint, u32 mouse_flags) {
  if constexpr (std::is_invocable_v<decltype(act), u32>) {
    act(mouse_flags);
  } else {
    act();
  }
  return 0;
}

/// Tells the two buttons apart in a function that answers both.
constexpr bool is_left(u32 mouse_flags) { return (mouse_flags & MOUSE_LEFT) != 0; }
constexpr bool is_right(u32 mouse_flags) { return (mouse_flags & MOUSE_RIGHT) != 0; }

/// Sends the host what a control means to it, and clicks.
template <SoundRequest click, u32... events>
void send_and_click() {
  (send(events), ...);
  request(click);
}

/// A half of a knob that the host turns: one step for each press.
template <u32 event>
void turn_by_one() {
  send(event, 1);
  request(click_sound_request);
}
template <u32 event>
inline constexpr MouseRoutine turns_by_one = does<turn_by_one<event>>;

/// Sends an event without a sound.
template <u32 event>
void ask() {
  send(event);
}

/// A two-position switch; the host hears of each move where it has something to do with it.
template <auto flag, u32... events>
void toggle() {
  flip(variable<flag>());
  send_and_click<toggle_click_sound_request, events...>();
}
template <auto flag, u32... events>
inline constexpr MouseRoutine toggles = does<toggle<flag, events...>>;

/// A push button that stays in and comes out again, or a two-position knob.
template <auto flag, u32... events>
void push() {
  flip(variable<flag>());
  send_and_click<click_sound_request, events...>();
}
template <auto flag, u32... events>
inline constexpr MouseRoutine pushes = does<push<flag, events...>>;

/// A switch or a button that changes nothing here: it asks the host, and its picture follows the
/// host's state.
template <u32... events>
inline constexpr MouseRoutine switch_sends =
    does<send_and_click<toggle_click_sound_request, events...>>;
template <u32... events>
inline constexpr MouseRoutine button_sends = does<send_and_click<click_sound_request, events...>>;

/// A switch with positions 0..last that goes round.
template <auto position, u32 last>
void advance() {
  u32& at = variable<position>();
  at = at < last ? at + 1 : 0;
  request(toggle_click_sound_request);
}
template <auto position, u32 last>
inline constexpr MouseRoutine advances = does<advance<position, last>>;

/// An area that puts a selector straight to one of its positions.
template <auto position, u32 chosen, u32... events>
void select() {
  variable<position>() = chosen;
  send_and_click<toggle_click_sound_request, events...>();
}
template <auto position, u32 chosen, u32... events>
inline constexpr MouseRoutine selects = does<select<position, chosen, events...>>;

/// A half of a three-position lever. From up or down either half brings it back to the centre.
template <auto lever, Lever half>
void move_lever() {
  u32& at = variable<lever>();
  at = at != centre ? u32{centre} : u32{half};
  request(toggle_click_sound_request);
}
template <auto lever>
inline constexpr MouseRoutine lever_up = does<move_lever<lever, up>>;
template <auto lever>
inline constexpr MouseRoutine lever_down = does<move_lever<lever, down>>;

/// The halves of a selector with positions 0..last, which stops at both ends.
template <auto position>
void step_down() {
  u32& at = variable<position>();
  if (at > 0) --at;
  request(click_sound_request);
}
template <auto position>
inline constexpr MouseRoutine steps_down = does<step_down<position>>;

template <auto position, u32 last>
void step_up() {
  u32& at = variable<position>();
  if (at < last) ++at;
  request(click_sound_request);
}
template <auto position, u32 last>
inline constexpr MouseRoutine steps_up = does<step_up<position, last>>;

/// One half of a two-button knob: the left button turns it by `fine`, the right one by `coarse`, both
/// in the direction of their sign, between `low` and `high`. Less than a fine step from its end the
/// knob goes there; a coarse step that would reach the end is not taken.
template <auto value, i32 fine, i32 coarse, u32 low, u32 high>
void turn(u32 mouse_flags) {
  static_assert((fine < 0) == (coarse < 0), "both buttons turn one half of a knob the same way");
  constexpr u32 small = fine < 0 ? -fine : fine, large = coarse < 0 ? -coarse : coarse;
  constexpr u32 end = fine < 0 ? low : high;
  u32& v = variable<value>();
  const u32 room = fine < 0 ? (v > low ? v - low : 0) : (v < high ? high - v : 0);
  if (room < small) {
    v = end;
  } else {
    u32 by = is_left(mouse_flags) ? small : 0;
    if (is_right(mouse_flags) && room - by > large) by += large;
    v = fine < 0 ? v - by : v + by;
  }
  request(click_sound_request);
}
template <auto value, i32 fine, i32 coarse, u32 low, u32 high>
inline constexpr MouseRoutine turns = does<turn<value, fine, coarse, low, high>>;

}  // namespace tarnvale
