/// The real module as a host loads it.
#pragma once

#include "host/loader/gauge_module.h"
#include "platform/platform_host.h"

/// The one of a test's process.
inline host::GaugeModule& loaded_module(PlatformAudio audio = PLATFORM_AUDIO_NONE) {
  platform_choose_audio(audio);
  static auto* const module = new host::GaugeModule(COCKPIT_DIR "/Tarnvale.GAU");
  return *module;
}
