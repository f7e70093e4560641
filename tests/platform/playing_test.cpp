// What is heard: samples at the right moment, level and pitch.
#include <cmath>
#include <numbers>
#include <numeric>

#include "tests/platform/rendered_sound.h"

namespace {

using Playing = RenderedSound;

/// Frames in which both sides have the same samples.
std::vector<Frame> both(const std::vector<std::int16_t>& samples) {
  std::vector<Frame> frames;
  for (const int sample : samples) frames.push_back({sample, sample});
  return frames;
}

std::vector<Frame> operator+(std::vector<Frame> first, const std::vector<Frame>& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

TEST_F(Playing, StartsAtTheVeryFrameAndEndsInSilence) {
  const std::vector<std::int16_t> steps = {1000, -2000, 3000, -32768, 32767, 1};
  const Buffer buffer = mono_16(steps);
  EXPECT_EQ(render(1500), silence(1500));
  EXPECT_EQ(status(*buffer), 0u);
  EXPECT_EQ(buffer->Play(0, 0, 0), DS_OK);
  EXPECT_EQ(status(*buffer), DSBSTATUS_PLAYING);
  EXPECT_EQ(render(2000), both(steps) + silence(1994));
  EXPECT_EQ(status(*buffer), 0u);
  EXPECT_EQ(buffer->Play(0, 0, 0), DS_OK);
  std::vector<Frame> again;
  for (const std::size_t count : {1u, 2u, 4u, 3000u}) again = again + render(count);
  EXPECT_EQ(again, both(steps) + silence(3001)) << "a second playing starts over";
}

TEST_F(Playing, IsToldOnceForEachStart) {
  std::vector<std::vector<std::int16_t>> told;
  platform_on_sound(
      [](const void* samples, std::size_t bytes, void* context) {
        const auto* first = static_cast<const std::int16_t*>(samples);
        static_cast<decltype(told)*>(context)->emplace_back(first, first + bytes / 2);
      },
      &told);
  const Buffer one = mono_16({1, 2, 3}), other = mono_16({4, 5});
  one->Play(0, 0, 0);
  other->Play(0, 0, DSBPLAY_LOOPING);
  one->Play(0, 0, 0);
  other->Play(0, 0, 0);
  EXPECT_EQ(told, (std::vector<std::vector<std::int16_t>>{{1, 2, 3}, {4, 5}})) << "what plays goes on";
  render(1000);
  one->Play(0, 0, 0);
  EXPECT_EQ(told.size(), 3u);
  platform_on_sound(nullptr, nullptr);
  render(1000);
  one->Play(0, 0, 0);
  EXPECT_EQ(told.size(), 3u);
}

TEST_F(Playing, EveryFormatKeepsItsLevelAndSides) {
  const Buffer stereo_16 = buffer_of(extensible(pcm_format(2, 16, PLATFORM_AUDIO_RATE)),
                                     std::vector<std::int16_t>{100, -200, 300, -400});
  stereo_16->Play(0, 0, 0);
  EXPECT_EQ(render(3), (std::vector<Frame>{{100, -200}, {300, -400}, {}}));

  const Buffer mono_8 =
      buffer_of(pcm_format(1, 8, PLATFORM_AUDIO_RATE), std::vector<BYTE>{0x80, 0xFF, 0x00, 0x81});
  mono_8->Play(0, 0, 0);
  EXPECT_EQ(render(5), both({0, 32512, -32768, 256, 0}));

  const Buffer stereo_8 =
      buffer_of(pcm_format(2, 8, PLATFORM_AUDIO_RATE), std::vector<BYTE>{0x00, 0xFF, 0x80, 0x80, 0x55});
  stereo_8->Play(0, 0, 0);
  EXPECT_EQ(render(3), (std::vector<Frame>{{-32768, 32512}, {}, {}})) << "half a frame at the end";
}

TEST_F(Playing, OtherRatesKeepPitchAndLength) {
  for (const DWORD rate : {8000u, 96000u}) {
    std::vector<std::int16_t> tone(rate);
    for (std::size_t i = 0; i < tone.size(); ++i) {
      const double phase = 2 * std::numbers::pi * 441 * static_cast<double>(i) / rate;
      tone[i] = static_cast<std::int16_t>(std::lround(20000 * std::sin(phase)));
    }
    const Buffer buffer = mono_16(tone, rate);
    buffer->Play(0, 0, 0);
    const auto heard = render(PLATFORM_AUDIO_RATE);
    int rises = 0;
    for (std::size_t i = 1; i < heard.size(); ++i) rises += heard[i - 1].left < 0 && heard[i].left >= 0;
    EXPECT_NEAR(rises, 441, 1) << rate;
    render(64);
    EXPECT_EQ(status(*buffer), 0u) << rate;
  }
}

TEST_F(Playing, SoundsAddUpAndAreCutOffAtFullLevel) {
  const Buffer first = mono_16({100, 30000, -30000});
  const Buffer second = mono_16({11, 30000, -30000});
  first->Play(0, 0, 0);
  second->Play(0, 0, 0);
  EXPECT_EQ(render(4), both({111, 32767, -32768, 0}));
}

TEST_F(Playing, LoopsUntilStopped) {
  const Buffer buffer = mono_16({1, 2, 3, 4});
  buffer->Play(0, 0, DSBPLAY_LOOPING);
  EXPECT_EQ(status(*buffer), DSBSTATUS_PLAYING | DSBSTATUS_LOOPING);
  EXPECT_EQ(render(10), both({1, 2, 3, 4, 1, 2, 3, 4, 1, 2}));
  buffer->Stop();
  EXPECT_EQ(render(3), silence(3));
}

TEST_F(Playing, GoesOnWhereItWasStoppedOrPut) {
  std::vector<std::int16_t> numbered(4000);
  std::iota(numbered.begin(), numbered.end(), std::int16_t{0});
  const Buffer buffer = mono_16(numbered);
  const auto last_of = [](std::size_t frames) { return render(frames).back().left; };
  buffer->Play(0, 0, 0);
  EXPECT_EQ(last_of(1000), 999);
  buffer->Stop();
  EXPECT_EQ(last_of(1), 0);
  buffer->Play(0, 0, 0);
  render(499);  // a start in the middle fades in
  EXPECT_EQ(last_of(1), 1499);
  EXPECT_EQ(buffer->SetCurrentPosition(2 * 3000), DS_OK);
  EXPECT_EQ(last_of(1000), 3999);
  EXPECT_EQ(last_of(1), 0);
  buffer->Play(0, 0, 0);
  EXPECT_EQ(last_of(1000), 999);
  EXPECT_EQ(buffer->SetCurrentPosition(8000), DSERR_INVALIDPARAM);
}

}  // namespace
