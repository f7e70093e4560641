/// Both attitude indicators: a ball that turns with the bank and shifts with the pitch.
#pragma once

#include "module/elements.h"
#include "module/numbers.h"
#include "module/tokens.h"

namespace tarnvale {

/// The ball shows 45 degrees up and down.
inline f64 shown_pitch(Element* ball) { return limited(ball->sprite.y.source.value, -45, 45); }

/// `pixels` to a degree of pitch.
constexpr SpriteMotion horizon_motion(f64 pixels) {
  return {.x = {},
          .y = {.source = token::attitude_pitch, .value = shown_pitch, .scale = pixels},
          .rotation = {.source = token::attitude_bank, .value = nullptr, .scale = -1}};
}

}  // namespace tarnvale
