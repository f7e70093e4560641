#include "host/drawing/element_painter.h"

namespace host {

std::unique_ptr<ElementPainter> make_element_painter(const Element& element, Pictures& pictures,
                                                     BitmapUse use, Light at_night,
                                                     const Openings* openings) {
  switch (element.kind) {
    case ELEMENT_STATIC_IMAGE: return make_still_painter(element, pictures, use, at_night);
    case ELEMENT_ICON: return make_still_painter(element, pictures, BitmapUse::image, at_night);
    case ELEMENT_NEEDLE: return make_needle_painter(element, pictures);
    case ELEMENT_SLIDER: return make_slider_painter(element, pictures);
    case ELEMENT_MOVING_IMAGE: return make_moving_image_painter(element, pictures);
    case ELEMENT_SPRITE: return make_sprite_painter(element, pictures, openings);
    case ELEMENT_STRING: return make_string_painter(element, pictures.scale());
  }
  return nullptr;
}

}  // namespace host
