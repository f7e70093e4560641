/// Samples as a sound buffer holds them, and as the device takes them.
#pragma once

#include <dsound.h>

#include <cstdint>
#include <vector>

namespace platform {

/// The memory that a sound buffer and its duplicates share.
struct Pcm {
  WAVEFORMATEX format;
  std::vector<BYTE> bytes;
  unsigned version = 1;  ///< grows with every change, so that stale copies are known
};

/// Whether samples of this format can be played: PCM, 8 or 16 bit, mono or stereo, any usual rate.
bool is_playable(const WAVEFORMATEX& format);

/// Fills with silence.
void clear(Pcm& pcm);

/// The samples as signed 16 bit stereo frames; mono goes to both sides at full level. A broken frame
/// at the end is left out.
std::vector<std::int16_t> to_stereo(const Pcm& pcm);

}  // namespace platform
