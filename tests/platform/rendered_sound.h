/// A sound device whose mix a test takes frame by frame.
#pragma once

#include <dsound.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <memory>
#include <span>
#include <vector>

#include "platform/pcm.h"
#include "platform/platform_host.h"

/// One stereo frame of the mix.
struct Frame {
  int left = 0;
  int right = 0;
  bool operator==(const Frame&) const = default;
};

inline void PrintTo(const Frame& frame, std::ostream* out) {
  *out << '(' << frame.left << ',' << frame.right << ')';
}

/// The next frames of the mix.
inline std::vector<Frame> render(std::size_t frames) {
  std::vector<std::int16_t> samples(frames * 2);
  platform_render_audio(samples.data(), frames);
  std::vector<Frame> mix(frames);
  for (std::size_t i = 0; i < frames; ++i) mix[i] = {samples[i * 2], samples[i * 2 + 1]};
  return mix;
}

inline std::vector<Frame> silence(std::size_t frames) { return std::vector<Frame>(frames); }

struct Release {
  void operator()(IUnknown* object) const { object->Release(); }
};
using Buffer = std::unique_ptr<IDirectSoundBuffer, Release>;

inline WAVEFORMATEX pcm_format(WORD channels, WORD bits, DWORD rate) {
  const auto block = static_cast<WORD>(channels * bits / 8);
  return {WAVE_FORMAT_PCM, channels, rate, rate * block, block, bits, 0};
}

/// The extensible form of a plain format.
inline platform::ExtensibleFormat extensible(WAVEFORMATEX format) {
  const WORD bits = format.wBitsPerSample;
  format.wFormatTag = platform::extensible_tag;
  format.cbSize = 22;
  return {format, bits, 0, platform::pcm_form};
}

class RenderedSound : public testing::Test {
 protected:
  void SetUp() override { open(PLATFORM_AUDIO_RENDERED); }
  void TearDown() override {
    sound_.reset();
    platform_register_window("Main", nullptr);
  }

  void open(PlatformAudio audio) {
    platform_choose_audio(audio);
    platform_register_window("Main", this);
    IDirectSound* sound = nullptr;
    ASSERT_EQ(DirectSoundCreate(nullptr, &sound, nullptr), DS_OK);
    sound_.reset(sound);
    ASSERT_EQ(sound_->SetCooperativeLevel(FindWindowA("Main", nullptr), DSSCL_NORMAL), DS_OK);
  }

  template <typename Format>
  HRESULT create(Format format, DWORD bytes, Buffer& buffer) {
    DSBUFFERDESC description{};
    description.dwSize = sizeof(DSBUFFERDESC1);
    description.dwFlags = DSBCAPS_STATIC;
    description.dwBufferBytes = bytes;
    description.lpwfxFormat = reinterpret_cast<LPWAVEFORMATEX>(&format);
    IDirectSoundBuffer* made = nullptr;
    const HRESULT result = sound_->CreateSoundBuffer(&description, &made, nullptr);
    buffer.reset(made);
    return result;
  }

  template <typename Format, typename Sample>
  Buffer buffer_of(Format format, const std::vector<Sample>& samples) {
    Buffer buffer;
    EXPECT_EQ(create(format, static_cast<DWORD>(samples.size() * sizeof(Sample)), buffer), DS_OK);
    fill(*buffer, samples);
    return buffer;
  }

  template <typename Sample>
  static void fill(IDirectSoundBuffer& buffer, const std::vector<Sample>& samples) {
    void* part = nullptr;
    DWORD bytes = 0;
    const auto size = static_cast<DWORD>(samples.size() * sizeof(Sample));
    ASSERT_EQ(buffer.Lock(0, size, &part, &bytes, nullptr, nullptr, 0), DS_OK);
    ASSERT_EQ(bytes, size);
    std::memcpy(part, samples.data(), bytes);
    ASSERT_EQ(buffer.Unlock(part, bytes, nullptr, 0), DS_OK);
  }

  Buffer mono_16(const std::vector<std::int16_t>& samples, DWORD rate = PLATFORM_AUDIO_RATE) {
    return buffer_of(pcm_format(1, 16, rate), samples);
  }

  static DWORD status(IDirectSoundBuffer& buffer) {
    DWORD status = 0xFFFF;
    EXPECT_EQ(buffer.GetStatus(&status), DS_OK);
    return status;
  }

  std::unique_ptr<IDirectSound, Release> sound_;
};
