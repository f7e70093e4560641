/// The dials of a hydraulic system: pressure, and the quantity in its reservoir.
#pragma once

#include "module/catalogue.h"
#include "module/needles.h"

namespace tarnvale {

inline constexpr i32 hydraulic_pressure_full_scale = 14500000;
inline constexpr i32 hydraulic_quantity_full = 16384, hydraulic_quantity_full_scale = 20000;

constexpr Row hydraulic_pressure(u32 token, PanelPoint at, const Scale<2>& scale) {
  return needle("Hydraulic pressure", 10320, at, {6, 5}, scale,
                shows_within<0, hydraulic_pressure_full_scale>)
      .from(token);
}

constexpr Row hydraulic_quantity(u32 token, PanelPoint at, const Scale<3>& scale) {
  return needle("Hydraulic quantity", 24070, at, {6, 5}, scale,
                shows_within<0, hydraulic_quantity_full_scale>)
      .from(token);
}

}  // namespace tarnvale
