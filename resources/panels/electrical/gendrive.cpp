/// Generator drive meters: the oil temperature of the constant-speed drives.
#include "resources/art.h"

namespace artwork::panels::gendrive {

constexpr Print celsius[] = {
    Band{60, 110, palette::range_green},
    Band{130, 140, palette::range_red},
    Marks{0, 140, 20, 5, 1.4},
    Marks{0, 140, 10, 2.6, 0.7},
    Figures{{{0, -24}, 40, 100, {140, 14}}, 6.5, 7.5},
};

constexpr Dial oil(std::string_view needle, std::string_view drive) {
  return {.radius = 33.5,
          .scales = {{.needle = needle, .print = celsius, .per = 16384.0 / 140, .rim = 27.6}},
          .words = {{drive, {0, 11}, 8}, {"OIL \u00b0C", {0, 20}}}};
}

constexpr Item items[] = {
    Screw{{82, 9}, 20, 3.2},
    Screw{{82, -9}, 65, 3.2},
    oil("drive_1_oil_temperature", "DRIVE 1"),
    oil("drive_2_oil_temperature", "DRIVE 2"),
};

constexpr Art art[] = {
    plate(74, items),
    needle_art("drive_1_oil_temperature", {.length = 25, .tail = 3}),
};

constinit Unit unit{"Gendrive", art};

}  // namespace artwork::panels::gendrive
