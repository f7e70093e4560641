/// The light of a warning: a face that sounds the warning for as long as it lasts, a light for it, and
/// one for its test, all at one place.
#pragma once

#include "gauges/warnings/warning.h"
#include "module/catalogue.h"

namespace tarnvale {

/// In every frame, so that the sound begins again as soon as it has ended.
template <Warning warning>
f64 sound_warning(Element*) {
  if (warning.given()) request(warning.sound);
  return 0;
}

template <Warning warning>
f64 warning_light(Element*) {
  return warning.given();
}

/// Tests the lamp alone: a system that is switched off is tested too.
template <Warning warning>
f64 warning_test_light(Element*) {
  return aircraft.*warning.tested == 1;
}

template <Warning warning>
constexpr Rows<3> warning_light_rows(i32 face, i32 light) {
  constexpr PanelPoint corner{0, 0};
  return {
      icon("Unlit face", {face, 1}, corner, sound_warning<warning>).lit_flags(image_flag::transparent),
      lamp("Warning light", light, corner, warning_light<warning>),
      lamp("Test light", light, corner, warning_test_light<warning>),
  };
}

}  // namespace tarnvale
