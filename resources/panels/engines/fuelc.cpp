/// Centre tank quantity in hundreds of gallons, and the lever that tests the dial.
#include "resources/panels/engines/fuel_dials.h"

namespace artwork::panels::fuelc {

constexpr Print hundreds[] = {
    Marks{0, 8, 2, 5.2, 1.5},
    Marks{0, 8, 1, 3.8, 1},
    Marks{0, 8.25, 0.25, 2.4, 0.6},
    Figures{{{0, 20}, 2, 4, 6, 8}, 6.4, 8},
};

constexpr Item items[] = {
    Screw{{75, 8}, 12, 3.2},
    Screw{{75, 46}, 51, 3.2},
    tank_dial("centre_tank_quantity", hundreds, "C"),
    Legend{at("quantity_test_switch", -20), "QTY", 7.5},
    Legend{at("quantity_test_switch", 0, 26), "TEST", 7.5},
    Legend{{84, -8}, "GAL\u00d7100", 7},
};

constexpr Art art[] = {
    plate(70, items),
    lever_art("quantity_test_switch", {14, 40}, {Throw::down, Throw::up}),
};

constinit Unit unit{"Fuelc", art};

}  // namespace artwork::panels::fuelc
