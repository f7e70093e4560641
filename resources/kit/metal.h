/// Painted plates and what holds them: the enamel with its grain and wear, screws, sunk wells.
#pragma once

#include "resources/kit/paint.h"

namespace artwork {

/// A whole gauge background: the painted plate with seam, bevel, grain and a little wear. Plates of
/// one panel stand side by side, so every plate has the same paint and the same seam.
void painted_plate(const Canvas& canvas);

/// A cross-head screw. `turned` degrees is how far the fitter left its slot from upright.
void screw(const Canvas& canvas, Point centre, double radius, double turned);

/// Screws in the four corners, `inset` from the edges.
void corner_screws(const Canvas& canvas, double inset = 7.5, double radius = 3.6);

/// A field sunk into the plate, for controls that stand in a recess.
void sunk_field(const Canvas& canvas, Box box, double corner, Colour floor);

/// A thin engraved line with a dark and a light edge, as legends have.
void engraved_line(const Canvas& canvas, Point from, Point to);

/// A bracket that ties controls to one legend: a line with two ticks of `rise` upward.
void engraved_bracket(const Canvas& canvas, Point from, double length, double rise);

/// Where fingers and levers have polished the paint.
void polish(const Canvas& canvas, Point centre, double radius);

}  // namespace artwork
