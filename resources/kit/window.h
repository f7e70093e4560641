/// Windows in plates and faces with figures behind them, and buttons without a picture of their own.
#pragma once

#include "resources/kit/paint.h"
#include "resources/kit/styles.h"

namespace artwork {

/// A dark glass in a thin frame. `box` is the glass.
void display_window(const Canvas& canvas, Box box);

/// A framed opening through which what lies behind the plate shows; its edge catches the lamps.
void opening(const Canvas& canvas, Point centre, Size size, double corner,
             Lighting lighting = Lighting::off);

/// The shade that the edge of such an opening casts on what lies behind it, and the light on its far side.
void opening_shade(const Canvas& canvas, Point centre, Size size, double corner);

/// A dark frame let into a face, in which drums stand edge to edge. `box` is the drums' room.
void drum_frame(const Canvas& canvas, Box box, Lighting lighting);

/// Drums are round: they darken toward the edges of their window.
void drum_shade(const Canvas& canvas, Box box);

/// A flag that stands before drums that cannot be trusted: stripes over white.
void striped_flag(const Canvas& canvas, Box box, Colour stripes);

/// What shows on a plate over an opening: such a plate has no half-clear pixels.
void fill_hard(const Canvas& canvas, const Path& path, Colour colour);

/// A round push button in a turned ring that is part of the plate.
void fixed_button(const Canvas& canvas, Point centre, double radius, Colour cap);

}  // namespace artwork
