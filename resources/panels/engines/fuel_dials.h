/// The dials of the tanks' quantities.
#pragma once

#include "resources/art.h"

namespace artwork::panels {

constexpr Dial tank_dial(std::string_view needle, std::span<const Print> hundreds,
                         std::string_view tank) {
  return {.radius = 32.5,
          .scales = {{.needle = needle, .print = hundreds, .per = 100, .rim = 28}},
          .words = {{tank, {0, 13.5}, 10}},
          .bezel = 3};
}

}  // namespace artwork::panels
