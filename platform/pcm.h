/// Samples as a sound buffer holds them, and as the device takes them.
#pragma once

#include <dsound.h>

#include <cstdint>
#include <vector>

namespace platform {

inline constexpr WORD extensible_tag = 0xFFFE;

/// The format that `extensible_tag` announces: `form` tells what the samples are.
#pragma pack(push, 1)
struct ExtensibleFormat {
  WAVEFORMATEX head;
  WORD used_bits;  ///< of each sample's bits, the upper ones; 0: all
  DWORD speakers;
  GUID form;
};
#pragma pack(pop)
static_assert(sizeof(ExtensibleFormat) == 40);

inline constexpr GUID pcm_form = {1, 0, 0x10, {0x80, 0, 0, 0xAA, 0, 0x38, 0x9B, 0x71}};

/// The memory that a sound buffer and its duplicates share.
struct Pcm {
  WAVEFORMATEX format;
  std::vector<BYTE> bytes;
  unsigned version = 1;  ///< grows with every change, so that stale copies are known
};

/// Reads a format with its `cbSize` bytes of extension into `plain`, if its samples can be played: PCM,
/// 8 or 16 bit, mono or stereo, any usual rate. Otherwise the error to refuse it with.
HRESULT read_format(const WAVEFORMATEX& format, WAVEFORMATEX& plain);

/// Fills with silence.
void clear(Pcm& pcm);

/// The samples as signed 16 bit stereo frames; mono goes to both sides at full level. A broken frame
/// at the end is left out.
std::vector<std::int16_t> to_stereo(const Pcm& pcm);

}  // namespace platform
