/// The dials of the tanks' quantities.
#pragma once

#include "resources/art.h"

namespace artwork::panels {

constexpr Dial tank_dial(std::string_view needle, std::span<const Print> hundreds,
                         std::string_view tank) {
  return {.radius = 32.5,
          .scales = {{.needle = needle, .print = hundreds, .per = 100, .rim = 28}},
          .words = {{tank, {0, -8.8}}, {"\u00d7100", {0, 12}, 6.5}, {"GAL", {0, 20.5}, 6.5}},
          .bezel = 3};
}

}  // namespace artwork::panels
