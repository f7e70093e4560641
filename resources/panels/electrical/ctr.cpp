/// Generator control: a lever and a light for each generator, and the guarded bus transfer.
#include "resources/art.h"

namespace artwork::panels::ctr {

constexpr Item items[] = {
    CornerScrews{},
    above("generator_1_switch", "GEN 1", {-2, -3}),
    above("generator_2_switch", "GEN 2", {2, -3}),
    Positions{between("generator_1_switch", "generator_2_switch"), "ON", "OFF", "RST", Anchor::centre},
    // A line of the bus diagram from each generator's light to its lever.
    Line{at("generator_1_lamp", 12.5).level_with("generator_1_switch"), at("generator_1_switch", -12)},
    Line{at("generator_2_switch", 12), at("generator_2_lamp", -11.5)},
    ending(at("bus_transfer_guard", -23, 2), "AC BUS\nXFER", heading_size),
    beginning(at("bus_transfer_guard", 21, -2), "MANUAL"),
    beginning(at("bus_transfer_guard", 21, 22), "AUTO"),
};

constexpr Art art[] = {plate(150, items).in_full_colour()};

constinit Unit unit{"Ctr", art};

}  // namespace artwork::panels::ctr
