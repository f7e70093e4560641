/// How parts can look, for the rows that say it and the code that draws it.
#pragma once

#include <string_view>

#include "resources/kit/palette.h"

namespace artwork {

/// Which point of a line of text stands at the given place. Vertically it is always the middle of
/// the capitals, so that words line up with the parts they name.
enum class Anchor { left, centre, right };

/// How text looks. `size` is the font's, in gauge pixels; capitals are about 0.7 of it high.
struct Lettering {
  double size = 8;
  Colour colour = palette::legend;
  const char* family = "B612";
  bool bold = true;
};

/// The sizes on the cockpit's grid.
inline constexpr double legend_size = 8;   ///< names of controls and positions
inline constexpr double heading_size = 9;  ///< names of panels and systems

/// The distance between the middles of two lines.
constexpr double line_pitch(const Lettering& lettering) { return lettering.size * 1.06; }

/// What a lens says, and how.
struct Lens {
  Colour colour = {};
  std::string_view text = "";
  double text_size = legend_size;
};

/// Where a toggle lever stands.
enum class Throw { down, centre, up };

/// The lamps behind the bezels of dials.
enum class Lighting { off, dim, bright };

}  // namespace artwork
