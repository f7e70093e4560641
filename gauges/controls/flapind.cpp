/// Flap indicator (main panel). It also has the first officer call the flaps.
#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {
namespace {

/// Flap settings between these readings are called.
struct Call {
  i32 above, below;
  SoundRequest sound;
};

constexpr i32 beyond_any = 2147483647;
constexpr Call calls[] = {
    {-1, 1, flaps00_sound_request},        {2730, 5460, flaps06_sound_request},
    {5460, 8190, flaps11_sound_request},   {8190, 10920, flaps18_sound_request},
    {10920, 13650, flaps25_sound_request}, {13650, beyond_any, flaps42_sound_request},
};

constinit i32 last_flaps;

void take_first_flaps(uintptr_t) { last_flaps = whole_i32(read(token::flap_position)); }

void call_flaps() {
  const i32 flaps = whole_i32(read(token::flap_position));
  const bool called = flaps != last_flaps && aircraft.fo_callouts_enabled == 1;
  for (const Call& call : calls) {
    if (called && flaps > call.above && flaps < call.below) request(call.sound);
  }
  last_flaps = flaps;
}

constexpr Scale<6> scale{{{35, 4}, 0},     {{50, 8}, 3277},   {{62, 20}, 6554},
                         {{65, 35}, 9831}, {{59, 53}, 13108}, {{37, 65}, 16384}};

constinit Body body{
    flapind,
    {
        lighting_overlay(20030),
        needle("Flaps", 20020, {35, 35}, {6, 4}, scale).from(token::flap_position),
    },
};

}  // namespace

constinit Gauge flapind{{.name = "Flapind",
                         .width_mm = 70,
                         .background = 20010,
                         .services = {.start = take_first_flaps, .after_values = call_flaps}},
                        body};

}  // namespace tarnvale
