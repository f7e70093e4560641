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

  bool load(i32 buffer_count, const char* path = "tone.wav") {
    sound_ = create_sound(direct_sound_, path, buffer_count, nullptr);
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

TEST_F(SoundObjects, WhatCannotPlayIsThereOnlyWithoutFurtherBuffers) {
  const std::string short_format = mono_format().substr(0, 12);
  folder_.write("short.wav", riff(chunk("fmt ", short_format) + chunk("data", "abcd")));
  EXPECT_FALSE(load(2, "short.wav"));
  ASSERT_TRUE(load(1, "short.wav"));
  EXPECT_FALSE(play_sound(sound_, 0));
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
