#include "host/ambience/ambience_stream.h"

#include "platform/platform_host.h"

namespace host {
namespace {

constexpr std::size_t frames_in(double seconds) {
  return static_cast<std::size_t>(seconds * PLATFORM_AUDIO_RATE);
}

constexpr std::size_t ahead = frames_in(0.2), ahead_at_first = frames_in(0.6);

}  // namespace

AmbienceStream::~AmbienceStream() { platform_close_stream(); }

bool AmbienceStream::is_open(double seconds) {
  if (platform_stream_is_open()) return true;
  if (seconds < next_try_) return false;
  constexpr double patience_s = 5;  // until a device may be there again
  next_try_ = seconds + patience_s;
  return platform_open_stream() != 0;
}

void AmbienceStream::keep_up(CockpitNoise& noise, double seconds) {
  if (noise.silent() || !is_open(seconds)) return;
  // What has run dry, or begins with the window, has frames that come later still.
  const std::size_t waiting = platform_stream_waiting(), wanted = waiting > 0 ? ahead : ahead_at_first;
  if (waiting < wanted) feed(noise, wanted - waiting);
}

void AmbienceStream::pause(CockpitNoise& noise) {
  noise.hush();
  if (platform_stream_is_open()) feed(noise, frames_in(0.3));
}

void AmbienceStream::feed(CockpitNoise& noise, std::size_t frames) {
  samples_.assign(frames * PLATFORM_AUDIO_CHANNELS, 0);
  noise.mix_into(samples_);
  platform_feed_stream(samples_.data(), frames);
}

}  // namespace host
