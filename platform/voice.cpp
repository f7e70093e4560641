#include "platform/voice.h"

#include <AL/alext.h>

#include "platform/sound_device.h"

namespace platform {
void play_unchanged(ALuint source) {
  if (alIsExtensionPresent("AL_SOFT_direct_channels")) {
    alSourcei(source, AL_DIRECT_CHANNELS_SOFT, AL_TRUE);
  }
  if (alIsExtensionPresent("AL_SOFT_source_resampler")) {
    alSourcei(source, AL_SOURCE_RESAMPLER_SOFT, alGetInteger(AL_NUM_RESAMPLERS_SOFT) - 1);
  }
}

Voice::~Voice() {
  if (!alive()) return;
  alDeleteSources(1, &source_);
  alDeleteBuffers(1, &buffer_);
}

bool Voice::create() {
  alGetError();
  alGenSources(1, &source_);
  if (alGetError() != AL_NO_ERROR) return false;
  alGenBuffers(1, &buffer_);
  if (alGetError() != AL_NO_ERROR) {
    alDeleteSources(1, &source_);
    return false;
  }
  play_unchanged(source_);
  generation_ = sound_device().generation();
  created_ = true;
  return true;
}

bool Voice::alive() const { return created_ && sound_device().holds(generation_); }

bool Voice::load(std::span<const std::int16_t> stereo, unsigned rate) {
  if (!alive()) return false;
  alGetError();
  alSourceStop(source_);
  alSourcei(source_, AL_BUFFER, 0);
  alBufferData(buffer_, AL_FORMAT_STEREO16, stereo.data(), static_cast<ALsizei>(stereo.size_bytes()),
               static_cast<ALsizei>(rate));
  alSourcei(source_, AL_BUFFER, static_cast<ALint>(buffer_));
  return alGetError() == AL_NO_ERROR;
}

bool Voice::play(std::size_t frame, bool looping) {
  if (!alive()) return false;
  alGetError();
  alSourceStop(source_);
  alSourcei(source_, AL_LOOPING, looping ? AL_TRUE : AL_FALSE);
  alSourcei(source_, AL_SAMPLE_OFFSET, static_cast<ALint>(frame));
  alSourcePlay(source_);
  return alGetError() == AL_NO_ERROR;
}

void Voice::stop() {
  if (alive()) alSourceStop(source_);
}

bool Voice::playing() const {
  ALint state = AL_STOPPED;
  if (alive()) alGetSourcei(source_, AL_SOURCE_STATE, &state);
  return state == AL_PLAYING;
}

std::size_t Voice::frame() const {
  ALint frame = 0;
  if (alive()) alGetSourcei(source_, AL_SAMPLE_OFFSET, &frame);
  return static_cast<std::size_t>(frame);
}

void Voice::seek(std::size_t frame) {
  if (alive()) alSourcei(source_, AL_SAMPLE_OFFSET, static_cast<ALint>(frame));
}

}  // namespace platform
