/// Brake accumulator pressures, left and right.
#include "resources/panels/controls/accumulator_dial.h"

namespace artwork::panels::fobrake {

constexpr std::string_view left = "left_accumulator_pressure", right = "right_accumulator_pressure";

constexpr Item items[] = {
    Legend{between(left, right, 0, -30), "BRAKE"},
    Screw{between(left, right, 0, -17), 30, 3},
    Screw{between(left, right, 0, 17), 74, 3},
    Legend{between(left, right, 0, 29), "ACCU"},
    thousands_dial(left, "L"),
    thousands_dial(right, "R"),
};

constexpr Art art[] = {plate(74, items)};

constinit Unit unit{"Fobrake", art};

}  // namespace artwork::panels::fobrake
