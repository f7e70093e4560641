/// How a painted picture looks at night, under the cockpit's panel lighting.
#pragma once

#include <cstdint>

#include "host/loader/bitmap.h"

namespace host {

/// A premultiplied colour by night: paint recedes to less than half, the light legends stay and turn
/// a little warm, as lit from within.
std::uint32_t by_night(std::uint32_t colour);

/// The same on a lever, a guard or a button: its strongest colour says whether a lens or a word shines there.
std::uint32_t part_by_night(std::uint32_t colour);

/// Every pixel by night, as `of` says.
void dim(Bitmap& bitmap, std::uint32_t (*of)(std::uint32_t));

}  // namespace host
