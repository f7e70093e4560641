/// Selected temperatures: two small indicators and the fan's lever between them.
#include "resources/art.h"

namespace artwork::panels::tempset {

constexpr Print share[] = {
    Marks{0, 10, 5, 3.5, 1.2},
    Marks{0, 10, 1, 2, 0.7},
};

constexpr Dial selected(std::string_view needle) {
  return {.radius = 20.5,
          .scales = {{.needle = needle, .print = share, .rim = 16.3}},
          .words = {{"C", {-9, 5.5}, 8}, {"H", {9, 5.5}, 8}},
          .boss = 3,
          .bezel = 2.6};
}

constexpr Item items[] = {
    CornerScrews{7, 3.2},
    selected("left_selected_temperature"),
    selected("right_selected_temperature"),
    Legend{at("left_selected_temperature", 5, 30), "TEMP 1"},
    Legend{at("right_selected_temperature", -5, 27), "TEMP 2"},
    above("recirculation_fan_switch", "RECIRC FAN", {0, -2}),
    right_of("recirculation_fan_switch", {}, 12),
    heading(at("recirculation_fan_switch", 0, 31), "TEMP SELECT"),
};

constexpr Art art[] = {
    plate(84, items),
    needle_art("left_selected_temperature", {.length = 13.5}),
};

constinit Unit unit{"Tempset", art};

}  // namespace artwork::panels::tempset
