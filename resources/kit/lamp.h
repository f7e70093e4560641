/// Lamps: coloured lenses in dark frames. A dark lens keeps its tint and can be read; a lit one has
/// a bright core, a darker rim, and spills its glow over the metal.
#pragma once

#include <string_view>

#include "resources/kit/legend.h"

namespace artwork {

/// Lamp pictures have this much room about their frame for shadow and glow.
inline constexpr double lamp_spill = 3;

/// The frame of a lamp within its picture.
constexpr Box lamp_frame(Box picture) { return picture.grown(-lamp_spill); }

/// A rectangular lamp that fills `picture`.
void lamp(const Canvas& canvas, Box picture, const Lens& lens, bool lit);

/// One lens of several in one frame; the frame is drawn once, before its lenses.
void lamp_housing(const Canvas& canvas, Box frame);
void lamp_lens(const Canvas& canvas, Box box, const Lens& lens, bool lit);

/// A domed press-to-test light in a turned ring.
void round_light(const Canvas& canvas, Point centre, double radius, Colour colour, bool lit);

/// A square push button with a legend and, when lit, a bar of light.
void push_button(const Canvas& canvas, Box picture, const Lens& lens, bool lit);

/// A push button whose whole cap is the lens: it stands out of its frame, with bevelled edges.
void lit_cap(const Canvas& canvas, Box picture, const Lens& lens, bool lit);

}  // namespace artwork
