#include "host/ambience/tone_bank.h"

#include <cmath>
#include <numbers>

#include "platform/platform_host.h"

namespace host {

namespace {

// What each tone turns by from frame to frame, and the levels that it is to come to.
struct Aims {
  LaneRegisters cosine, sine, left, right;

  explicit Aims(const ToneBank::Tones& tones) {
    Lanes cosines, sines, lefts, rights;
    for (std::size_t t = 0; t < tones.size(); ++t) {
      const float turn = 2 * std::numbers::pi_v<float> * tones[t].hertz / PLATFORM_AUDIO_RATE;
      cosines[t] = std::cos(turn);
      sines[t] = std::sin(turn);
      lefts[t] = tones[t].left;
      rights[t] = tones[t].right;
    }
    cosine = LaneRegisters::of(cosines);
    sine = LaneRegisters::of(sines);
    left = LaneRegisters::of(lefts);
    right = LaneRegisters::of(rights);
  }
};

}  // namespace

void ToneBank::add(std::span<float> stereo, const Tones& tones) {
  const std::size_t frames = stereo.size() / 2;
  if (frames == 0) return;
  const Aims aims(tones);
  const LaneRegisters part = LaneRegisters::all(1.0f / static_cast<float>(frames));
  const LaneRegisters left_step = (aims.left - left_) * part, right_step = (aims.right - right_) * part;
  // In registers, not in memory.
  LaneRegisters cosine = cosine_, sine = sine_, left = left_, right = right_;
  for (std::size_t i = 0; i < stereo.size(); i += 2) {
    const LaneRegisters turned = cosine * aims.cosine - sine * aims.sine;
    sine = sine * aims.cosine + cosine * aims.sine;
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
  left_ = aims.left;
  right_ = aims.right;
}

}  // namespace host
