/// The land that the world is covered with: one square of fields, woods, water, roads and villages,
/// laid side by side without end, and the grain that everything on the ground has.
#pragma once

#include <cstdint>
#include <vector>

#include "host/outside/span.h"

namespace host::outside {

/// A texture and its smaller copies, each half the side of the one before.
class TextureLevels {
 public:
  TextureLevels(unsigned bits, double texel_m, std::vector<std::uint32_t> largest,
                std::uint32_t (*mean)(std::uint32_t, std::uint32_t, std::uint32_t, std::uint32_t));

  double texel_m() const { return texel_m_; }
  unsigned count() const { return static_cast<unsigned>(levels_.size()); }
  Texture level(unsigned index) const { return {levels_[index].data(), bits_ - index}; }

  /// Applies a change to every level: `change(texels, bits)`.
  template <typename Change>
  void each_level(Change change) {
    for (unsigned i = 0; i < count(); ++i) change(levels_[i], bits_ - i);
  }

 private:
  unsigned bits_;
  double texel_m_;
  std::vector<std::vector<std::uint32_t>> levels_;
};

/// A lamp in a village: metres north and east of the square's corner.
struct VillageLamp {
  float north_m, east_m;
};

struct LandMap {
  TextureLevels land;   ///< 0x00RRGGBB by noon
  TextureLevels grain;  ///< as span.h reads it; its texels are a metre where `texel_m` says 1
  std::vector<VillageLamp> lamps;
  double side_m;  ///< of the square
};

/// Made when it is first asked for, which takes some tenths of a second.
const LandMap& land_map();

}  // namespace host::outside
