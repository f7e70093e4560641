/// Dials: a black face under glass in a bezel, with lamps behind it.
#pragma once

#include <functional>

#include "resources/kit/paint.h"
#include "resources/kit/styles.h"

namespace artwork {

/// How strongly the lamps shine.
double power(Lighting lighting);

/// A round instrument: `radius` is that of its bezel's outer edge.
struct DialFace {
  Point centre;
  double radius;
  double bezel = 3.4;  ///< width of the bezel

  double face() const { return radius - bezel; }
};

/// The bezel and the empty face, with what its lamps throw on it.
void dial(const Canvas& canvas, const DialFace& dial, Lighting lighting);
/// A rectangular one: bezel and empty face within `box`.
void case_face(const Canvas& canvas, Box box, double corner, Lighting lighting);
/// The glass over a finished face.
void dial_glass(const Canvas& canvas, const DialFace& dial);
/// A curve of a circle, in degrees clockwise from the right.
Path ring(Point centre, double radius, double from, double to);

/// The boss about which a needle turns.
void dial_hub(const Canvas& canvas, Point centre, double radius);

/// White print on a face: bright under its own lamps, and glowing a little.
void inscribe(const Canvas& canvas, Lighting lighting, const std::function<void(Colour ink)>& draw);

/// A whole instrument: face, print, the boss under the needle (none for 0) and glass.
void meter(const Canvas& canvas, const DialFace& dial, Lighting lighting,
           const std::function<void(Colour ink)>& print, double boss);

/// The overlay picture of a face: what `draw` changes when its lamps are lit. Everything that is the
/// same by day stays transparent, so that the overlay covers no more than the lamps reach.
void lit_overlay(Canvas& canvas, int image, const std::function<void(const Canvas&, Lighting)>& draw);

}  // namespace artwork
