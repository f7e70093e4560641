/// The sounds of the cockpit: what each request plays, and what the user is told if it is missing.
#pragma once

#include <array>
#include <cstddef>

#include "module/sound_requests.h"

namespace tarnvale {

struct SoundFile {
  SoundRequest request;
  const char* path;  ///< below the simulator's folder
  const char* failure_message;
};

/// In the order of the requests, which is the order in which they are loaded and played.
inline constexpr std::array<SoundFile, sound_request_count> sound_files{{
    // the clicks, chimes, warnings and call-outs
    {toggle_click_sound_request, R"(Sound\Halvery_Tarnjet\Tarv_kippclick.wav)",
     "DirectSound: Tarv_kippclick.wav failed"},
    {a2500_sound_request, R"(Sound\Halvery_Tarnjet\Tarv_a2500.wav)",
     "DirectSound: Tarv_a2500.wav failed"},
    {a1000_sound_request, R"(Sound\Halvery_Tarnjet\Tarv_a1000.wav)",
     "DirectSound: Tarv_a1000.wav failed"},
    {a500_sound_request, R"(Sound\Halvery_Tarnjet\Tarv_a500.wav)", "DirectSound: Tarv_a500.wav failed"},
    {a400_sound_request, R"(Sound\Halvery_Tarnjet\Tarv_a400.wav)", "DirectSound: Tarv_a400.wav failed"},
    {a300_sound_request, R"(Sound\Halvery_Tarnjet\Tarv_a300.wav)", "DirectSound: Tarv_a300.wav failed"},
    {a200_sound_request, R"(Sound\Halvery_Tarnjet\Tarv_a200.wav)", "DirectSound: Tarv_a200.wav failed"},
    {a100_sound_request, R"(Sound\Halvery_Tarnjet\Tarv_a100.wav)", "DirectSound: Tarv_a100.wav failed"},
    {a50_sound_request, R"(Sound\Halvery_Tarnjet\Tarv_a50.wav)", "DirectSound: Tarv_a50.wav failed"},
    {a40_sound_request, R"(Sound\Halvery_Tarnjet\Tarv_a40.wav)", "DirectSound: Tarv_a40.wav failed"},
    {a30_sound_request, R"(Sound\Halvery_Tarnjet\Tarv_a30.wav)", "DirectSound: Tarv_a30.wav failed"},
    {a20_sound_request, R"(Sound\Halvery_Tarnjet\Tarv_a20.wav)", "DirectSound: Tarv_a20.wav failed"},
    {a10_sound_request, R"(Sound\Halvery_Tarnjet\Tarv_a10.wav)", "DirectSound: Tarv_a10.wav failed"},
    {altalert_sound_request, R"(Sound\Halvery_Tarnjet\Tarv_altalert.wav)",
     "DirectSound: Tarv_altalert.wav failed"},
    {click_sound_request, R"(Sound\Halvery_Tarnjet\Tarv_click.wav)", "DirectSound: Tarv_click failed"},
    {radalt_sound_request, R"(Sound\Halvery_Tarnjet\Tarv_radalt.wav)",
     "DirectSound: Tarv_Radalt failed"},
    {stall_sound_request, R"(Sound\Halvery_Tarnjet\Tarv_stall.wav)", "DirectSound: Tarv_Stall failed"},
    {signs_sound_request, R"(Sound\Halvery_Tarnjet\Tarv_signs.wav)",
     "DirectSound: Tarv_signs.wav failed"},
    {fire_sound_request, R"(Sound\Halvery_Tarnjet\Tarv_fire.wav)", "DirectSound: Tarv_fire.wav failed"},
    {stewcall_sound_request, R"(Sound\Halvery_Tarnjet\Tarv_stewcall.wav)",
     "DirectSound: Tarv_stewcall failed"},
    {apu_sound_request, R"(Sound\Halvery_Tarnjet\Tarv_apu.wav)", "DirectSound: Tarv_apu.wav failed"},
    {gpws_sound_request, R"(Sound\Halvery_Tarnjet\Tarv_gpws.wav)", "DirectSound: Tarv_gpws.wav failed"},
    {pbrake_sound_request, R"(Sound\Halvery_Tarnjet\Tarv_pbrake.wav)",
     "DirectSound: Tarv_pbrake.wav failed"},
    {sbrake_sound_request, R"(Sound\Halvery_Tarnjet\Tarv_sbrake.wav)",
     "DirectSound: Tarv_sbrake.wav failed"},
    {cabwarn_sound_request, R"(Sound\Halvery_Tarnjet\Tarv_cabwarn.wav)",
     "DirectSound: Tarv_cabwarn.wav failed"},

    // the ground crew
    {extpwr_sound_request, R"(Sound\Halvery_Tarnjet\Ground\Tarv_extpwr.wav)",
     "DirectSound: Tarv_extpwr.wav failed"},
    {extpwrdis_sound_request, R"(Sound\Halvery_Tarnjet\Ground\Tarv_extpwrdis.wav)",
     "DirectSound: Tarv_extpwrdis.wav failed"},
    {gndwarn_sound_request, R"(Sound\Halvery_Tarnjet\Ground\Tarv_gndwarn.wav)",
     "DirectSound: Tarv_gndwarn.wav failed"},

    // the cabin crew
    {cctaxi_sound_request, R"(Sound\Halvery_Tarnjet\FlightAttend\Tarv_cctaxi.wav)",
     "DirectSound: Tarv_cctaxi failed"},
    {ccsafety_sound_request, R"(Sound\Halvery_Tarnjet\FlightAttend\Tarv_ccsaftey.wav)",
     "DirectSound: Tarv_ccsaftey failed"},
    {ccclimb_sound_request, R"(Sound\Halvery_Tarnjet\FlightAttend\Tarv_ccclimb.wav)",
     "DirectSound: Tarv_cb3de failed"},
    {ccdescent_sound_request, R"(Sound\Halvery_Tarnjet\FlightAttend\Tarv_ccdescent.wav)",
     "DirectSound: Tarv_ccdescent failed"},
    {ccfinal_sound_request, R"(Sound\Halvery_Tarnjet\FlightAttend\Tarv_ccfinal.wav)",
     "DirectSound: Tarv_ccfinal failed"},
    {ccrollout_sound_request, R"(Sound\Halvery_Tarnjet\FlightAttend\Tarv_ccrollout.wav)",
     "DirectSound: Tarv_ccrollout failed"},
    {ccwelcome_sound_request, R"(Sound\Halvery_Tarnjet\FlightAttend\Tarv_ccwelcome.wav)",
     "DirectSound: Tarv_ccwelcome failed"},

    // the first officer
    {gearu_sound_request, R"(Sound\Halvery_Tarnjet\FirstOfficer\Tarv_gearu.wav)",
     "DirectSound: Tarv_gearu.wav failed"},
    {geard_sound_request, R"(Sound\Halvery_Tarnjet\FirstOfficer\Tarv_geard.wav)",
     "DirectSound: Tarv_geard.wav failed"},
    {flaps00_sound_request, R"(Sound\Halvery_Tarnjet\FirstOfficer\Tarv_flaps00.wav)",
     "DirectSound: Tarv_flaps00 failed"},
    {flaps06_sound_request, R"(Sound\Halvery_Tarnjet\FirstOfficer\Tarv_flaps06.wav)",
     "DirectSound: Tarv_flaps06 failed"},
    {flaps11_sound_request, R"(Sound\Halvery_Tarnjet\FirstOfficer\Tarv_flaps11.wav)",
     "DirectSound: Tarv_flaps11 failed"},
    {flaps18_sound_request, R"(Sound\Halvery_Tarnjet\FirstOfficer\Tarv_flaps18.wav)",
     "DirectSound: Tarv_flaps18 failed"},
    {flaps25_sound_request, R"(Sound\Halvery_Tarnjet\FirstOfficer\Tarv_flaps25.wav)",
     "DirectSound: Tarv_flaps25 failed"},
    {flaps42_sound_request, R"(Sound\Halvery_Tarnjet\FirstOfficer\Tarv_flaps42.wav)",
     "DirectSound: Tarv_flaps42 failed"},
    {eighty_kts_sound_request, R"(Sound\Halvery_Tarnjet\FirstOfficer\Tarv_80kts.wav)",
     "DirectSound: Tarv_80kts failed"},
    {v1_sound_request, R"(Sound\Halvery_Tarnjet\FirstOfficer\Tarv_v1.wav)",
     "DirectSound: Tarv_v1 failed"},
    {rotate_sound_request, R"(Sound\Halvery_Tarnjet\FirstOfficer\Tarv_rotate.wav)",
     "DirectSound: Tarv_rotate failed"},
}};

constexpr bool in_request_order() {
  for (std::size_t i = 0; i < sound_files.size(); ++i) {
    if (sound_files[i].request != i) return false;
  }
  return true;
}
static_assert(in_request_order());

}  // namespace tarnvale
