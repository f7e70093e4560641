/// The drives of the outflow valves: guarded switches, and a light for each.
#include "resources/art.h"

namespace artwork::panels::spdrive {

constexpr std::string_view a = "drive_a_guard", b = "drive_b_guard";

constexpr Item items[] = {
    CornerScrews{},
    heading(at("drive_a_lamp", -34.5), "DRIVE"),
    below("drive_a_lamp", "A"),
    below("drive_b_lamp", "B"),
    above(a, "DRIVE A", {4, -2}),
    Legend{at(b, -4, -41).level_with(a), "DRIVE B"},
    // Each position's name stands in a line from guard to guard.
    Legend{between(a, b, 0, -3).level_with(a), "ON"},
    Line{at(a, 18, -3), between(a, b, -11).level_with(a)},
    Line{between(a, b, 11, -3).level_with(a), at(b, -18)},
    Legend{between(a, b, 0, 21).level_with(a), "OFF"},
    Line{at(a, 18, 21), between(a, b, -13).level_with(a)},
    Line{between(a, b, 13, 21).level_with(a), at(b, -18)},
    heading(between(a, b, 0, -60).level_with(a), "OUTFLOW VALVES"),
};

constexpr Art art[] = {
    plate(160, items),
    lamp_art("drive_a_lamp", {25, 20}, lens::green, "ON", 7.5),
    lamp_art(spare(1420, 2), {25, 20}, lens::amber, "OFF", 7),
};

constinit Unit unit{"Spdrive", art};

}  // namespace artwork::panels::spdrive
