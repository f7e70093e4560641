/// One element's picture: what it shows, reduced to whole numbers, and how that is drawn.
#pragma once

#include <memory>

#include "host/drawing/pictures.h"
#include "host/gauge/element_state.h"
#include "interface/panel_interface.h"

namespace host {

/// What an element shows. Equal looks of one element draw equal pixels. What the numbers count is
/// each kind's own affair; the finest step moves no part by more than 1/16 canvas pixel.
struct Look {
  bool shown = false;
  int a = 0;
  int b = 0;
  int turn = 0;
  Light light = Light::day;
  bool operator==(const Look&) const = default;
};

/// Two frames of an element and the time between them, 0 to 1.
struct Moment {
  const ElementState& before;
  const ElementState& now;
  double blend;
  Light light;
};

class ElementPainter {
 public:
  virtual ~ElementPainter() = default;

  /// What a drawn element shows. Values that are not numbers show nothing.
  virtual Look look(const Moment& moment) = 0;

  /// The canvas pixels that a shown look may touch, relative to the gauge.
  virtual Rect bounds(const Look& look) const = 0;

  /// Draws a shown look as far as it lies in `clip`.
  virtual void paint(Surface target, const Rect& clip, const Look& look) const = 0;

  /// Whether its look changes often by its nature; what lies below it is then kept composed.
  virtual bool moves() const = 0;
};

/// Null for an element that can never show anything. All that is handed over must outlive it.
/// `use` is how a static image is read; every other kind is an image. `at_night` is under what light a still
/// picture is seen by night. Sprites are drawn in the `openings` of the face only; null where it has none.
std::unique_ptr<ElementPainter> make_element_painter(const Element& element, Pictures& pictures,
                                                     BitmapUse use, Light at_night,
                                                     const Openings* openings);

std::unique_ptr<ElementPainter> make_still_painter(const Element& element, Pictures& pictures,
                                                   BitmapUse use, Light at_night);
std::unique_ptr<ElementPainter> make_needle_painter(const Element& element, Pictures& pictures);
std::unique_ptr<ElementPainter> make_slider_painter(const Element& element, Pictures& pictures);
std::unique_ptr<ElementPainter> make_moving_image_painter(const Element& element, Pictures& pictures);
std::unique_ptr<ElementPainter> make_sprite_painter(const Element& element, Pictures& pictures,
                                                    const Openings* openings);
std::unique_ptr<ElementPainter> make_string_painter(const Element& element, Scale scale);

}  // namespace host
