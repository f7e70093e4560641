// What a station's identification sounds like, and when it is heard.
#include "host/sound/identifications.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "host/sound/morse.h"
#include "tests/platform/rendered_sound.h"

namespace {

TEST(Morse, KeysLettersAndFigures) {
  EXPECT_EQ(host::morse_keying("ITV"), "= =   ===   = = = ===");
  EXPECT_EQ(host::morse_keying("trn"), "===   = === =   === =");
  EXPECT_EQ(host::morse_keying("A 4"), "= ===   = = = = ===");
  EXPECT_EQ(host::morse_keying(""), "");
}

/// Goes by the zeros that a wave crosses upward.
double hertz(const std::vector<std::int16_t>& samples, std::size_t from, std::size_t to,
             unsigned rate) {
  int waves = 0;
  for (std::size_t i = from + 1; i < to; ++i) waves += samples[i - 1] < 0 && samples[i] >= 0;
  return waves * static_cast<double>(rate) / static_cast<double>(to - from);
}

TEST(Morse, IsATrueToneInTheTimeOfItsDots) {
  constexpr unsigned rate = 44100;
  const std::vector<std::int16_t> samples = host::morse_samples("T", rate);
  ASSERT_EQ(samples.size(), 10 * rate);
  const auto dash = static_cast<std::size_t>(0.375 * rate);  // three dots
  EXPECT_NEAR(hertz(samples, 0, dash, rate), 1020, 4);
  int loudest = 0, step = 0, after = 0;
  for (std::size_t i = 1; i < samples.size(); ++i) {
    loudest = std::max<int>(loudest, samples[i]);
    step = std::max(step, std::abs(samples[i] - samples[i - 1]));
    if (i > dash) after = std::max(after, std::abs(samples[i]));
  }
  EXPECT_NEAR(loudest, 0.04 * 32767, 20);
  EXPECT_LT(step, loudest * 0.16) << "the key does not click";
  EXPECT_EQ(after, 0);
  EXPECT_EQ(host::morse_samples("00000000", rate).size(), 10 * rate) << "what is too long is cut off";
}

class Ears : public RenderedSound {
 protected:
  host::Identifications ears;
  double seconds = 0;

  void SetUp() override {
    RenderedSound::SetUp();
    platform_register_window("FS98MAIN", this);
  }
  void TearDown() override {
    platform_register_window("FS98MAIN", nullptr);
    RenderedSound::TearDown();
  }

  /// What is heard of each dot's time from now on, as its keying.
  std::string listen(std::vector<std::string_view> heard, int dots) {
    std::string keying;
    for (int i = 0; i < dots; ++i) {
      ears.update(heard, seconds);
      int loudest = 0;
      for (const Frame& frame : render(5512)) loudest = std::max({loudest, frame.left, frame.right});
      keying += loudest > 200 ? '=' : ' ';
      seconds += 0.125;
    }
    return keying;
  }
};

TEST_F(Ears, HearEachStationInItsOwnTimeFromWhereItIs) {
  EXPECT_EQ(listen({"", "", ""}, 4), "    ");
  EXPECT_EQ(listen({"ITV", "", ""}, 17), "  ===   = = = ===") << "half a second into its own time";
  EXPECT_EQ(listen({"", "", ""}, 59), std::string(59, ' '));
  EXPECT_EQ(listen({"ITV", "", ""}, 12), "= =   ===   ") << "ten seconds later it begins again";
  EXPECT_EQ(listen({"", "", ""}, 1), " ") << "and ends at once";
}

TEST_F(Ears, AreDeafInAPauseAndOutliveTheirDevice) {
  EXPECT_EQ(listen({"TV"}, 2), "==");
  ears.silence();
  EXPECT_EQ(render(5512), silence(5512));
  platform_lose_audio();
  seconds = 10;
  EXPECT_EQ(listen({"TV"}, 7), "===   =");
}

}  // namespace
