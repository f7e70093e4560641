#include "platform/sound_stream.h"

#include <algorithm>

#include "platform/export.h"
#include "platform/platform_host.h"
#include "platform/sound_device.h"
#include "platform/voice.h"

namespace platform {

bool SoundStream::alive() const { return made_ && sound_device().holds(generation_); }

bool SoundStream::open() {
  if (alive()) return true;
  queued_.clear();  // what was made on another device went with it
  free_.clear();
  made_ = false;
  if (user_ ? !sound_device().reopen() : !sound_device().acquire()) return false;
  user_ = true;
  alGetError();
  alGenSources(1, &source_);
  if (alGetError() != AL_NO_ERROR) return false;
  play_unchanged(source_);
  generation_ = sound_device().generation();
  made_ = true;
  return true;
}

void SoundStream::close() {
  if (alive()) {
    alSourceStop(source_);
    take_back_played();
    alDeleteSources(1, &source_);
    alDeleteBuffers(static_cast<ALsizei>(free_.size()), free_.data());
  }
  queued_.clear();
  free_.clear();
  made_ = false;
  if (user_) sound_device().release();
  user_ = false;
}

void SoundStream::take_back_played() {
  ALint played = 0;
  alGetSourcei(source_, AL_BUFFERS_PROCESSED, &played);
  for (; played > 0 && !queued_.empty(); --played) {
    ALuint buffer = 0;
    alSourceUnqueueBuffers(source_, 1, &buffer);
    free_.push_back(buffer);
    queued_.pop_front();
  }
}

std::size_t SoundStream::waiting() {
  if (!alive()) return 0;
  take_back_played();
  std::size_t frames = 0;
  for (const std::size_t each : queued_) frames += each;
  ALint into_first = 0;
  alGetSourcei(source_, AL_SAMPLE_OFFSET, &into_first);
  return frames - std::min(frames, static_cast<std::size_t>(into_first));
}

ALuint SoundStream::free_buffer() {
  ALuint buffer = 0;
  if (free_.empty()) {
    alGenBuffers(1, &buffer);
  } else {
    buffer = free_.back();
    free_.pop_back();
  }
  return buffer;
}

void SoundStream::feed(std::span<const std::int16_t> stereo) {
  if (!alive() || stereo.empty()) return;
  take_back_played();
  alGetError();
  ALuint buffer = free_buffer();
  alBufferData(buffer, AL_FORMAT_STEREO16, stereo.data(), static_cast<ALsizei>(stereo.size_bytes()),
               PLATFORM_AUDIO_RATE);
  alSourceQueueBuffers(source_, 1, &buffer);
  ALint state = AL_PLAYING;
  alGetSourcei(source_, AL_SOURCE_STATE, &state);
  if (state != AL_PLAYING) alSourcePlay(source_);  // at first, and where it had run dry
  if (alGetError() != AL_NO_ERROR) return sound_device().lose();
  queued_.push_back(stereo.size() / PLATFORM_AUDIO_CHANNELS);
}

namespace {

SoundStream& stream() {
  sound_device();  // outlives the stream
  static SoundStream only;
  return only;
}

}  // namespace
}  // namespace platform

PLATFORM_EXPORT int platform_open_stream(void) { return platform::stream().open(); }

PLATFORM_EXPORT void platform_close_stream(void) { platform::stream().close(); }

PLATFORM_EXPORT int platform_stream_is_open(void) { return platform::stream().alive(); }

PLATFORM_EXPORT size_t platform_stream_waiting(void) { return platform::stream().waiting(); }

PLATFORM_EXPORT void platform_feed_stream(const int16_t* samples, size_t frames) {
  platform::stream().feed({samples, frames * PLATFORM_AUDIO_CHANNELS});
}
