/// Dials: a black face under glass in a bezel, its scale printed where the needle will point.
#pragma once

#include <initializer_list>
#include <string_view>

#include "resources/kit/legend.h"
#include "resources/kit/records.h"

namespace artwork {

/// The lamps behind a dial's bezel.
enum class Lighting { off, dim, bright };

/// A round instrument: `radius` is that of its bezel's outer edge.
struct Dial {
  Point centre;
  double radius;
  double bezel = 3.4;  ///< width of the bezel

  double face() const { return radius - bezel; }
};

/// The bezel and the empty face, with what its lamps throw on it.
void dial(const Canvas& canvas, const Dial& dial, Lighting lighting);
/// The glass over a finished face.
void dial_glass(const Canvas& canvas, const Dial& dial);
/// The boss about which a needle turns.
void dial_hub(const Canvas& canvas, Point centre, double radius);

/// White print on a face: bright under its own lamps, and glowing a little.
void inscribe(const Canvas& canvas, Lighting lighting, const std::function<void(Colour ink)>& draw);

/// A whole instrument: dial, print, the boss under the needle (none for 0) and glass.
void meter(const Canvas& canvas, const Dial& dial, Lighting lighting,
           const std::function<void(Colour ink)>& print, double boss = 4.6);

/// Marks from `from` to `to`, one each `step`, between two radii.
struct Marks {
  double from, to, step;
  double inner, outer;
  double width = 1;
};

/// A coloured band along the scale.
struct Band {
  double from, to;
  double radius, width;
  Colour colour;
};

/// A figure beside its mark.
struct Numeral {
  double value;
  std::string_view text;
  double aside = 0;  ///< degrees clockwise from its mark, to stand clear of a needle at rest
};

/// One scale of a dial, about its needle.
class Scale {
 public:
  Scale(const Canvas& canvas, const Element& needle, Colour ink);

  Point centre() const { return centre_; }
  double angle(double value) const { return needle_angle(needle_, value); }
  void marks(const Marks& marks) const;
  void band(const Band& band) const;
  /// The line on which the marks stand.
  void arc(double from, double to, double radius, double width) const;
  /// Figures inside the circle of `radius`, none nearer to it than its own reach.
  void numerals(std::initializer_list<Numeral> figures, double radius, double size) const;

 private:
  const Canvas& canvas_;
  const Element& needle_;
  Point centre_;
  Colour ink_;
};

/// The overlay picture of a face: what `draw` changes when its lamps are lit. Everything that is the
/// same by day stays transparent, so that the overlay covers no more than the lamps reach.
void lit_overlay(Canvas& canvas, int image, const std::function<void(const Canvas&, Lighting)>& draw);

/// The drawing routines of a plate with instruments, by day and as the overlay of its lighting.
template <void (*face)(const Canvas&, Lighting)>
void plate_by_day(Canvas& canvas, int) {
  face(canvas, Lighting::off);
}
template <void (*face)(const Canvas&, Lighting)>
void plate_lit(Canvas& canvas, int image) {
  lit_overlay(canvas, image, face);
}

}  // namespace artwork
