// What the aircraft sounds like from within, in figures.
#include "host/ambience/cockpit_noise.h"

#include <gtest/gtest.h>

#include "tests/listening/listening.h"

namespace {

using host::CockpitNoise;
using host::simulation::SoundSources;
using namespace listening;

const std::filesystem::path sounds = COCKPIT_DIR "/Sound/Halvery_Tarnjet";
constexpr double frame_s = 1.0 / 18;
constexpr std::size_t frame_samples = 2 * 2450;

/// A cockpit whose sound is taken frame by frame.
struct Ears {
  CockpitNoise noise;
  std::vector<std::int16_t> heard;  ///< left and right

  void listen(const SoundSources& sources, double seconds) {
    for (double t = 0; t < seconds - frame_s / 2; t += frame_s) {
      noise.hear(sources, frame_s);
      std::vector<std::int16_t> frame(frame_samples);
      noise.mix_into(frame);
      heard.insert(heard.end(), frame.begin(), frame.end());
    }
  }

  /// The left side of the last seconds.
  Wave last(double seconds) const {
    const std::size_t count = std::min(heard.size(), 2 * static_cast<std::size_t>(seconds * rate));
    Wave wave;
    for (std::size_t i = heard.size() - count; i < heard.size(); i += 2)
      wave.push_back(heard[i] / 32768.0);
    return wave;
  }
};

SoundSources powered() {
  SoundSources s;
  s.equipment_powered = s.alternating_current = s.packs_have_air = true;
  return s;
}

SoundSources take_off() {
  SoundSources s = powered();
  s.fan_speed = {1, 1};
  s.core_speed = {0.97, 0.97};
  s.airspeed_kt = 150;
  s.gear = {1, 1, 1};
  s.ground_speed_mps = 77;
  return s;
}

SoundSources in_flight(double airspeed_kt) {
  SoundSources s = powered();
  s.on_ground = false;
  s.airspeed_kt = airspeed_kt;
  s.fan_speed = {0.85, 0.85};
  s.core_speed = {0.9, 0.9};
  s.altitude_ft = 10000;
  return s;
}

SoundSources dirty() {
  SoundSources s = in_flight(200);
  s.gear = {1, 1, 1};
  s.speed_brake = 1;
  return s;
}

TEST(CockpitNoise, LeavesEveryVoiceTwelveDecibelsAboveItAndEveryWarningToo) {
  double faintest = 0;
  for (const auto& entry : std::filesystem::recursive_directory_iterator{sounds}) {
    const std::string name = entry.path().filename().string();
    const bool speaks = entry.path().parent_path().filename() != "Halvery_Tarnjet" ||
                        (name.starts_with("Tarv_a") && name.ends_with("0.wav"));
    if (!entry.is_regular_file() || !speaks || name == "Tarv_gndwarn.wav") continue;
    const double level = level_db(speech_band(samples(entry.path())));
    faintest = std::min(faintest, level);
  }
  const struct {
    const char* what;
    SoundSources sources;
  } moments[] = {{"powered", powered()},
                 {"take-off", take_off()},
                 {"330 kt", in_flight(330)},
                 {"gear and spoilers", dirty()}};
  for (const auto& [what, sources] : moments) {
    Ears ears;
    SoundSources now = sources;
    for (int frame = 0; frame < 36; ++frame) {
      now.flap_deg += 2.5 * frame_s;
      ears.listen(now, frame_s);
    }
    const Wave wave = ears.last(1.5);
    EXPECT_LT(level_db(speech_band(wave)), faintest - 12) << what;
    std::printf("%-20s faintest voice %4.1f dB above; %.1f dB in all\n", what,
                faintest - level_db(speech_band(wave)), level_db(wave));
    EXPECT_GT(loudness(wave), -60) << what << " is not heard";
    const double bright = level_db(between(wave, 3000, 5500));
    for (const char* warning : {"Tarv_fire.wav", "Tarv_stall.wav", "Tarv_cabwarn.wav", "Tarv_gpws.wav"})
      EXPECT_GT(level_db(between(samples(sounds / warning), 3000, 5500)), bright + 12)
          << warning << ", " << what;
  }
}

TEST(CockpitNoise, IsSilenceInAColdAircraftAndWhenPowerGoes) {
  CockpitNoise noise;
  noise.hear({}, frame_s);
  std::vector<std::int16_t> mix{1, -2, 32767, -32768};
  noise.mix_into(mix);
  EXPECT_EQ(mix, (std::vector<std::int16_t>{1, -2, 32767, -32768}));
  Ears ears;
  ears.listen(powered(), 1);
  EXPECT_FALSE(ears.noise.silent());
  ears.listen({}, 30);
  EXPECT_TRUE(ears.noise.silent());
  EXPECT_EQ(peak(ears.last(1)), 0);
}

TEST(CockpitNoise, IsTheSameForTheSameFlightAndFollowsItsVolume) {
  Ears first, second, half{CockpitNoise(0.5), {}};
  for (Ears* ears : {&first, &second, &half}) {
    ears->listen(powered(), 0.5);
    ears->listen(take_off(), 0.5);
  }
  EXPECT_TRUE(first.heard == second.heard);
  EXPECT_NEAR(level_db(half.last(0.4)), level_db(first.last(0.4)) - 6.02, 0.1);
}

TEST(CockpitNoise, TellsOfFlapsThatMoveAndOfWheelsThatTouch) {
  Ears flaps;
  SoundSources slow = in_flight(130);
  slow.fan_speed = {0.5, 0.5};
  flaps.listen(slow, 1);
  const double still = level_db(between(flaps.last(0.5), 300, 900));
  for (int frame = 0; frame < 18; ++frame) {
    slow.flap_deg += 2.5 * frame_s;
    flaps.listen(slow, frame_s);
  }
  EXPECT_GT(level_db(between(flaps.last(0.5), 300, 900)), still + 2);
  for (const double sink_fpm : {100.0, 500.0}) {
    Ears ears;
    SoundSources s = in_flight(130);
    s.vertical_speed_fpm = -sink_fpm;
    ears.listen(s, 1);
    const double before = peak(ears.last(0.5));
    s.on_ground = true;
    s.ground_speed_mps = 60;
    ears.listen(s, 0.2);
    EXPECT_GT(peak(ears.last(0.2)), before * (sink_fpm > 300 ? 4 : 1.5)) << sink_fpm;
  }
  Ears put;
  put.listen(in_flight(200), 1);
  put.listen(powered(), 0.4);
  EXPECT_LT(peak(put.last(0.2)), 0.05) << "who is put on the ground has not landed";
}

TEST(CockpitNoise, GlidesWithoutAClick) {
  Ears ears;
  ears.listen(powered(), 1);
  ears.listen(take_off(), 1);
  // A step would sound far above the noises' own band.
  const Wave bright = between(ears.last(1.5), 15000, 20000);
  EXPECT_LT(decibels(peak(bright)), level_db(bright) + 15);
}

TEST(CockpitNoise, BendsWhatComesNearFullScale) {
  CockpitNoise noise;
  std::vector<std::int16_t> mix(44100);
  for (std::size_t i = 0; i < mix.size(); ++i) mix[i] = i % 200 < 100 ? 32767 : -32768;
  const auto loud = mix;
  noise.hear(take_off(), frame_s);
  noise.mix_into(mix);
  for (std::size_t i = 2000; i < mix.size(); ++i)
    ASSERT_TRUE((mix[i] > 0) == (loud[i] > 0) && std::abs(mix[i]) > 20000 && std::abs(mix[i]) < 32767)
        << i;
}

}  // namespace
