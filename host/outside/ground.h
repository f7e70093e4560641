/// The ground below the eye: where each pixel of it lies, and how light and haze change its colour.
#pragma once

#include "host/outside/camera.h"
#include "host/outside/daylight.h"
#include "host/outside/land_map.h"
#include "host/outside/span.h"

namespace host::outside {

/// What haze leaves of a colour and adds to it.
struct Haze {
  double kept;  ///< 0 to 1
  Rgb added;
};

/// Light and air between the eye and what it sees.
class Air {
 public:
  Air(const Sight& sight, const Camera& camera, const Daylight& light);

  Haze haze(double distance_m) const;

  /// The light on something: the day's and, in front of the nose, the landing lights'.
  Rgb light_on(const Vector& from_eye_m) const;

  /// A colour by noon as it looks from here.
  Rgb seen(const Rgb& colour, const Vector& from_eye_m) const;

  const Daylight& daylight() const { return light_; }

 private:
  Daylight light_;
  Vector nose_;
  bool landing_lights_;
  double thinning_per_m_;
};

/// Level ground below the eye.
class Ground {
 public:
  Ground(const Camera& camera, const Air& air, double elevation_m);

  /// Paints the land over all that lies below the horizon, under `cover`: as many pixels as the picture
  /// has, row by row. Clears the cover.
  void paint(std::uint32_t* pixels, std::ptrdiff_t stride, std::uint32_t* cover) const;

 private:
  struct Node;
  struct Frame;

  Node node(double x, double y) const;
  void paint_row(std::uint32_t* row, std::uint32_t* cover, int y, Columns columns) const;
  void shade(const Frame& frame, const std::uint32_t* cover, SpanPixels& out) const;
  void put(const SpanPixels& span, std::uint32_t* row, int x, int y, int count) const;

  const Camera& camera_;
  const Air& air_;
  const LandMap& map_;
  double height_m_;
};

}  // namespace host::outside
