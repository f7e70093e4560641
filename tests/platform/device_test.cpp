// The machine's own device. OpenAL looks for it once in a process: here it finds a file writer that
// runs in real time, or nothing but its silent stand-in.
#include <stdlib.h>

#include <chrono>
#include <thread>

#include "tests/platform/rendered_sound.h"
#include "tests/rig/temp_folder.h"

namespace {

using namespace std::chrono_literals;

class Device : public RenderedSound {
 protected:
  void SetUp() override {
    const std::string settings =
        "[general]\ndrivers=wave\nsample-type=int16\n[wave]\nfile=" + recording() + "\n";
    setenv("ALSOFT_CONF", folder_.write("openal.conf", settings).c_str(), 1);
    open(PLATFORM_AUDIO_DEVICE);
  }

  std::string recording() const { return folder_ / "heard.wav"; }

  static void play_to_the_end(IDirectSoundBuffer& buffer) {
    ASSERT_EQ(buffer.Play(0, 0, 0), DS_OK);
    const auto deadline = std::chrono::steady_clock::now() + 10s;
    while (status(buffer) != 0 && std::chrono::steady_clock::now() < deadline) {
      std::this_thread::sleep_for(5ms);
    }
    EXPECT_EQ(status(buffer), 0u);
  }

  /// Whether the device has given out a sample of this level.
  bool heard(std::int16_t level) const {
    std::ifstream file(recording(), std::ios::binary);
    file.seekg(44);
    for (std::int16_t sample = 0; file.read(reinterpret_cast<char*>(&sample), sizeof sample);) {
      if (std::abs(sample - level) <= 2) return true;
    }
    return false;
  }

  TempFolder folder_;
};

TEST_F(Device, PlaysByItselfAndIsOpenedAgainAfterItWasLostOrLeft) {
  const Buffer buffer = mono_16(std::vector<std::int16_t>(2000, 12000));
  play_to_the_end(*buffer);
  EXPECT_TRUE(heard(12000));

  platform_lose_audio();
  EXPECT_EQ(status(*buffer), DSBSTATUS_BUFFERLOST);
  const auto restored = [&](std::int16_t level) {
    EXPECT_EQ(buffer->Restore(), DS_OK);
    fill(*buffer, std::vector<std::int16_t>(2000, level));
  };
  restored(5000);
  play_to_the_end(*buffer);
  EXPECT_TRUE(heard(5000));
  EXPECT_EQ(render(100), silence(100)) << "only a rendered mix can be taken";

  platform_set_volume(0.25f);
  fill(*buffer, std::vector<std::int16_t>(2000, 12000));
  play_to_the_end(*buffer);
  EXPECT_TRUE(heard(3000)) << "a quarter of it";
  platform_set_volume(1);

  platform_move_audio(PLATFORM_AUDIO_RENDERED);
  EXPECT_EQ(status(*buffer), DSBSTATUS_BUFFERLOST);
  restored(7000);
  ASSERT_EQ(buffer->Play(0, 0, 0), DS_OK);
  EXPECT_EQ(render(1).front().left, 7000);
  platform_move_audio(PLATFORM_AUDIO_DEVICE);
  restored(9000);
  play_to_the_end(*buffer);
  EXPECT_TRUE(heard(9000));
  EXPECT_FALSE(heard(7000)) << "that went into the mix";
}

TEST(NoDevice, TheSilentStandInIsNone) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");  // OpenAL has not looked yet in a new process
  const auto create = [] {
    setenv("ALSOFT_DRIVERS", "null", 1);
    IDirectSound* sound = nullptr;
    std::exit(DirectSoundCreate(nullptr, &sound, nullptr) == DSERR_NODRIVER ? 0 : 1);
  };
  EXPECT_EXIT(create(), testing::ExitedWithCode(0), "");
}

}  // namespace
