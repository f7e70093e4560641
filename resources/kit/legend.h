/// Words and figures: engraved into plates, printed on dials and lenses.
#pragma once

#include <string>
#include <string_view>

#include "resources/kit/paint.h"

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

/// Whether a font family is installed; without it, words would take another one's shapes.
bool has_font(const char* family);

/// Width and height (of the capitals) of one line, in gauge pixels.
struct TextExtent {
  double width;
  double height;
};
TextExtent text_extent(const Canvas& canvas, std::string_view text, const Lettering& lettering);

/// Flat text. Lines are parted by '\n' and centred about the place.
void print(const Canvas& canvas, Point at, std::string_view text, const Lettering& lettering,
           Anchor anchor = Anchor::centre);

/// Text cut into the plate and filled with paint: a dark edge above, a light one below.
void engrave(const Canvas& canvas, Point at, std::string_view text, const Lettering& lettering = {},
             Anchor anchor = Anchor::centre);

/// The distance between the middles of two lines.
constexpr double line_pitch(const Lettering& lettering) { return lettering.size * 1.06; }

}  // namespace artwork
