/// Altimeter (main panel): drums and pointer, the pressure setting in hectopascals and inches, an
/// altitude bug, the altitude alert; and the calls of the radio altitude on the way down.
#include <algorithm>

#include "module/catalogue.h"
#include "module/controls.h"
#include "module/digits.h"

namespace tarnvale {
namespace {

// ---- Altitude alert

struct Margins {
  f64 near, far;  ///< feet from the selected altitude
};

bool above_selected(Margins m, f64 altitude, f64 selected) {
  return selected + m.near < altitude && altitude < selected + m.far;
}
bool below_selected(Margins m, f64 altitude, f64 selected) {
  return selected - m.far < altitude && altitude < selected - m.near;
}

constexpr Margins lamp_margins{250, 1000}, sound_margins{950, 970};

/// Sounds for as long as the altitude is in the band.
f64 sound_alert(Element*) {
  const f64 selected = read(token::selected_altitude), altitude = read(token::indicated_altitude);
  const bool crossed = above_selected(sound_margins, altitude, selected) ||
                       below_selected(sound_margins, altitude, selected);
  if (aircraft.ap_master_on == 1 && crossed) request(altalert_sound_request);
  return 0;
}

template <bool (*beside)(Margins, f64, f64)>
f64 alert_lamp(Element*) {
  const f64 selected = read(token::selected_altitude), altitude = read(token::indicated_altitude);
  return aircraft.ap_master_on == 1 && beside(lamp_margins, altitude, selected);
}

f64 always_dark(Element*) { return 0; }

// ---- Pressure setting

/// The first two figures of the inches, from 27 to 32.
f64 inches(Element*) {
  const f64 hundredths = std::fmod(read(token::pressure_setting_inches), 1000) * 100;
  constexpr f64 first = 2799, last = 3199;
  for (u32 image = 1; image <= 4; ++image) {
    const f64 low = first + 100 * (image - 1);
    if (hundredths > low && hundredths < low + 100) return image;
  }
  return hundredths > last ? 5 : 0;
}

f64 hundredths_of_inches(Element* drum) {
  return std::fmod(limited(drum_source(drum) * 100, 2799, 3201), 100);
}

f64 four_figures(Element*) { return read(token::pressure_setting) > 999; }

template <u32 range>
f64 hectopascals(Element* drum) {
  return std::fmod(limited(drum_source(drum), 948, 1084), range);
}

// ---- Altitude

constexpr u32 bug_step = 10, highest_bug = 990;
constinit u32 bug = bug_step;

f64 show_bug(Element*) {
  bug = std::min(bug, highest_bug);
  return bug;
}

void lower_bug() {
  bug = bug > 2 * bug_step ? bug - bug_step : bug_step;
  request(click_sound_request);
}

void raise_bug() {
  bug = std::min(bug + bug_step, highest_bug);
  request(click_sound_request);
}

f64 hundreds(Element* pointer) { return std::fmod(pointer->needle.source.value, 1000) / 100; }

f64 below_sea_level(Element*) { return read(token::indicated_altitude) < 0; }
f64 powered(Element*) { return whole_u32(read(token::battery)) == 1; }

// ---- Calls

/// The radio altitude at which each call is made, whole metres.
struct Call {
  u32 metres;
  SoundRequest sound;
};

constexpr Call calls[] = {
    {762, a2500_sound_request}, {304, a1000_sound_request}, {150, a500_sound_request},
    {120, a400_sound_request},  {90, a300_sound_request},   {60, a200_sound_request},
    {30, a100_sound_request},   {15, a50_sound_request},    {12, a40_sound_request},
    {9, a30_sound_request},     {6, a20_sound_request},     {5, a10_sound_request},
};

constinit u32 last_height;

void take_first_height(uintptr_t) { last_height = whole_u32(read(token::radio_altitude)); }

/// Each call is made in the frame that first reaches its height on the way down.
void call_heights() {
  const u32 height = whole_u32(read(token::radio_altitude));
  const bool descending = read(token::vertical_speed) < 0;
  for (const Call& call : calls) {
    if (descending && height == call.metres && height != last_height) request(call.sound);
  }
  last_height = height;
}

constexpr Scale<3> pointer_scale{{{57, 35}, 0}, {{57, 130}, 5}, {{57, 35}, 10}};
constexpr Scale<11> bug_scale{{{56, 35}, 0},    {{85, 45}, 100},        {{103, 68}, 200},
                              {{102, 99}, 300}, {{85, 21}, 400},        {{57, 30}, 500},
                              {{29, 20}, 600},  {{13, 98}, 700},        {{13, 69}, 800},
                              {{29, 45}, 900},  {{51, 37}, highest_bug}};

constexpr Bitmaps alert{11480, 2};
constexpr PanelPoint alert_place{37, 7}, middle{57, 84};
constexpr u32 no_transparency = 0x1;
constexpr u32 pressure_help = 0x3053;

constinit Body body{
    altimeter,
    rows(lighting_overlay(11490),
         all_failing_with(
             failure::altimeter,
             {
                 icon("Altitude alert", {11480, 1}, alert_place, sound_alert)
                     .flags(no_transparency)
                     .lit_flags(no_transparency | (image_flag::luminous & ~image_flag::transparent)),
                 icon("Alert lamp below", alert, alert_place, alert_lamp<below_selected>),
                 icon("Alert lamp above", alert, alert_place, alert_lamp<above_selected>),
                 icon("Alert lamp frame", alert, alert_place, always_dark),
                 icon("Inches of the pressure setting", {11470, 6}, {59, 99}, inches),
                 drum("Hundredths of the inches", 11460, {73, 99}, {0, 99}, hundredths_of_inches)
                     .from(token::pressure_setting_inches),
                 icon("Thousands of the hectopascals", 11450, {28, 99}, four_figures),
                 drum("Tens of the hectopascals", 11440, {42, 99}, {0, 99}, hectopascals<100>)
                     .from(token::pressure_setting),
                 drum("Units of the hectopascals", 11430, {49, 99}, {0, 9.9}, hectopascals<10>)
                     .from(token::pressure_setting)
                     .lit_at({49, 97}),
                 needle("Altitude bug", 11360, middle, {10, 2}, bug_scale, show_bug).shorter_way(),
                 drum("Ten thousands of feet", 11420, {35, 59}, {0, 9.9}, digit<10000>)
                     .from(token::indicated_altitude),
                 drum("Thousands of feet", 11410, {45, 59}, {0, 9.9}, digit<1000>)
                     .from(token::indicated_altitude),
                 drum("Hundreds of feet", 11410, {55, 59}, {0, 999}, rolling<1000>)
                     .from(token::indicated_altitude),
                 drum("Feet", 11390, {66, 59}, {0, 99}, rolling<100>).from(token::indicated_altitude),
                 icon("Below sea level flag", 11380, {35, 59}, below_sea_level),
                 icon("Power flag", 11370, {35, 59}, powered),
                 needle("Pointer", 11350, middle, {10, 3}, pointer_scale, hundreds)
                     .from(token::indicated_altitude),
             })),
    {
        labelled(pressure_help, decrease("Pressure setting knob down", {2, 118, 14, 20},
                                         turns_by_one<event::pressure_setting_down>, Press::left_held)),
        labelled(pressure_help, increase("Pressure setting knob up", {18, 118, 14, 20},
                                         turns_by_one<event::pressure_setting_up>, Press::left_held)),
        decrease("Altitude bug knob down", {85, 117, 14, 20}, does<lower_bug>, Press::left_held),
        increase("Altitude bug knob up", {101, 117, 14, 20}, does<raise_bug>, Press::left_held),
    },
};

}  // namespace

constinit Gauge altimeter{{.name = "Altimeter",
                           .width_mm = 117,
                           .background = 11340,
                           .services = {.start = take_first_height, .after_values = call_heights}},
                          body};

}  // namespace tarnvale
