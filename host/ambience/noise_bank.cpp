#include "host/ambience/noise_bank.h"

#include <cmath>
#include <numbers>

#include "platform/platform_host.h"

namespace host {
namespace {

constexpr std::size_t bands = NoiseBank::hertz.size();

/// White, -1 to 1 (xorshift32: Marsaglia, "Xorshift RNGs", 2003).
float white(std::uint32_t& state) {
  state ^= state << 13;
  state ^= state >> 17;
  state ^= state << 5;
  return static_cast<float>(static_cast<std::int32_t>(state)) * (1.0f / 2147483648.0f);
}

}  // namespace

NoiseBank::NoiseBank() {
  constexpr double quality = 0.7;
  Lanes feed, first_back, second_back;
  for (std::size_t b = 0; b < bands; ++b) {
    const double turn = 2 * std::numbers::pi * hertz[b] / PLATFORM_AUDIO_RATE;
    const double alpha = std::sin(turn) / (2 * quality);
    feed[b] = static_cast<float>(alpha / (1 + alpha));
    first_back[b] = static_cast<float>(-2 * std::cos(turn) / (1 + alpha));
    second_back[b] = static_cast<float>((1 - alpha) / (1 + alpha));
  }
  feed_ = LaneRegisters::of(feed);
  first_back_ = LaneRegisters::of(first_back);
  second_back_ = LaneRegisters::of(second_back);

  // What white noise becomes, of deviation 1/sqrt(3), by the answer to an impulse.
  Stages stages{};
  LaneRegisters power, in = LaneRegisters::all(1.0f);
  for (int i = 0; i < PLATFORM_AUDIO_RATE / 4; ++i) {
    const LaneRegisters out = pass(stages, in);
    power = power + out * out;
    in = {};
  }
  to_unity_ = power.lanes();
  for (float& band : to_unity_) band = std::sqrt(3.0f / band);
}

/// Two band passes in a row, in their transposed form.
inline LaneRegisters NoiseBank::pass(Stages& stages, LaneRegisters in) const {
  for (Stage& stage : stages) {
    const LaneRegisters fed = feed_ * in, out = fed + stage.first;
    stage.first = stage.second - first_back_ * out;
    stage.second = LaneRegisters() - fed - second_back_ * out;
    in = out;
  }
  return in;
}

void NoiseBank::add(std::span<float> stereo, const Lanes& levels) {
  const std::size_t frames = stereo.size() / 2;
  if (frames == 0) return;
  const LaneRegisters to_unity = LaneRegisters::of(to_unity_);
  LaneRegisters gain = LaneRegisters::of(levels_) * to_unity;
  const LaneRegisters step = (LaneRegisters::of(levels) * to_unity - gain) *
                             LaneRegisters::all(1.0f / static_cast<float>(frames));
  auto [left, right] = sides_;  // in registers, not in memory
  auto [left_seed, right_seed] = seeds_;
  for (std::size_t i = 0; i < stereo.size(); i += 2) {
    gain = gain + step;
    stereo[i] += (gain * pass(left, LaneRegisters::all(white(left_seed)))).sum();
    stereo[i + 1] += (gain * pass(right, LaneRegisters::all(white(right_seed)))).sum();
  }
  sides_ = {left, right};
  seeds_ = {left_seed, right_seed};
  levels_ = levels;
}

}  // namespace host
