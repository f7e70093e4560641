/// Where the sounds come from: the module's own resources or files below the simulator's folder.
#pragma once

#include <windows.h>

#include "sound/wave.h"

namespace tarnvale {

/// A WAV image that has been found. Its bytes are valid until it is closed.
struct WaveSource {
  Bytes samples;
  Bytes format;                ///< empty if the image has none that can be used
  const void* view = nullptr;  ///< the mapped file, or null for a resource
};

/// Looks for samples under `path`, first among the resources of `module`, then as a file. False if
/// they are in neither; otherwise `source` must be closed.
bool find_wave(HMODULE module, const char* path, WaveSource& source);

void close_wave(WaveSource& source);

}  // namespace tarnvale
