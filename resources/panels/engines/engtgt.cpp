/// Turbine gas temperatures: a dial for each engine, whose needle counts quarters of a degree.
#include "resources/art.h"

namespace artwork::panels::engtgt {

constexpr Print hundreds_celsius[] = {
    Band{2, 5.45, palette::range_green},
    Band{5.45, 5.7, palette::range_amber},
    Band{6, 6.6, palette::range_red},
    Marks{0, 9, 1, 5.2, 1.5},
    Marks{0, 9.5, 0.5, 3.8, 1},
    Marks{4, 6, 0.1, 2.4, 0.6},
    Limit{6},
    Figures{{0, 2, 4, 5, 6, 8}, 6.4, 8.5},
};

constexpr Dial gas_temperature(std::string_view needle, std::string_view name) {
  return {.radius = 33,
          .scales = {{.needle = needle, .print = hundreds_celsius, .per = 400, .rim = 28.4}},
          .words = {{name, {0, 13}, 8}, {"\u00b0C\u00d7100", {0, 22}}},
          .bezel = 3};
}

constexpr Item items[] = {
    Screw{{74.5, 8}, 20, 3.2},
    Screw{{74.5, -8}, 81, 3.2},
    gas_temperature("engine_1_gas_temperature", "TGT 1"),
    gas_temperature("engine_2_gas_temperature", "TGT 2"),
};

constexpr Art art[] = {
    plate(72, items),
    needle_art("engine_1_gas_temperature", {.length = 25.5, .tail = 4, .half_width = 1.6}),
};

constinit Unit unit{"Engtgt", art};

}  // namespace artwork::panels::engtgt
