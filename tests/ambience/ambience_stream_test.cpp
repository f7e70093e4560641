// The aircraft's own sound on a device, beside the module's sounds.
#include "host/ambience/ambience_stream.h"

#include "tests/platform/rendered_sound.h"

namespace {

using host::simulation::SoundSources;

class Stream : public RenderedSound {
 protected:
  host::CockpitNoise noise;
  host::AmbienceStream stream;
  SoundSources sources;
  double seconds = 0;

  Stream() { sources.equipment_powered = sources.packs_have_air = true; }

  /// The loudest sample of the next frames of the cockpit.
  int listen(int frames) {
    int loudest = 0;
    for (int i = 0; i < frames; ++i) {
      noise.hear(sources, 1.0 / 18);
      stream.keep_up(noise, seconds);
      seconds += 1.0 / 18;
      for (const Frame& frame : render(2450)) loudest = std::max(loudest, std::abs(frame.left));
    }
    return loudest;
  }
};

TEST_F(Stream, PlaysWithoutAGapAndDiesAwayInAPause) {
  EXPECT_GT(listen(18), 50);
  noise.hear(sources, 1.0 / 18);
  stream.keep_up(noise, seconds);
  int gap = 0, longest = 0;
  for (const Frame& frame : render(5000)) {
    gap = frame == Frame{} ? gap + 1 : 0;
    longest = std::max(longest, gap);
  }
  EXPECT_LT(longest, 20) << "a late frame is not heard";
  stream.pause(noise);
  render(50000);
  EXPECT_EQ(render(2000), silence(2000));
  EXPECT_GT(listen(18), 50) << "and goes on";
}

TEST_F(Stream, LeavesTheModulesSoundsAlone) {
  sources = {};
  const Buffer buffer = mono_16({1000, -1000, 500});
  EXPECT_EQ(listen(2), 0);
  buffer->Play(0, 0, 0);
  EXPECT_EQ(render(3), (std::vector<Frame>{{1000, 1000}, {-1000, -1000}, {500, 500}}));
}

TEST_F(Stream, AsksForAnotherDeviceWhenItsOwnGoes) {
  EXPECT_GT(listen(9), 50);
  platform_lose_audio();
  listen(18 * 6);
  EXPECT_GT(listen(9), 50);
  platform_move_audio(PLATFORM_AUDIO_NONE);
  EXPECT_EQ(listen(18 * 6), 0);
}

}  // namespace
