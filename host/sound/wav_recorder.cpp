#include "host/sound/wav_recorder.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "platform/platform_host.h"

namespace host {
namespace {

std::size_t samples_in(double seconds) {
  return static_cast<std::size_t>(std::llround(seconds * PLATFORM_AUDIO_RATE)) *
         PLATFORM_AUDIO_CHANNELS;
}

}  // namespace

void WavRecorder::advance(double seconds) {
  constexpr std::uint64_t block = 4096;
  std::array<std::int16_t, block * PLATFORM_AUDIO_CHANNELS> samples;
  seconds_ += seconds;
  const auto due = static_cast<std::uint64_t>(std::llround(seconds_ * PLATFORM_AUDIO_RATE));
  while (frames_ < due) {
    const std::uint64_t count = std::min(block, due - frames_);
    platform_render_audio(samples.data(), count);
    frames_ += count;
    const std::size_t taken = count * PLATFORM_AUDIO_CHANNELS;
    last_.insert(last_.end(), samples.begin(), samples.begin() + static_cast<std::ptrdiff_t>(taken));
    if (mix_in) mix_in({samples.data(), taken});
    file_.write({samples.data(), taken});
  }
  const std::size_t most = samples_in(memory);
  if (last_.size() > 2 * most)
    last_.erase(last_.begin(), last_.end() - static_cast<std::ptrdiff_t>(most));
}

double WavRecorder::level(double seconds) const {
  const std::size_t count = std::min(samples_in(seconds), last_.size());
  if (count == 0) return 0;
  double sum = 0;
  for (auto sample = last_.end() - static_cast<std::ptrdiff_t>(count); sample != last_.end(); ++sample)
    sum += double(*sample) * *sample;
  return std::sqrt(sum / static_cast<double>(count)) / 32768.0;
}

}  // namespace host
