/// The sounds that a gauge can ask for, in the order in which they are loaded and played.
#pragma once

#include "interface/panel_interface.h"

namespace tarnvale {

enum SoundRequest : u32 {
  toggle_click_sound_request,  ///< switches and guards
  a2500_sound_request,
  a1000_sound_request,
  a500_sound_request,
  a400_sound_request,
  a300_sound_request,
  a200_sound_request,
  a100_sound_request,
  a50_sound_request,
  a40_sound_request,
  a30_sound_request,
  a20_sound_request,
  a10_sound_request,
  altalert_sound_request,
  click_sound_request,  ///< push buttons, knobs and selectors
  radalt_sound_request,
  stall_sound_request,
  signs_sound_request,
  fire_sound_request,
  stewcall_sound_request,
  apu_sound_request,
  gpws_sound_request,
  pbrake_sound_request,
  sbrake_sound_request,
  cabwarn_sound_request,
  extpwr_sound_request,
  extpwrdis_sound_request,
  gndwarn_sound_request,
  cctaxi_sound_request,
  ccsafety_sound_request,
  ccclimb_sound_request,
  ccdescent_sound_request,
  ccfinal_sound_request,
  ccrollout_sound_request,
  ccwelcome_sound_request,
  gearu_sound_request,
  geard_sound_request,
  flaps00_sound_request,
  flaps06_sound_request,
  flaps11_sound_request,
  flaps18_sound_request,
  flaps25_sound_request,
  flaps42_sound_request,
  eighty_kts_sound_request,
  v1_sound_request,
  rotate_sound_request,
  sound_request_count
};

}  // namespace tarnvale
