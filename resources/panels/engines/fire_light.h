/// The red lights of the fire warning strips.
#pragma once

#include "resources/art.h"

namespace artwork::panels {

/// As large on either side as in the middle, whatever its picture.
constexpr Art fire_light_art(Of of, Size picture, std::string_view text) {
  return lamp_art(of, picture,
                  {.colours = lens::red, .text = text, .text_size = 9.5, .size = {82, 22}});
}

}  // namespace artwork::panels
