/// Vectors of three. Two frames use them, both right-handed: the earth's (north, east, down) and the
/// aircraft's (forward, right, down).
#pragma once

#include <cmath>

namespace host::simulation {

struct Vector {
  double x = 0.0, y = 0.0, z = 0.0;

  constexpr Vector operator+(const Vector& b) const { return {x + b.x, y + b.y, z + b.z}; }
  constexpr Vector operator-(const Vector& b) const { return {x - b.x, y - b.y, z - b.z}; }
  constexpr Vector operator*(double by) const { return {x * by, y * by, z * by}; }
  constexpr Vector& operator+=(const Vector& b) { return *this = *this + b; }
  constexpr bool operator==(const Vector&) const = default;
};

constexpr double dot(const Vector& a, const Vector& b) { return a.x * b.x + a.y * b.y + a.z * b.z; }

constexpr Vector cross(const Vector& a, const Vector& b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

inline double length(const Vector& a) { return std::sqrt(dot(a, a)); }

}  // namespace host::simulation
