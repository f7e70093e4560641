#include "host/sound/wav_recorder.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "platform/platform_host.h"

namespace host {

void WavRecorder::advance(double seconds) {
  constexpr std::uint64_t block = 4096;
  std::array<std::int16_t, block * PLATFORM_AUDIO_CHANNELS> samples;
  seconds_ += seconds;
  const auto due = static_cast<std::uint64_t>(std::llround(seconds_ * PLATFORM_AUDIO_RATE));
  while (frames_ < due) {
    const std::uint64_t count = std::min(block, due - frames_);
    platform_render_audio(samples.data(), count);
    frames_ += count;
    file_.write({samples.data(), count * PLATFORM_AUDIO_CHANNELS});
  }
}

}  // namespace host
