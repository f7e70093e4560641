/// What attitude and navigation instruments share: bank scales, dots, symbols, bars and wedges.
#pragma once

#include <initializer_list>

#include "resources/kit/paint.h"
#include "resources/kit/styles.h"

namespace artwork {

/// The marks of bank about a ball, from `radius` outward; the long ones every 30 degrees.
void bank_scale(const Canvas& canvas, Point centre, double radius, double length, Colour ink);

/// The aircraft as its pilot sees it from behind: two wings with a drop at their inner ends, a dot between.
struct AircraftSymbol {
  double from, to;  ///< the wings, from the middle
  double thick, drop;
};

/// The paint of what stands fixed before a ball or a card, as the lamps behind the bezel light it.
Colour symbol_paint(Lighting lighting);

/// It stands on the plate over an opening, so that its edges are hard.
void aircraft_symbol(const Canvas& canvas, Point centre, const AircraftSymbol& symbol, Colour paint);

/// The dots of a deviation scale, `pitch` apart and two to each side, with a line in the middle.
void deviation_dots(const Canvas& canvas, Point middle, double pitch, Colour ink);

/// A bar in the colour of what is commanded or selected.
void command_bar(const Canvas& canvas, Box box, Colour colour);

/// A pointer that fills its box, with its tip on the left (-1) or on the right (1).
void side_pointer(const Canvas& canvas, Box box, int tip, Colour colour);

/// A polygon of solid paint with a dark edge.
void edged(const Canvas& canvas, std::initializer_list<Point> corners, Colour colour);

}  // namespace artwork
