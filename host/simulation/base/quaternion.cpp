#include "host/simulation/base/quaternion.h"

#include <algorithm>

namespace host::simulation {
namespace {

Quaternion product(const Quaternion& a, const Quaternion& b) {
  return {a.w * b.w - a.x * b.x - a.y * b.y - a.z * b.z, a.w * b.x + a.x * b.w + a.y * b.z - a.z * b.y,
          a.w * b.y - a.x * b.z + a.y * b.w + a.z * b.x, a.w * b.z + a.x * b.y - a.y * b.x + a.z * b.w};
}

Vector rotated(const Quaternion& q, const Vector& v) {
  const Vector axis{q.x, q.y, q.z};
  const Vector twice = cross(axis, v) * 2.0;
  return v + twice * q.w + cross(axis, twice);
}

}  // namespace

Quaternion Quaternion::from(const EulerAngles& angles) {
  const auto about = [](double angle_rad, const Vector& axis) {
    const double half_sine = std::sin(0.5 * angle_rad);
    return Quaternion{std::cos(0.5 * angle_rad), axis.x * half_sine, axis.y * half_sine,
                      axis.z * half_sine};
  };
  return product(product(about(angles.heading_rad, {0, 0, 1}), about(angles.pitch_rad, {0, 1, 0})),
                 about(angles.bank_rad, {1, 0, 0}));
}

EulerAngles Quaternion::angles() const {
  return {std::atan2(2.0 * (w * x + y * z), 1.0 - 2.0 * (x * x + y * y)),
          std::asin(std::clamp(2.0 * (w * y - z * x), -1.0, 1.0)),
          std::atan2(2.0 * (w * z + x * y), 1.0 - 2.0 * (y * y + z * z))};
}

Vector Quaternion::to_earth(const Vector& body) const { return rotated(*this, body); }

Vector Quaternion::to_body(const Vector& earth) const { return rotated({w, -x, -y, -z}, earth); }

Quaternion Quaternion::turned(const Vector& rate_rad_per_s, double dt_s) const {
  const Vector half = rate_rad_per_s * (0.5 * dt_s);
  Quaternion q = product(*this, {1.0, half.x, half.y, half.z});
  const double norm = std::sqrt(q.w * q.w + q.x * q.x + q.y * q.y + q.z * q.z);
  return {q.w / norm, q.x / norm, q.y / norm, q.z / norm};
}

}  // namespace host::simulation
