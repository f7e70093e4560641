#include "host/ambience/cockpit_noise.h"

#include <algorithm>
#include <cmath>

#include "platform/platform_host.h"

namespace host {
namespace {

using simulation::SoundSources;

constexpr std::size_t step_frames = 256;  // levels and pitches are worked out anew so often: every 6 ms
constexpr float gone = 1e-4f;             // of a strength: below all that 16 bits hold

struct Spectrum {
  CockpitNoise::Source source;
  Lanes db;  // root mean square below full scale in the bands of NoiseBank, at strength 1
};

// clang-format off
constexpr Spectrum spectra[] = {
    //                                  35   80  170  370  800 1700 3600 7500 Hz
    {CockpitNoise::fans,             {{-72, -64, -58, -55, -54, -56, -59, -66}}},
    {CockpitNoise::packs,            {{-68, -58, -52, -49, -48, -48, -48, -53}}},
    {CockpitNoise::apu,              {{-46, -40, -44, -51, -58, -67, -76, -90}}},
    {CockpitNoise::engine_1,         {{-34, -34, -43, -51, -54, -58, -64, -76}}},  // at take-off
    {CockpitNoise::engine_2,         {{-34, -34, -43, -51, -54, -58, -64, -76}}},
    {CockpitNoise::airflow,          {{-35, -34, -37, -43, -46, -49, -50, -53}}},  // at 330 kt
    {CockpitNoise::gear_in_wind,     {{-29, -30, -37, -47, -54, -62, -70, -90}}},  // at 250 kt
    {CockpitNoise::spoilers_in_wind, {{-27, -30, -39, -49, -54, -62, -70, -90}}},  // at 250 kt
    {CockpitNoise::jacks,            {{-80, -64, -50, -42, -43, -54, -64, -80}}},
    {CockpitNoise::wheels,           {{-29, -32, -43, -56, -64, -72, -80, -90}}},  // at 60 m/s
    {CockpitNoise::buffet,           {{-18, -23, -36, -50, -62, -72, -80, -90}}},
    {CockpitNoise::knock,            {{ -9, -12, -20, -34, -48, -60, -70, -90}}},
    {CockpitNoise::screech,          {{-90, -80, -64, -48, -43, -44, -48, -60}}},
};
// clang-format on

using Powers = std::array<Lanes, CockpitNoise::sources>;

const Powers& powers() {
  static const Powers all = [] {
    Powers made{};
    for (const Spectrum& s : spectra)
      for (std::size_t b = 0; b < s.db.size(); ++b) made[s.source][b] = std::pow(10.0f, s.db[b] / 10);
    return made;
  }();
  return all;
}

float amplitude(double db) { return static_cast<float>(std::pow(10.0, db / 20)); }

/// Moves `value` toward `target` as something with that inertia does.
float follow(float value, double target, double seconds, double inertia_s) {
  return value + static_cast<float>((target - value) * std::min(1.0, seconds / inertia_s));
}

float square(double value) { return static_cast<float>(value * value); }

/// It has been put somewhere else: no aircraft climbs 60,000 ft/min or gains 25 kt in a frame.
bool put_elsewhere(const SoundSources& from, const SoundSources& to) {
  return std::abs(to.altitude_ft - from.altitude_ft) > 50 ||
         std::abs(to.airspeed_kt - from.airspeed_kt) > 25;
}

/// Below four fifths of full scale as it is, above it ever less.
std::int16_t bent(float level) {
  constexpr float straight = 0.8f, bend = 1 - straight;
  const float size = std::abs(level);
  if (size <= straight) return static_cast<std::int16_t>(std::lrint(level * 32767));
  const float below = straight + bend * std::tanh((size - straight) / bend);
  return static_cast<std::int16_t>(std::lrint(std::copysign(below, level) * 32767));
}

}  // namespace

void CockpitNoise::hear(const SoundSources& now, double seconds) {
  hear_air(now, begun_ ? seconds : 1e9);
  hear_tones(now);
  heard_[jacks] = 0;
  heard_[wheels] = now.on_ground ? static_cast<float>(std::pow(now.ground_speed_mps / 60, 0.8)) : 0;
  if (begun_ && !put_elsewhere(last_, now)) {
    hear_motion(now, seconds);
    hear_wheels(now, seconds);
  }
  last_ = now;
  begun_ = true;
}

void CockpitNoise::hear_air(const SoundSources& now, double seconds) {
  heard_[fans] = follow(heard_[fans], now.equipment_powered, seconds, 1.5);
  heard_[packs] = follow(heard_[packs], now.packs_have_air, seconds, 2.5);
  heard_[apu] = square(now.apu_speed);
  for (const std::size_t i : {0u, 1u})
    heard_[engine_1 + i] =
        static_cast<float>(std::pow(now.fan_speed[i], 1.5) + 0.06 * now.core_speed[i]);
  heard_[airflow] = square(now.airspeed_kt / 330);
  const float wind = square(now.airspeed_kt / 250);
  heard_[gear_in_wind] = wind * static_cast<float>((now.gear[0] + now.gear[1] + now.gear[2]) / 3);
  heard_[spoilers_in_wind] = wind * static_cast<float>(now.speed_brake);
  heard_[buffet] = now.buffeting;
}

/// Jacks run while something moves; a leg that comes to its lock knocks.
void CockpitNoise::hear_motion(const SoundSources& now, double seconds) {
  const double flaps = std::abs(now.flap_deg - last_.flap_deg) / seconds;
  const double spoilers = std::abs(now.speed_brake - last_.speed_brake) / seconds;
  double strength = flaps > 0.1 ? 0.7 : 0.0;
  if (spoilers > 0.05) strength = std::max(strength, 0.6);
  for (std::size_t leg = 0; leg < now.gear.size(); ++leg) {
    if (now.gear[leg] == last_.gear[leg]) continue;
    strength = 1;
    if (now.gear[leg] == 0 || now.gear[leg] == 1) sounding_[knock] = std::max(sounding_[knock], 0.25f);
  }
  heard_[jacks] = static_cast<float>(strength);
}

/// The touch-down, and the joints of the pavement's slabs.
void CockpitNoise::hear_wheels(const SoundSources& now, double seconds) {
  if (!now.on_ground) return;
  if (!last_.on_ground) {
    const double sink_fpm = std::max(0.0, -last_.vertical_speed_fpm);
    sounding_[knock] = static_cast<float>(std::min(1.0, 0.2 + sink_fpm / 600));
    sounding_[screech] = static_cast<float>(std::min(1.0, now.ground_speed_mps / 60));
  }
  constexpr double slab_m = 7.5, full_mps = 30;
  to_joint_m_ -= now.ground_speed_mps * seconds;
  if (to_joint_m_ > 0) return;
  to_joint_m_ = slab_m;
  const double strength = 0.08 * std::min(1.0, now.ground_speed_mps / full_mps);
  sounding_[knock] = std::max(sounding_[knock], static_cast<float>(strength));
}

void CockpitNoise::hear_tones(const SoundSources& now) {
  const auto tone = [&](std::size_t at, double hertz, double left, double right) {
    heard_tones_[at] = {static_cast<float>(hertz), static_cast<float>(left), static_cast<float>(right)};
  };
  const double hum = now.alternating_current ? amplitude(-66) : 0, fan = heard_[fans] * amplitude(-64);
  tone(0, 400, hum, hum);
  tone(1, 236, fan, fan);
  const double apu_whine = square(now.apu_speed) * amplitude(-54);
  tone(2, 1480 * now.apu_speed, 0.7 * apu_whine, 0.7 * apu_whine);
  tone(3, 370 * now.apu_speed, apu_whine, apu_whine);
  constexpr std::array apart{1.0, 1.004};  // no two engines run quite alike: they beat
  for (const std::size_t i : {0u, 1u}) {
    const double near = i == 0 ? 1.0 : 0.5, far = 1.5 - near;
    const double buzz = square(now.fan_speed[i]) * amplitude(-42),
                 whine = now.core_speed[i] * amplitude(-56);
    tone(4 + i, 142 * apart[i] * now.fan_speed[i], near * buzz, far * buzz);
    tone(6 + i, 3600 * apart[i] * now.core_speed[i], near * whine, far * whine);
  }
}

void CockpitNoise::hush() {
  heard_ = {};
  for (Tone& tone : heard_tones_) tone.left = tone.right = 0;
}

/// One step of everything toward what was heard last: frames come some 18 times a second, and are not
/// to be told apart. What was struck dies away by itself.
void CockpitNoise::glide() {
  constexpr float part = 0.12f, knock_part = 0.065f;
  for (std::size_t s = 0; s < sources; ++s) {
    sounding_[s] += (heard_[s] - sounding_[s]) * (s == knock || s == screech ? knock_part : part);
    if (sounding_[s] < gone && heard_[s] < gone) sounding_[s] = 0;
  }
  for (std::size_t t = 0; t < sounding_tones_.size(); ++t) {
    Tone& tone = sounding_tones_[t];
    const Tone& target = heard_tones_[t];
    if (tone.left + tone.right == 0) tone.hertz = target.hertz;
    tone.hertz += (target.hertz - tone.hertz) * part;
    tone.left += (target.left - tone.left) * part;
    tone.right += (target.right - tone.right) * part;
    if (tone.left + tone.right < gone * gone && target.left == 0) tone.left = tone.right = 0;
  }
}

bool CockpitNoise::silent() const {
  const auto none = [](const Strengths& all) {
    return std::ranges::all_of(all, [](float s) { return s < gone; });
  };
  return volume_ == 0 || (none(heard_) && none(sounding_));
}

/// Noises add up by their powers.
Lanes CockpitNoise::band_levels() const {
  Lanes sum{};
  for (std::size_t s = 0; s < sources; ++s)
    for (std::size_t b = 0; b < sum.size(); ++b) sum[b] += sounding_[s] * sounding_[s] * powers()[s][b];
  for (float& band : sum) band = volume_ * std::sqrt(band);
  return sum;
}

ToneBank::Tones CockpitNoise::tones() const {
  ToneBank::Tones all = sounding_tones_;
  for (Tone& tone : all) {
    tone.left *= volume_;
    tone.right *= volume_;
  }
  return all;
}

void CockpitNoise::mix_into(std::span<std::int16_t> stereo) {
  if (silent()) return;
  for (std::size_t at = 0; at < stereo.size();) {
    const std::size_t count = std::min(2 * step_frames, stereo.size() - at);
    block_.assign(count, 0.0f);
    glide();
    noise_.add(block_, band_levels());
    whine_.add(block_, tones());
    for (std::size_t i = 0; i < count; ++i)
      stereo[at + i] = bent(stereo[at + i] / 32768.0f + block_[i]);
    at += count;
  }
}

}  // namespace host
