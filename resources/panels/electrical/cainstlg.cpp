/// The captain's lighting panel: a knob for the instruments, a button for the panels.
#include "resources/art.h"

namespace artwork::panels::cainstlg {

constexpr Item items[] = {
    Screw{{8, 8}, 62, 3.4},
    Screw{{-8, 8}, 109, 3.4},
    Screw{{8, -8}, 156, 3.4},
    Screw{{-8, -8}, 203, 3.4},
    ending(at("instrument_lights_knob", -16, 10), "OFF"),
    ending(at("instrument_lights_knob", -16, -10), "DIM"),
    Legend{at("instrument_lights_knob", 0, -20.5), "BRT"},
    Legend{at("instrument_lights_knob", 0, 20), "INSTR"},
    above("panel_lights_button", "PANEL"),
    heading({67, 84}, "CAPT\nLIGHTS"),
};

constexpr Art art[] = {plate(106, items)};

constinit Unit unit{"Cainstlg", art};

}  // namespace artwork::panels::cainstlg
