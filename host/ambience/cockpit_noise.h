/// The sound of the aircraft itself, as its crew hears it: made anew for every moment from what the
/// simulation says, and the same to the byte for the same flight.
///
/// It is quiet: with everything at its loudest, voices stand 12 dB and more above it between 300 and
/// 3400 Hz, where words are understood.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "host/ambience/noise_bank.h"
#include "host/ambience/tone_bank.h"
#include "host/simulation/sound_sources.h"

namespace host {

class CockpitNoise {
 public:
  /// `volume` scales all of it: 1 as it is meant, 0 silent.
  explicit CockpitNoise(double volume = 1.0) : volume_(static_cast<float>(volume)) {}

  /// Call after every frame with what sounds now, and the seconds since the last call. What has moved
  /// in between is heard moving. Where the aircraft has been put elsewhere nothing has moved.
  void hear(const simulation::SoundSources& now, double seconds);

  /// Lets all of it die away within a tenth of a second, until the next `hear`.
  void hush();

  /// The next frames are digital silence.
  bool silent() const;

  /// Mixes the next frames into interleaved stereo samples, left first. What comes near full scale is
  /// bent, so that it stays below.
  void mix_into(std::span<std::int16_t> stereo);

  /// What sounds, and how strongly: 0 to 1 where the row says it is loudest.
  enum Source {
    fans,
    packs,
    apu,
    engine_1,
    engine_2,
    airflow,
    gear_in_wind,
    spoilers_in_wind,
    jacks,
    wheels,
    buffet,
    knock,
    screech,
    sources
  };
  using Strengths = std::array<float, sources>;

 private:
  void hear_air(const simulation::SoundSources& now, double seconds);
  void hear_motion(const simulation::SoundSources& now, double seconds);
  void hear_wheels(const simulation::SoundSources& now, double seconds);
  void hear_tones(const simulation::SoundSources& now);
  void glide();
  Lanes band_levels() const;
  ToneBank::Tones tones() const;

  float volume_;
  simulation::SoundSources last_;
  bool begun_ = false;
  Strengths heard_{};     ///< as of the last frame
  Strengths sounding_{};  ///< on its way there
  ToneBank::Tones heard_tones_{}, sounding_tones_{};
  double to_joint_m_ = 0;
  NoiseBank noise_;
  ToneBank whine_;
  std::vector<float> block_;
};

}  // namespace host
