/// The size of every gauge's plate. A plate is as wide in pixels as its gauge in millimetres, and as
/// high as its controls need.
#pragma once

#include <span>
#include <string_view>

#include "resources/kit/canvas.h"

namespace artwork {

struct Background {
  int id;
  Size size;
  std::string_view gauges;  ///< that stand on it
};

/// All backgrounds, ascending by id.
std::span<const Background> backgrounds();

/// The size of background `id`; {0, 0} if there is none.
Size background_size(int id);

}  // namespace artwork
