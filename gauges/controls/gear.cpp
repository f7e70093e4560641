/// Landing gear lever (main panel). It also has the first officer call the gear.
#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {
namespace {

// ---- The lever

/// Where the crew last put it.
enum Chosen : u32 { chosen_down, chosen_neutral, chosen_up };

constinit u32 chosen = chosen_down;

template <Chosen position, u32 event>
void move_to() {
  if (chosen != position) send(event);
  chosen = position;
}

void move_to_neutral() { chosen = chosen_neutral; }

/// Up and down are the aircraft's, so that every lever of the cockpit stands alike.
f64 handle(Element*) {
  constexpr f64 down = 0, neutral = 1, up = 2, reads_down = 16000;
  if (chosen == chosen_neutral) return neutral;
  return read(token::gear_lever) > reads_down ? down : up;
}

// ---- Calls

constinit i32 last_gear;

void take_first_gear(uintptr_t) { last_gear = whole_i32(read(token::nose_gear_position)); }

void call_gear() {
  constexpr i32 up = 0, down_and_locked = 16383;
  const i32 gear = whole_i32(read(token::nose_gear_position));
  const bool called = gear != last_gear && aircraft.fo_callouts_enabled == 1;
  if (called && gear == up) request(gearu_sound_request);
  if (called && gear == down_and_locked) request(geard_sound_request);
  last_gear = gear;
}

constinit Body body{
    gear,
    {
        icon("Gear handle", {14130, 3}, {0, 0}, handle),
    },
    {
        labelled(
            decrease("Set Gear Down", {2, 148, 32, 56}, does<move_to<chosen_down, event::gear_down>>)),
        labelled(increase("Set Gear Up", {2, 7, 32, 56}, does<move_to<chosen_up, event::gear_up>>)),
        labelled(click("Set Gear Neutral", {2, 74, 32, 56}, does<move_to_neutral>)),
    },
};

}  // namespace

constinit Gauge gear{{.name = "Gear",
                      .width_mm = 36,
                      .background = 14120,
                      .services = {.start = take_first_gear, .after_values = call_gear}},
                     body};

}  // namespace tarnvale
