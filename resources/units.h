/// The units of artwork, one a gauge, and what gauges share.
#pragma once

#include <span>
#include <string_view>

#include "resources/art.h"

namespace artwork {

/// A unit and the name of its file, which is also that of its object.
struct NamedUnit {
  std::string_view file;
  const Unit& unit;
};

/// All units that the build has found in `panels/`.
std::span<const NamedUnit> units();

}  // namespace artwork
