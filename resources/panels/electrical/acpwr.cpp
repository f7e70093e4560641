/// AC power: bus lamps, guarded drive disconnects with their lights, rectifiers and bus ties.
#include "resources/art.h"

namespace artwork::panels::acpwr {

constexpr Item items[] = {
    CornerScrews{},
    heading(middle(0).level_with("bus_1_lamp"), "AC\nPOWER"),
    Legend{at("drive_1_disconnect_light", 0, -24), "DRIVE 1\nDISC"},
    Legend{at("drive_2_disconnect_light", 0, -21), "DRIVE 2\nDISC"},
    above("tru_1_switch", "TRU 1"),
    above("tru_2_switch", "TRU 2"),
    words_between("tru_1_switch", "tru_2_switch"),
    below("bus_1_tie_knob", "BUS 1"),
    Legend{at("bus_2_tie_knob", 0, 19).level_with("bus_1_tie_knob"), "BUS 2"},
    Line{at("bus_1_tie_knob", 15), between("bus_1_tie_knob", "bus_2_tie_knob", -19)},
    Line{between("bus_1_tie_knob", "bus_2_tie_knob", 19).level_with("bus_1_tie_knob"),
         at("bus_2_tie_knob", -15)},
    Legend{between("bus_1_tie_knob", "bus_2_tie_knob", 0, 0.6).level_with("bus_1_tie_knob"), "AC TIE"},
    FlowKey{between("bus_1_tie_knob", "bus_2_tie_knob", -13, 11).level_with("bus_1_tie_knob"), "TIED",
            "OPEN"},
};

constexpr Art art[] = {
    plate(200, items).in_full_colour(),
    lamp_art("bus_1_lamp", {49, 24}, lens::green, "BUS 1"),
    lamp_art("bus_2_lamp", {49, 24}, lens::green, "BUS 2"),
    lamp_art("apu_generator_lamp", {46, 24}, lens::blue, "APU"),
};

constinit Unit unit{"Acpwr", art};

}  // namespace artwork::panels::acpwr
