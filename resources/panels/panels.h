/// The artwork of every panel, one unit a gauge. A unit draws its plate, its own pictures and the
/// overlay of its instrument lighting; what many panels share is in shared/. A new unit gets a line
/// in panels.inc.
#pragma once

#include <vector>

#include "resources/art.h"

namespace artwork {

#define ART(unit) extern const std::span<const Art> unit;
#include "resources/panels/panels.inc"
#undef ART

/// All rows, unit by unit.
std::vector<std::span<const Art>> all_art();

}  // namespace artwork
