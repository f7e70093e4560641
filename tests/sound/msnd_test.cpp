// The sound gauge: what is heard for which requests, and what is told when something fails.
#include "tests/rig/rig.h"
#include "tests/sound/sound_folder.h"

namespace {

using namespace tarnvale;
using Messages = std::vector<std::string>;

class SoundGauge : public SoundFolder {
 protected:
  void SetUp() override {
    SoundFolder::SetUp();
    write_all_sounds();
  }
  void TearDown() override {
    msnd_.service(SERVICE_END);
    SoundFolder::TearDown();
  }

  void start() { msnd_.service(SERVICE_BEGIN, 0); }

  /// What the next frame starts: the level that is heard after it, once it has played to its end.
  int heard_after_frame() {
    msnd_.frame();
    const int level = listen(sound_length).front();
    EXPECT_EQ(listen(1), steady(0, 1));
    return level;
  }

  int heard_on_request(std::size_t sound) {
    aircraft.sound_requests[sound] = 1;
    const int level = heard_after_frame();
    EXPECT_EQ(aircraft.sound_requests[sound], 0u) << sound;
    return level;
  }

  rig::Host host_;
  rig::Gauge msnd_{"Msnd"};
};

TEST_F(SoundGauge, EveryRequestPlaysItsOwnSound) {
  start();
  EXPECT_TRUE(messages_.empty());
  for (std::size_t i = 0; i < sound_request_count; ++i) {
    EXPECT_EQ(heard_on_request(i), level_of(i)) << i;
  }
  EXPECT_EQ(heard_after_frame(), 0);
}

TEST_F(SoundGauge, ARequestIsAnyValueAboveZeroAndIsTakenOnce) {
  start();
  for (const u32 request : {0u, 2u, 0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFFu}) {
    const bool taken = static_cast<i32>(request) > 0;
    aircraft.sound_requests[click_sound_request] = request;
    EXPECT_EQ(heard_after_frame(), taken ? 15 : 0) << request;
    EXPECT_EQ(aircraft.sound_requests[click_sound_request], taken ? 0 : request);
    EXPECT_EQ(heard_after_frame(), 0) << request;
  }
}

TEST_F(SoundGauge, OneFrameMakesOneClickForTwoGaugesAndEveryOtherSoundBesides) {
  start();
  request(click_sound_request);
  request(click_sound_request);
  request(fire_sound_request);
  EXPECT_EQ(heard_after_frame(), level_of(click_sound_request) + level_of(fire_sound_request));
}

TEST_F(SoundGauge, ASoundThatPlaysIsNotStartedAgain) {
  start();
  const int level = level_of(fire_sound_request);
  request(fire_sound_request);
  msnd_.frame();
  listen(150);
  request(fire_sound_request);
  msnd_.frame();
  EXPECT_EQ(aircraft.sound_requests[fire_sound_request], 0u) << "dropped";
  EXPECT_EQ(listen(50), steady(level, 50));
  EXPECT_EQ(listen(1), steady(0, 1));
}

TEST_F(SoundGauge, AMissingFileSilencesItAndAllAfterIt) {
  std::filesystem::remove(folder_.path() / file_of(gndwarn_sound_request));
  start();
  EXPECT_EQ(messages_, (Messages{"DEBUG: DirectSound Object Not Found",
                                 "DEBUG: DirectSound: Tarv_gndwarn.wav failed"}));
  for (std::size_t i = 0; i < sound_request_count; ++i) {
    EXPECT_EQ(heard_on_request(i), i < gndwarn_sound_request ? level_of(i) : 0) << i;
  }
  EXPECT_EQ(messages_.size(), 2u);
}

TEST_F(SoundGauge, AFileWithoutSamplesIsMissing) {
  for (const std::string& contents : {std::string(), riff(chunk("fmt ", mono_format()))}) {
    messages_.clear();
    folder_.write(file_of(a2500_sound_request), contents);
    start();
    EXPECT_EQ(messages_.back(), "DEBUG: DirectSound: Tarv_a2500.wav failed");
  }
}

TEST_F(SoundGauge, WithoutADeviceOrAWindowRequestsAreClearedInSilence) {
  platform_choose_audio(PLATFORM_AUDIO_NONE);
  start();
  EXPECT_EQ(heard_on_request(click_sound_request), 0);
  msnd_.service(SERVICE_END);
  platform_choose_audio(PLATFORM_AUDIO_RENDERED);
  platform_register_window("FS98MAIN", nullptr);
  start();
  EXPECT_EQ(heard_on_request(click_sound_request), 0);
  EXPECT_EQ(messages_, (Messages{"DEBUG: DirectSound: Object Create failed",
                                 "DEBUG: DirectSound: SetCooperativeLevel failed"}));
}

TEST_F(SoundGauge, TheEndStopsAndReleasesEverything) {
  start();
  request(fire_sound_request);
  msnd_.frame();
  listen(20);
  msnd_.service(SERVICE_END);
  EXPECT_EQ(listen(20), steady(0, 20));
  EXPECT_EQ(heard_on_request(fire_sound_request), 0) << "still cleared";
  platform_choose_audio(PLATFORM_AUDIO_NONE);  // is heeded only once nothing holds the device
  start();
  EXPECT_EQ(messages_, Messages{"DEBUG: DirectSound: Object Create failed"});
}

}  // namespace
