/// Lamps as data. Each row is a dark image and one for each way to be lit.
#pragma once

#include <string_view>

#include "resources/kit/geometry.h"
#include "resources/kit/styles.h"
#include "resources/rows/list.h"

namespace artwork {

/// The colours in which a lamp can be lit, in the order of its images. Dark, it has the first's tint.
struct Colours {
  constexpr Colours(Colour only) : list{only} {}
  constexpr Colours(Colour first, Colour second) : list{first, second} {}
  List<Colour, 2> list;
};

namespace lens {
inline constexpr Colour green = palette::lamp_green;
inline constexpr Colour amber = palette::lamp_amber;
inline constexpr Colour red = palette::lamp_red;
inline constexpr Colour white = palette::lamp_white;
inline constexpr Colour blue = palette::lamp_blue;
}  // namespace lens

/// How a rectangular lamp is set into its plate.
enum class Setting { frame, button, cap, flush };

struct Lamp {
  Colours colours;
  std::string_view text = {};
  double text_size = legend_size;
  Setting setting = Setting::frame;
  bool lit_first = false;  ///< of one colour: lit, dark
  Size size = {};          ///< where it is smaller than its picture, in whose middle it then stands
};

/// Lenses above one another in one frame; each image after the dark one lights the next of them.
struct LensStack {
  List<Lens, 3> lenses;
};

/// A domed light in a turned ring.
struct RoundLight {
  Colour colour;
  double radius;
  double centre;           ///< across and down
  bool lit_first = false;  ///< a press-to-test light: lit, dark
};

}  // namespace artwork
