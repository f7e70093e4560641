/// Airspeed indicator (main panel): airspeed and its limit, the selected speed, four bugs that the crew
/// sets, the Mach disc; and the first officer's calls on the take-off run.
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/needles.h"

namespace tarnvale {
namespace {

constexpr i32 full_scale = 430;

/// The selected speed; the category II panel's test drives it to a mark.
f64 selected_speed(Element* needle) {
  constexpr f64 test_mark = 145;
  return aircraft.cat2_speed_test_active == 1 ? test_mark : shows_within<0, full_scale>(needle);
}

f64 limit_speed(Element*) {
  constexpr f64 units_per_knot = 128, lowest = 60;
  return limited(read(token::maximum_airspeed) / units_per_knot, lowest, full_scale);
}

/// The disc turns a fifth of a degree for each thousandth of Mach.
f64 mach_thousandths(Element*) {
  constexpr f64 units = 20.48;
  return read(token::mach) / units;
}

// ---- Bugs

constinit u32 bug1 = 80, bug2 = 135, bug3 = 145, bug4 = 215;

/// A bug stops at the end of the dial, however far its knob has been turned.
template <auto bug>
f64 show_bug(Element*) {
  if (*bug > full_scale) *bug = full_scale;
  return *bug;
}

/// The left button turns it up, the right button down, without a sound.
template <auto bug>
void turn_bug(u32 buttons) {
  constexpr u32 step = 5, lowest = 60, highest = 450;
  if (is_left(buttons)) {
    *bug = *bug + step < highest ? *bug + step : highest;
  } else if (is_right(buttons)) {
    *bug = *bug > lowest + step ? *bug - step : lowest;
  }
}

// ---- Calls

/// Between two speeds the first officer calls.
struct Call {
  f64 above, below;
};

/// V1 and rotate, by how far the flaps are out.
struct TakeOffSpeeds {
  f64 flaps_above, flaps_below;
  Call v1, rotate;
};

constexpr f64 flaps_for_take_off = 10000;
constexpr Call eighty{78, 82};
constexpr TakeOffSpeeds take_off_speeds[] = {
    {3250, 6500, {139, 141}, {143, 145}},
    {6500, 9800, {129, 131}, {133, 135}},
    {9800, flaps_for_take_off, {125, 128}, {130, 132}},
};

void call_at(const Call& call, f64 airspeed, SoundRequest sound) {
  if (airspeed > call.above && airspeed < call.below) request(sound);
}

/// With take-off thrust; beyond take-off flaps there is nothing to call.
void call_take_off_speeds(f64 airspeed) {
  constexpr f64 take_off_thrust = 10000;
  const f64 flaps = read(token::flap_position), throttle = read(token::throttle_1);
  if (aircraft.fo_callouts_enabled != 1 || !(throttle > take_off_thrust)) return;
  if (flaps < flaps_for_take_off) call_at(eighty, airspeed, eighty_kts_sound_request);
  for (const TakeOffSpeeds& speeds : take_off_speeds) {
    if (!(flaps > speeds.flaps_above && flaps < speeds.flaps_below)) continue;
    call_at(speeds.v1, airspeed, v1_sound_request);
    call_at(speeds.rotate, airspeed, rotate_sound_request);
  }
}

f64 airspeed_and_calls(Element* needle) {
  const f64 airspeed_kt = shows_within<0, full_scale>(needle);
  call_take_off_speeds(airspeed_kt);
  return airspeed_kt;
}

constexpr PanelPoint middle{70, 71};
constexpr PanelPoint bug_pivot{2, 2}, needle_pivot{5, 6};

constexpr Scale<29> scale{
    {{55, 11}, 0},     {{69, 9}, 60},     {{86, 11}, 70},   {{101, 18}, 80},       {{113, 28}, 90},
    {{124, 40}, 100},  {{129, 56}, 110},  {{131, 71}, 120}, {{130, 88}, 130},      {{123, 102}, 140},
    {{113, 115}, 150}, {{101, 124}, 160}, {{90, 129}, 170}, {{75, 132}, 180},      {{60, 131}, 190},
    {{47, 128}, 200},  {{40, 124}, 210},  {{34, 121}, 220}, {{28, 116}, 230},      {{23, 111}, 240},
    {{18, 105}, 250},  {{15, 99}, 260},   {{12, 92}, 270},  {{10, 84}, 280},       {{8, 77}, 290},
    {{8, 70}, 300},    {{11, 51}, 350},   {{20, 35}, 400},  {{27, 27}, full_scale}};

constexpr Row bug_row(const char* words, ValueRoutine value) {
  return needle(words, 12290, middle, bug_pivot, scale, value);
}

template <auto bug>
constexpr Area bug_knob(const char* words, Box box) {
  return labelled(click(words, box, does<turn_bug<bug>>, Press::either_held));
}

constexpr u32 selected_speed_help = 0x3071;

constinit Body body{
    airspeed,
    rows(lighting_overlay(12330),
         all_failing_with(
             failure::airspeed,
             {
                 sprite("Mach disc", 12320, {0, 0}, middle,
                        {.x = {}, .y = {}, .rotation = {token::mach, mach_thousandths, 0.2}}),
                 needle("Selected speed", 12310, middle, bug_pivot, scale, selected_speed)
                     .from(token::selected_airspeed)
                     .rate(1),
                 bug_row("Speed bug 1", show_bug<&bug1>),
                 bug_row("Speed bug 2", show_bug<&bug2>),
                 bug_row("Speed bug 3", show_bug<&bug3>),
                 bug_row("Speed bug 4", show_bug<&bug4>),
                 needle("Maximum speed", 12280, middle, needle_pivot, scale, limit_speed),
                 needle("Airspeed", 12270, middle, needle_pivot, scale, airspeed_and_calls)
                     .from(token::indicated_airspeed),
             })),
    {
        bug_knob<&bug1>("Set Airspeed Bug 1", {17, 123, 14, 14}),
        bug_knob<&bug2>("Set Airspeed Bug 2", {3, 108, 14, 14}),
        bug_knob<&bug3>("Set Airspeed Bug 3", {20, 2, 14, 14}),
        bug_knob<&bug4>("Set Airspeed Bug 4", {108, 2, 14, 14}),
        labelled(selected_speed_help,
                 decrease("Selected speed knob down", {105, 114, 15, 18},
                          does<ask<event::selected_speed_down>>, Press::left_held)),
        labelled(selected_speed_help, increase("Selected speed knob up", {122, 114, 15, 18},
                                               does<ask<event::selected_speed_up>>, Press::left_held)),
    },
};

}  // namespace

constinit Gauge airspeed{{.name = "Airspeed", .width_mm = 142, .background = 12260}, body};

}  // namespace tarnvale
