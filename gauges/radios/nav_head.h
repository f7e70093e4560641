/// The heads of the VHF navigation receivers: a frequency head with the switches that check the
/// instruments. All of them work one pair of switches.
#pragma once

#include "gauges/radios/frequency_head.h"

namespace tarnvale {

struct NavHead {
  FrequencyHead frequencies;
  PanelPoint check_switch;
  Box check_switch_up, check_switch_down;
  PanelPoint check_button;
  Box check_button_box;
  u32 check_button_flags = image_flag::luminous;  ///< by day
};

/// Either half of the switch brings it back to the centre; unlike a toggle switch it clicks softly.
template <Lever half>
void move_check_switch() {
  u32& at = aircraft.nav_test_switch;
  at = at == centre ? half : centre;
  request(click_sound_request);
}

template <NavHead head, auto clock, auto light>
constexpr Rows<17> nav_rows() {
  return rows(
      icon("Deviation check switch", {23170, 3}, head.check_switch, shows<&Aircraft::nav_test_switch>),
      lamp("VOR check button", 23150, head.check_button, shows<&Aircraft::nav_aux_switch>)
          .flags(head.check_button_flags),
      frequency_rows<head.frequencies, clock, light>());
}

template <NavHead head>
constexpr Area check_button_area() {
  return click("VOR check button", head.check_button_box, pushes<&Aircraft::nav_aux_switch>);
}

template <NavHead head>
constexpr Areas<2> check_switch_areas() {
  return {
      click("Deviation check switch up", head.check_switch_up, does<move_check_switch<up>>),
      click("Deviation check switch down", head.check_switch_down, does<move_check_switch<down>>),
  };
}

/// The two heads on the pedestal are one model.
constexpr NavHead pedestal_nav_head(const Radio& radio) {
  return {
      .frequencies = {.radio = radio,
                      .active = {25, 30},
                      .standby = {140, 30},
                      .transfer_light = {88, 16},
                      .transfer_button = {85, 13, 48, 20},
                      .megahertz_down = {17, 62, 24, 32},
                      .megahertz_up = {43, 62, 24, 32},
                      .kilohertz_down = {147, 62, 24, 32},
                      .kilohertz_up = {173, 62, 24, 32}},
      .check_switch = {94, 76},
      .check_switch_up = {91, 70, 11, 14},
      .check_switch_down = {91, 86, 11, 14},
      .check_button = {119, 81},
      .check_button_box = {115, 78, 16, 16},
  };
}

/// The button that zeroes the distance on the bearing indicator, which times the test.
template <auto clock, auto flag>
constexpr Area distance_test_button() {
  return click("DME test button", {116, 53, 15, 15}, tests<clock, flag>);
}

}  // namespace tarnvale
