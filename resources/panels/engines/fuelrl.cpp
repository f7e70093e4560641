/// Wing tank quantities: left and right, in hundreds of gallons.
#include "resources/panels/engines/fuel_dials.h"

namespace artwork::panels::fuelrl {

constexpr Print hundreds[] = {
    Band{0, 2.5, palette::range_amber},
    Marks{0, 12, 2, 5.2, 1.5},
    Marks{0, 12, 1, 3.8, 1},
    Marks{0, 12.75, 0.25, 2.4, 0.6},
    Figures{{{0, 20}, 2, 4, 6, 8, 10, {12, -8}}, 6.4, 8},
};

constexpr Item items[] = {
    Legend{between("left_tank_quantity", "right_tank_quantity", 0, -27), "FUEL"},
    Screw{between("left_tank_quantity", "right_tank_quantity", 0, -16), 30, 3},
    Screw{between("left_tank_quantity", "right_tank_quantity", 0, 16), 74, 3},
    Legend{between("left_tank_quantity", "right_tank_quantity", 0, 30), "GAL\u00d7100", 7},
    tank_dial("left_tank_quantity", hundreds, "L"),
    tank_dial("right_tank_quantity", hundreds, "R"),
};

constexpr Art art[] = {
    plate(70, items),
    needle_art("left_tank_quantity", {.length = 25, .tail = 3, .half_width = 1.6}),
};

constinit Unit unit{"Fuelrl", art};

}  // namespace artwork::panels::fuelrl
