/// Words and figures: engraved into plates, printed on dials and lenses.
#pragma once

#include <string>
#include <string_view>

#include "resources/kit/paint.h"
#include "resources/kit/styles.h"

namespace artwork {

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

}  // namespace artwork
