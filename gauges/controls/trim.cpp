/// Trim (pedestal): the pitch trim wheel, and the rudder trim's two buttons under its pointer.
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/holds.h"

namespace tarnvale {
namespace {

/// A button's light shines for as long as its press runs the trim motor.
struct TrimButton {
  HoldClock clock;
  u32 lit = 0;
};

constinit TrimButton left, right;

template <auto button, u32 event>
void run_rudder_trim() {
  start_hold(button->clock, button->lit);
  send(event, 1);
  request(toggle_click_sound_request);
}

/// One light at a time: the left one first.
f64 lit_button(Element*) {
  if (hold_goes_on(left.clock, left.lit)) return 1;
  return hold_goes_on(right.clock, right.lit) ? 2 : 0;
}

f64 pointer(Element* slider) { return 10 * slider->slider.x_source.value; }

constinit Body body{
    trim,
    {
        icon("Rudder trim buttons", {3250, 3}, {112, 28}, lit_button),
        slider("Rudder trim pointer", 3240, {134, 7},
               {.x = {token::rudder_trim, pointer, 50}, .y = {}}),
    },
    {
        increase("Pitch trim wheel up", {4, 8, 40, 28}, turns_by_one<event::pitch_trim_nose_down>,
                 Press::left_held),
        decrease("Pitch trim wheel down", {4, 44, 40, 28}, turns_by_one<event::pitch_trim_nose_up>,
                 Press::left_held),
        click("Rudder trim left", {101, 27, 34, 51},
              does<run_rudder_trim<&left, event::rudder_trim_left>>),
        click("Rudder trim right", {139, 27, 34, 51},
              does<run_rudder_trim<&right, event::rudder_trim_right>>),
    },
};

}  // namespace

constinit Gauge trim{{.name = "Trim", .width_mm = 192, .background = 3230}, body};

}  // namespace tarnvale
