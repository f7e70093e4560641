/// Flat polygons of the world in the picture.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "host/outside/coverage.h"
#include "host/outside/ground.h"
#include "host/outside/point_of_light.h"

namespace host::outside {

/// Paints flat polygons of the world.
class SurfacePainter {
 public:
  /// Onto `picture`, in the camera's sight. `coverage` has the picture's size.
  SurfacePainter(Picture picture, const Camera& camera, Coverage& coverage)
      : picture_(picture), camera_(camera), coverage_(coverage) {}

  /// A convex polygon by its corners in the world, laid over what is there: an opaque colour.
  void paint(std::span<const Vector> corners, std::uint32_t colour);

 private:
  std::span<const PicturePoint> projected(std::span<const Vector> corners);
  void cut(const Vector& plane);

  Picture picture_;
  const Camera& camera_;
  Coverage& coverage_;
  std::vector<Vector> polygon_, rest_;
  std::vector<PicturePoint> points_;
};

/// A colour in the picture's own form.
std::uint32_t packed(const Rgb& colour);

}  // namespace host::outside
