/// AC load meters: both engines' generators and the APU's, in percent of their rating.
#include "resources/art.h"

namespace artwork::panels::acload {

constexpr Print percent[] = {
    Band{100, 125, palette::range_red},
    Marks{0, 125, 25, 5, 1.4},
    Marks{0, 125, 5, 2.6, 0.7},
    Figures{{{0, -24}, 50, 100}, 6, 7.5},
};

constexpr Dial load(std::string_view needle, std::string_view source) {
  return {.radius = 32.5,
          .scales = {{.needle = needle, .print = percent, .rim = 26.6}},
          .words = {{source, {0, 11}, 9}, {"% LOAD", {0, 20}}}};
}

constexpr Item items[] = {
    Screw{{84, 8}, 84},
    Screw{{84, -8}, 132},
    Screw{{165, 8}, 75},
    Screw{{165, -8}, 105},
    Screw{{198, 8}, 18},
    Screw{{198, -8}, 54},
    heading({181.5, 38}, "AC\nLOAD"),
    load("generator_1_load", "GEN 1"),
    load("generator_2_load", "GEN 2"),
    load("auxiliary_load", "APU"),
};

constexpr Art art[] = {
    plate(76, items),
    needle_art("generator_1_load", {.length = 24, .tail = 4}),
};

constinit Unit unit{"Acload", art};

}  // namespace artwork::panels::acload
