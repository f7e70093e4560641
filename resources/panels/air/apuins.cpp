/// APU instruments: temperature above, speed below.
#include "resources/art.h"

namespace artwork::panels::apuins {

constexpr Print percent[] = {
    Band{95, 105, palette::range_green},
    Band{110, 120, palette::range_red},
    Marks{0, 100, 10, 5, 1.3},
    Marks{100, 120, 5, 4, 1},
    Figures{{{0, -20}, 40, 80, 100}, 6, 8.5},
};
constexpr Print hundreds_celsius[] = {
    Band{2, 6.45, palette::range_green},
    Band{7, 7.5, palette::range_red},
    Marks{0, 7, 1, 5, 1.3},
    Marks{0, 7.5, 0.5, 3, 0.7},
    Figures{{{0, -20}, 2, 4, 6, 7}, 6, 8.5},
};

constexpr Dial instrument(Scale scale, std::string_view name, std::string_view unit) {
  scale.band = 2.6;
  return {.radius = 36, .scales = {scale}, .words = {{name, {4, 16.5}, 8}, {unit, {1, 25.3}}}};
}

constexpr Item items[] = {
    Screw{{6.5, 78.5}, 58.5, 2.8},
    Screw{{-6.5, 78.5}, 274.5, 2.8},
    instrument({.needle = "apu_speed", .print = percent, .per = 12.5}, "APU", "% RPM"),
    instrument({.needle = "apu_temperature", .print = hundreds_celsius, .per = 200}, "EGT",
               "\u00b0C\u00d7100"),
};

constexpr Art art[] = {
    plate(157, items),
    needle_art("apu_speed", {.length = 26, .tail = 7, .half_width = 1.6}),
};

constinit Unit unit{"Apuins", art};

}  // namespace artwork::panels::apuins
