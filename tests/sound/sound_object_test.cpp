// Sound objects: several playings at once, further buffers, and looping.
#include "sound/sound_object.h"

#include <dsound.h>

#include "tests/sound/sound_folder.h"

namespace {

using namespace tarnvale;

class SoundObjects : public SoundFolder {
 protected:
  void SetUp() override {
    SoundFolder::SetUp();
    folder_.write("tone.wav", steady_sound(100, sound_length));
    ASSERT_EQ(DirectSoundCreate(nullptr, &direct_sound_, nullptr), DS_OK);
    const HWND window = FindWindowA("FS98MAIN", nullptr);
    ASSERT_EQ(direct_sound_->SetCooperativeLevel(window, DSSCL_NORMAL), DS_OK);
  }
  void TearDown() override {
    destroy_sound(sound_);
    direct_sound_->Release();
    SoundFolder::TearDown();
  }

  bool load(i32 buffer_count) {
    sound_ = create_sound(direct_sound_, "tone.wav", buffer_count, nullptr);
    return sound_ != nullptr;
  }

  IDirectSound* direct_sound_ = nullptr;
  SoundObject* sound_ = nullptr;
};

TEST_F(SoundObjects, TwoBuffersPlayTwiceAtOnceAndThenStartOver) {
  ASSERT_TRUE(load(2));
  EXPECT_TRUE(play_sound(sound_, 0));
  EXPECT_EQ(listen(50), steady(100, 50));
  EXPECT_TRUE(play_sound(sound_, 0));
  EXPECT_EQ(listen(50), steady(200, 50));
  EXPECT_TRUE(play_sound(sound_, 0)) << "the first, from its start";
  EXPECT_EQ(listen(150), steady(200, 150));
  EXPECT_EQ(listen(60).back(), 0);
}

TEST_F(SoundObjects, OnlyASingleBufferLoops) {
  ASSERT_TRUE(load(2));
  EXPECT_FALSE(play_sound(sound_, DSBPLAY_LOOPING));
  destroy_sound(sound_);
  ASSERT_TRUE(load(-3)) << "at least one";
  EXPECT_TRUE(play_sound(sound_, DSBPLAY_LOOPING));
  EXPECT_EQ(listen(3 * sound_length), steady(100, 3 * sound_length));
  EXPECT_FALSE(play_sound(nullptr, 0));
}

/// A device that notes what it is asked for and makes nothing.
class AskedDevice final : public IDirectSound {
 public:
  ULONG Release() override { return 0; }
  HRESULT DuplicateSoundBuffer(LPDIRECTSOUNDBUFFER, LPDIRECTSOUNDBUFFER*) override {
    return DSERR_OUTOFMEMORY;
  }
  HRESULT SetCooperativeLevel(HWND, DWORD) override { return DS_OK; }
  HRESULT CreateSoundBuffer(LPCDSBUFFERDESC description, LPDIRECTSOUNDBUFFER*, LPUNKNOWN) override {
    asked = *description;
    const WAVEFORMATEX& format = *description->lpwfxFormat;
    formats.emplace_back(reinterpret_cast<const char*>(&format), sizeof format + format.cbSize);
    return DSERR_BADFORMAT;
  }

  std::vector<std::string> formats;
  DSBUFFERDESC asked{};
};

TEST_F(SoundObjects, TheDeviceGetsTheWholeFormatAsItStandsInTheFile) {
  const std::string adpcm = number(2, 2) + mono_format().substr(2) + number(32, 2) +
                            std::string("coefficients, thirty-two of them");
  const std::string plain = mono_format();
  const std::tuple<const char*, std::string, std::string> cases[] = {
      {"long", adpcm, adpcm},
      {"without the size of an extension", plain, plain + number(0, 2)},
      {"the least", plain.substr(0, 14), plain.substr(0, 14) + number(0, 4)},
      {"an extension that is not there", plain + number(8, 2),
       plain + number(8, 2) + std::string(8, '\0')},
  };
  for (const auto& [what, in_file, given] : cases) {
    folder_.write("tone.wav", riff(chunk("fmt ", in_file) + chunk("data", "abcd")));
    AskedDevice device;
    destroy_sound(create_sound(&device, "tone.wav", 1, nullptr));
    EXPECT_EQ(device.formats, std::vector{given}) << what;
    EXPECT_EQ(device.asked.dwBufferBytes, 4u) << what;
    EXPECT_EQ(device.asked.dwFlags, 0xCAu) << what;
  }
}

TEST_F(SoundObjects, WithoutAUsableFormatNoBufferIsAskedFor) {
  const std::string data = chunk("data", "abcd");
  for (const auto& wave : {riff(data), riff(chunk("fmt ", mono_format().substr(0, 13)) + data)}) {
    folder_.write("tone.wav", wave);
    AskedDevice device;
    EXPECT_EQ(create_sound(&device, "tone.wav", 2, nullptr), nullptr);
    sound_ = create_sound(&device, "tone.wav", 1, nullptr);
    ASSERT_NE(sound_, nullptr);
    EXPECT_TRUE(device.formats.empty());
    EXPECT_FALSE(play_sound(sound_, 0));
    destroy_sound(std::exchange(sound_, nullptr));
  }
  EXPECT_TRUE(messages_.empty());
}

TEST_F(SoundObjects, EveryLostBufferIsFilledAgainOnItsNextPlaying) {
  ASSERT_TRUE(load(2));
  std::filesystem::remove(folder_.path() / "tone.wav");
  play_sound(sound_, 0);
  listen(10);
  platform_lose_audio();
  EXPECT_EQ(listen(10), steady(0, 10));
  EXPECT_TRUE(play_sound(sound_, 0));
  EXPECT_EQ(listen(20), steady(100, 20));
  EXPECT_TRUE(play_sound(sound_, 0));
  EXPECT_EQ(listen(20), steady(200, 20));
}

}  // namespace
