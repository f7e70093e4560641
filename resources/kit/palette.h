/// One palette for the whole cockpit: every colour that a part is painted with has its name here.
#pragma once

#include <cstdint>

namespace artwork {

/// A colour without premultiplication, each part 0 to 1.
struct Colour {
  double red = 0;
  double green = 0;
  double blue = 0;
  double alpha = 1;
};

constexpr Colour rgb(std::uint32_t hex, double alpha = 1) {
  return {((hex >> 16) & 0xFF) / 255.0, ((hex >> 8) & 0xFF) / 255.0, (hex & 0xFF) / 255.0, alpha};
}

constexpr Colour faded(Colour colour, double alpha) {
  return {colour.red, colour.green, colour.blue, colour.alpha * alpha};
}

/// `t` of `b` in `a`.
constexpr Colour mixed(Colour a, Colour b, double t) {
  return {a.red + (b.red - a.red) * t, a.green + (b.green - a.green) * t,
          a.blue + (b.blue - a.blue) * t, a.alpha + (b.alpha - a.alpha) * t};
}

namespace palette {

inline constexpr Colour black = rgb(0x000000);
inline constexpr Colour white = rgb(0xFFFFFF);

// Painted plates: grey-blue enamel over light alloy.
inline constexpr Colour plate_light = rgb(0x64717C);
inline constexpr Colour plate = rgb(0x56626D);
inline constexpr Colour plate_dark = rgb(0x48535D);
inline constexpr Colour plate_seam = rgb(0x15191C);
inline constexpr Colour alloy = rgb(0xA9B2B8);

// Legends and printed scales.
inline constexpr Colour legend = rgb(0xE9E6D9);
inline constexpr Colour legend_amber = rgb(0xE9B24A);
inline constexpr Colour legend_red = rgb(0xE0503C);
inline constexpr Colour mark = rgb(0xEDEBE0);
inline constexpr Colour range_green = rgb(0x3FA65A);
inline constexpr Colour range_amber = rgb(0xE3A22C);
inline constexpr Colour range_red = rgb(0xD2382C);

// Turned and cast metal.
inline constexpr Colour steel_bright = rgb(0xF2F4F5);
inline constexpr Colour steel_light = rgb(0xC3C8CC);
inline constexpr Colour steel = rgb(0x878E94);
inline constexpr Colour steel_dark = rgb(0x3C4247);
inline constexpr Colour steel_deep = rgb(0x1D2124);

// Moulded black: knobs, frames, bezels, wells.
inline constexpr Colour mould_light = rgb(0x4A5056);
inline constexpr Colour mould = rgb(0x2A2E32);
inline constexpr Colour mould_dark = rgb(0x15181A);
inline constexpr Colour well = rgb(0x0B0D0E);

// Dials.
inline constexpr Colour face_light = rgb(0x1D2022);
inline constexpr Colour face_dark = rgb(0x0C0E0F);

// Attitude balls.
inline constexpr Colour sky_light = rgb(0x8CC3EA);
inline constexpr Colour sky = rgb(0x3F86C8);
inline constexpr Colour sky_dark = rgb(0x1C4478);
inline constexpr Colour earth_light = rgb(0xB07C48);
inline constexpr Colour earth = rgb(0x83552B);
inline constexpr Colour earth_dark = rgb(0x442A14);
inline constexpr Colour symbol = rgb(0xFFC02E);    ///< the aircraft's own symbol
inline constexpr Colour command = rgb(0xF9E04A);   ///< what the flight director commands
inline constexpr Colour flag_red = rgb(0xE4381F);  ///< warning flags
inline constexpr Colour bug = rgb(0xFF9A2E);

// Guards.
inline constexpr Colour guard_light = rgb(0xDE5A49);
inline constexpr Colour guard = rgb(0xB62C22);
inline constexpr Colour guard_dark = rgb(0x6A130E);

// Lamp lenses, as they glow.
inline constexpr Colour lamp_green = rgb(0x45D769);
inline constexpr Colour lamp_amber = rgb(0xFFB52E);
inline constexpr Colour lamp_red = rgb(0xFF4A36);
inline constexpr Colour lamp_white = rgb(0xF3F0E2);
inline constexpr Colour lamp_blue = rgb(0x5CB6F5);

// Instrument lighting: filament lamps behind the bezels.
inline constexpr Colour filament = rgb(0xFFD59A);
inline constexpr Colour filament_wash = rgb(0xFF9F45);

}  // namespace palette
}  // namespace artwork
