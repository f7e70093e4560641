/// Windows in plates and faces with figures behind them, and buttons without a picture of their own.
#pragma once

#include "resources/kit/paint.h"

namespace artwork {

/// A dark glass in a thin frame. `box` is the glass.
void display_window(const Canvas& canvas, Box box);

/// A framed opening through which what lies behind the plate shows.
void opening(const Canvas& canvas, Point centre, Size size, double corner);

/// A round push button in a turned ring that is part of the plate.
void fixed_button(const Canvas& canvas, Point centre, double radius, Colour cap);

}  // namespace artwork
