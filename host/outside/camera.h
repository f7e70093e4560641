/// From the world to the picture and back. Camera axes: forward, right, down, as the aircraft's.
#pragma once

#include "host/outside/sight.h"

namespace host::outside {

using simulation::Vector;

/// A point of the picture in pixels, whole numbers at the pixels' corners.
struct PicturePoint {
  double x, y;
};

/// Columns of a row, the end not included.
struct Columns {
  int first, end;
};

class Camera {
 public:
  /// Shows what a windscreen of that shape shows: some 20 degrees of height, the line of flight a
  /// little above the middle, as wide as the picture is, but never more than 85 degrees.
  Camera(const Sight& sight, int width, int height);

  int width() const { return width_; }
  int height() const { return height_; }
  const Vector& eye_m() const { return eye_m_; }

  /// Pixels that a metre takes at a distance of a metre, in the picture's middle.
  double focal_px() const { return focal_px_; }

  /// The direction of a point of the picture in the earth's axes; as long as the picture is far away.
  Vector direction(double x, double y) const { return corner_ + right_ * x + down_ * y; }
  const Vector& step_right() const { return right_; }
  const Vector& step_down() const { return down_; }

  /// Where a point of the world lies: forward, right, down of the eye in metres.
  Vector in_camera(const Vector& point_m) const { return turned(point_m - eye_m_); }

  /// The same for a direction of the world.
  Vector turned(const Vector& direction) const {
    return {dot(direction, forward_), dot(direction, right_), dot(direction, down_)};
  }

  /// The picture's point of something in front of the eye.
  PicturePoint project(const Vector& in_camera) const {
    const double scale = focal_px_ / in_camera.x;
    return {centre_.x + in_camera.y * scale, centre_.y + in_camera.z * scale};
  }

  PicturePoint centre() const { return centre_; }

  /// How far a point of the picture is below the horizon (above it: negative), in pixels.
  double below_horizon(double x, double y) const {
    return (corner_.z + x * right_.z + y * down_.z) * per_dip_;
  }

  /// The columns of a row whose pixels show some sky, or some ground.
  Columns sky(int y) const { return beside_horizon(y, -1.0); }
  Columns ground(int y) const { return beside_horizon(y, 1.0); }

 private:
  int width_, height_;
  Vector eye_m_;
  Vector forward_, right_, down_;
  Vector corner_;  ///< direction of the upper left corner
  double focal_px_;
  PicturePoint centre_;
  double per_dip_;

  Columns beside_horizon(int y, double side) const;
};

}  // namespace host::outside
