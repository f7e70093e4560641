/// Points of light, added to what is there.
#pragma once

#include <cstddef>
#include <cstdint>

#include "host/outside/camera.h"
#include "host/outside/daylight.h"

namespace host::outside {

/// The pixels of the view.
struct Picture {
  std::uint32_t* pixels;
  std::ptrdiff_t stride;
  int width, height;
};

/// A disc with soft edges of that radius in pixels, at least 0.8; what reaches beyond 255 is white
/// glare.
void add_light(Picture picture, PicturePoint at, double radius_px, const Rgb& colour,
               double brightness);

}  // namespace host::outside
