/// The sounds of the cockpit: an invisible gauge that plays what the others request. It opens the
/// sound device and loads every sound when the host starts it, plays requested sounds once a frame,
/// and lets everything go at the end. Without it on a panel the cockpit is silent.
#include <windows.h>

#include "module/aircraft.h"
#include "module/catalogue.h"
#include "sound/sound_object.h"
#include "sound/sound_table.h"

namespace tarnvale {
namespace {

constexpr const char* host_window_class = "FS98MAIN";

constinit IDirectSound* direct_sound = nullptr;
constinit std::array<SoundObject*, sound_request_count> sounds{};  // null: not loaded

bool open_direct_sound(HWND host_window) {
  if (FAILED(DirectSoundCreate(nullptr, &direct_sound, nullptr))) {
    show_sound_failure("DirectSound: Object Create failed");
    return false;
  }
  if (FAILED(direct_sound->SetCooperativeLevel(host_window, DSSCL_NORMAL))) {
    show_sound_failure("DirectSound: SetCooperativeLevel failed");
    return false;
  }
  return true;
}

/// Stops at the first sound that is missing: what is incomplete is noticed, and told only once.
void load_sounds(HMODULE module) {
  for (const SoundFile& file : sound_files) {
    sounds[file.request] = create_sound(direct_sound, file.path, 1, module);
    if (sounds[file.request] != nullptr) continue;
    show_sound_failure(file.failure_message);
    return;
  }
}

}  // namespace

void release_sounds() {
  for (SoundObject*& sound : sounds) {
    destroy_sound(sound);
    sound = nullptr;
  }
  if (direct_sound != nullptr) direct_sound->Release();
  direct_sound = nullptr;
}

void start_sounds(uintptr_t module) {
  release_sounds();  // a host may show the gauge in a second window and start it again
  if (open_direct_sound(FindWindowA(host_window_class, nullptr))) {
    load_sounds(reinterpret_cast<HMODULE>(module));
  }
}

/// A request is taken whether or not its sound could be started. A sound that still plays goes on.
void play_requests() {
  for (std::size_t i = 0; i < sounds.size(); ++i) {
    u32& flag = aircraft.sound_requests[i];
    if (static_cast<i32>(flag) <= 0) continue;
    play_sound(sounds[i], 0);
    flag = 0;
  }
}

constinit Gauge msnd{
    {.name = "Msnd",
     .width_mm = 20,
     .background = 10,
     .services = {.start = start_sounds, .after_values = play_requests, .end = release_sounds}}};

}  // namespace tarnvale
