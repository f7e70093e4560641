#include "host/ambience/tone_bank.h"

#include <cmath>
#include <numbers>

#include "platform/platform_host.h"

namespace host {

void ToneBank::add(std::span<float> stereo, const Tones& tones) {
  const std::size_t frames = stereo.size() / 2;
  if (frames == 0) return;
  Lanes cosines, sines, lefts, rights;
  for (std::size_t t = 0; t < size; ++t) {
    const float turn = 2 * std::numbers::pi_v<float> * tones[t].hertz / PLATFORM_AUDIO_RATE;
    cosines[t] = std::cos(turn);
    sines[t] = std::sin(turn);
    lefts[t] = tones[t].left;
    rights[t] = tones[t].right;
  }
  const LaneRegisters turn_cosine = LaneRegisters::of(cosines), turn_sine = LaneRegisters::of(sines);
  const LaneRegisters part = LaneRegisters::all(1.0f / static_cast<float>(frames));
  const LaneRegisters left_step = (LaneRegisters::of(lefts) - left_) * part;
  const LaneRegisters right_step = (LaneRegisters::of(rights) - right_) * part;
  LaneRegisters cosine = cosine_, sine = sine_, left = left_,
                right = right_;  // in registers, not in memory
  for (std::size_t i = 0; i < stereo.size(); i += 2) {
    const LaneRegisters turned = cosine * turn_cosine - sine * turn_sine;
    sine = sine * turn_cosine + cosine * turn_sine;
    cosine = turned;
    left = left + left_step;
    right = right + right_step;
    stereo[i] += (sine * left).sum();
    stereo[i + 1] += (sine * right).sum();
  }
  // The turns' roundings must not add up: once around this brings the length back to 1, nearly.
  const LaneRegisters length = cosine * cosine + sine * sine;
  const LaneRegisters correction = LaneRegisters::all(1.5f) - LaneRegisters::all(0.5f) * length;
  cosine_ = cosine * correction;
  sine_ = sine * correction;
  left_ = LaneRegisters::of(lefts);
  right_ = LaneRegisters::of(rights);
}

}  // namespace host
