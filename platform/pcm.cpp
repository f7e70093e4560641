#include "platform/pcm.h"

#include <algorithm>
#include <cstring>

namespace platform {
namespace {

std::int16_t sample_8(const BYTE* at) { return static_cast<std::int16_t>((*at - 128) * 256); }

std::int16_t sample_16(const BYTE* at) { return static_cast<std::int16_t>(at[0] | at[1] << 8); }

/// Makes an extensible format the plain one that it stands for.
HRESULT take_extension(const ExtensibleFormat& given, WAVEFORMATEX& plain) {
  if (plain.cbSize < sizeof given - sizeof given.head) return DSERR_INVALIDPARAM;
  if (given.used_bits > plain.wBitsPerSample) return DSERR_INVALIDPARAM;
  if (std::memcmp(&given.form, &pcm_form, sizeof pcm_form) != 0) return DSERR_BADFORMAT;
  plain.wFormatTag = WAVE_FORMAT_PCM;
  return DS_OK;
}

bool is_playable(const WAVEFORMATEX& format) {
  const bool layout = (format.nChannels == 1 || format.nChannels == 2) &&
                      (format.wBitsPerSample == 8 || format.wBitsPerSample == 16) &&
                      format.nBlockAlign == format.nChannels * format.wBitsPerSample / 8;
  const bool rate =
      format.nSamplesPerSec >= DSBFREQUENCY_MIN && format.nSamplesPerSec <= DSBFREQUENCY_MAX;
  return format.wFormatTag == WAVE_FORMAT_PCM && layout && rate;
}

}  // namespace

HRESULT read_format(const WAVEFORMATEX& format, WAVEFORMATEX& plain) {
  plain = format;
  if (format.wFormatTag == extensible_tag) {
    const auto& extensible = reinterpret_cast<const ExtensibleFormat&>(format);
    if (const HRESULT result = take_extension(extensible, plain); FAILED(result)) return result;
  }
  plain.cbSize = 0;
  return is_playable(plain) ? DS_OK : DSERR_BADFORMAT;
}

void clear(Pcm& pcm) {
  const BYTE silence = pcm.format.wBitsPerSample == 8 ? 0x80 : 0;
  std::ranges::fill(pcm.bytes, silence);
  ++pcm.version;
}

std::vector<std::int16_t> to_stereo(const Pcm& pcm) {
  const std::size_t frame_size = pcm.format.nBlockAlign;
  const std::size_t right_offset = pcm.format.nChannels == 2 ? frame_size / 2 : 0;
  const auto sample = pcm.format.wBitsPerSample == 8 ? sample_8 : sample_16;
  const std::size_t frames = pcm.bytes.size() / frame_size;
  std::vector<std::int16_t> stereo(frames * 2);
  for (std::size_t frame = 0; frame < frames; ++frame) {
    const BYTE* at = pcm.bytes.data() + frame * frame_size;
    stereo[frame * 2] = sample(at);
    stereo[frame * 2 + 1] = sample(at + right_offset);
  }
  return stereo;
}

}  // namespace platform
