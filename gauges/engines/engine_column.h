/// One engine's column of three small dials: oil pressure, oil temperature, fuel pressure.
#pragma once

#include "gauges/engines/engine_dials.h"

namespace tarnvale {

struct EngineColumn {
  i32 overlay;          ///< bitmaps of the instrument lighting
  u32 oil_pressure;     ///< token
  u32 oil_temperature;  ///< token
  ValueRoutine fuel_pressure;
};

inline constexpr i32 oil_pressure_full_scale = 32768;
inline constexpr i32 oil_temperature_lowest = -4681, oil_temperature_full_scale = 16384;

inline constexpr Scale<2> oil_pressure_scale{{{12, 128}, 0}, {{62, 128}, oil_pressure_full_scale}};
inline constexpr Scale<3> oil_temperature_scale{
    {{12, 206}, oil_temperature_lowest}, {{8, 178}, 0}, {{62, 206}, oil_temperature_full_scale}};
inline constexpr Scale<3> fuel_pressure_scale{{{11, 282}, 0}, {{8, 254}, 400}, {{61, 282}, 1700}};

constexpr Rows<4> engine_column_rows(const EngineColumn& engine) {
  constexpr i32 pointer = 10430;
  constexpr PanelPoint pivot{7, 7};
  return {
      lighting_overlay(engine.overlay),
      needle("Oil pressure", pointer, {37, 111}, pivot, oil_pressure_scale,
             shows_within<0, oil_pressure_full_scale>)
          .from(engine.oil_pressure),
      needle("Oil temperature", pointer, {37, 188}, pivot, oil_temperature_scale,
             shows_within<oil_temperature_lowest, oil_temperature_full_scale>)
          .from(engine.oil_temperature),
      needle("Fuel pressure", pointer, {37, 265}, pivot, fuel_pressure_scale, engine.fuel_pressure),
  };
}

}  // namespace tarnvale
