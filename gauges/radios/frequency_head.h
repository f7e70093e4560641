/// The heads of the VHF radios: the frequency in use on the left, the one in waiting on the right, a
/// knob for megahertz and one for kilohertz, and a button that exchanges both, with its light.
///
/// The host keeps the frequencies: a head sends what its knobs mean and shows what the host says, 1 and
/// four figures.
#pragma once

#include "module/catalogue.h"
#include "module/controls.h"
#include "module/digits.h"
#include "module/holds.h"

namespace tarnvale {

/// The host's side of a radio: what makes it fail, tokens and events.
struct Radio {
  const failure::System* system;
  u32 active, standby, exchange;
  u32 megahertz_down, megahertz_up, kilohertz_down, kilohertz_up;
};
inline constexpr Radio nav1_radio{
    .system = &failure::receiver_1,
    .active = token::nav1_active,
    .standby = token::nav1_standby,
    .exchange = event::nav1_exchange,
    .megahertz_down = event::nav1_megahertz_down,
    .megahertz_up = event::nav1_megahertz_up,
    .kilohertz_down = event::nav1_kilohertz_down,
    .kilohertz_up = event::nav1_kilohertz_up,
};

/// The bitmaps of a display: the leading figure, the strips of the others, its glass.
struct DisplayBitmaps {
  i32 leading_one, megahertz, kilohertz, power;
};
inline constexpr DisplayBitmaps pedestal_display{2280, 2270, 2260, 2240};

/// A head: its radio, and where things stand on it. A display's place is its leading figure's.
struct FrequencyHead {
  Radio radio;
  DisplayBitmaps display = pedestal_display;
  PanelPoint active, standby;
  i32 transfer_bitmap = 2250;
  PanelPoint transfer_light;
  Box transfer_button;
  Box megahertz_down, megahertz_up, kilohertz_down, kilohertz_up;
};

// ---- Displays

/// What the parts of a display are called.
struct DisplayWords {
  const char *leading, *tens, *units, *tenths, *hundredths, *cover, *power;
};
inline constexpr DisplayWords active_words{
    "Active leading figure",      "Active tens of megahertz",       "Active megahertz",
    "Active tenths of megahertz", "Active hundredths of megahertz", "Active display cover",
    "Active display power"};
inline constexpr DisplayWords standby_words{
    "Standby leading figure",      "Standby tens of megahertz",       "Standby megahertz",
    "Standby tenths of megahertz", "Standby hundredths of megahertz", "Standby display cover",
    "Standby display power"};

constexpr PanelPoint beside(PanelPoint at, i32 right, i32 below = 0) {
  return {at.x + right, at.y + below};
}

constexpr Rows<5> figures(const DisplayWords& words, const DisplayBitmaps& bitmaps, PanelPoint at,
                          u32 frequency, const failure::System& system) {
  constexpr Range figure{0, 9};
  const auto drum_of = [&](const char* name, i32 strip, i32 right, ValueRoutine digit) {
    return drum(name, strip, beside(at, right), figure, digit).from(frequency).fails_with(system);
  };
  return {
      icon(words.leading, bitmaps.leading_one, at, lit_at<&Aircraft::avionics_master_on>),
      drum_of(words.tens, bitmaps.megahertz, 10, packed_digit<3>),
      drum_of(words.units, bitmaps.megahertz, 20, packed_digit<2>),
      drum_of(words.tenths, bitmaps.kilohertz, 31, packed_digit<1>),
      drum_of(words.hundredths, bitmaps.kilohertz, 41, packed_digit<0>),
  };
}

/// Without avionics it lies over the figures, which go on turning behind it.
constexpr Row display_cover(const char* words, PanelPoint leading) {
  return icon(words, 24240, beside(leading, -1, -2), lit_at<&Aircraft::avionics_master_on, 0>);
}

/// The glass of a display: it shows whether the host has power, and never shines by itself.
constexpr Row display_power(const char* words, i32 bitmap, PanelPoint leading) {
  return icon(words, bitmap, beside(leading, -1, -2))
      .from(token::battery)
      .lit_flags(image_flag::transparent);
}

// ---- The transfer button

inline constexpr HoldTimes transfer_time{.seconds = 2, .margin = 3};

template <FrequencyHead head, auto clock, auto light>
void transfer() {
  start_hold(*clock, *light, transfer_time);
  send_and_click<toggle_click_sound_request, head.radio.exchange>();
}

// ---- Whole heads

/// `clock` times the transfer light, whose flag is `light`.
template <FrequencyHead head, auto clock, auto light>
constexpr Rows<15> frequency_rows() {
  return rows(
      figures(standby_words, head.display, head.standby, head.radio.standby, *head.radio.system),
      figures(active_words, head.display, head.active, head.radio.active, *head.radio.system),
      display_cover(standby_words.cover, head.standby), display_cover(active_words.cover, head.active),
      display_power(standby_words.power, head.display.power, head.standby),
      display_power(active_words.power, head.display.power, head.active),
      icon("Transfer button", head.transfer_bitmap, head.transfer_light,
           held_lit<clock, light, transfer_time>));
}

template <FrequencyHead head, auto clock, auto light>
constexpr Areas<5> frequency_areas() {
  constexpr Radio radio = head.radio;
  return {
      click("Transfer button", head.transfer_button, does<transfer<head, clock, light>>),
      decrease("Megahertz knob down", head.megahertz_down, button_sends<radio.megahertz_down>),
      increase("Megahertz knob up", head.megahertz_up, button_sends<radio.megahertz_up>),
      decrease("Kilohertz knob down", head.kilohertz_down, button_sends<radio.kilohertz_down>),
      increase("Kilohertz knob up", head.kilohertz_up, button_sends<radio.kilohertz_up>),
  };
}

}  // namespace tarnvale
