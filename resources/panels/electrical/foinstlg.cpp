/// The first officer's lighting panel: a knob for the instruments, a button for the panels.
#include "resources/art.h"

namespace artwork::panels::foinstlg {

constexpr Item items[] = {
    Screw{{-8, 8}, 62, 3.4},
    Screw{{8, -8}, 109, 3.4},
    Screw{{-8, -8}, 156, 3.4},
    ending(at("instrument_lights_knob", -16, 10), "OFF"),
    ending(at("instrument_lights_knob", -16, -10), "DIM"),
    Legend{at("instrument_lights_knob", 0, -20.5), "BRT"},
    Legend{at("instrument_lights_knob", 0, 20), "INSTR"},
    above("panel_lights_button", "PANEL"),
    heading({78, 28}, "F/O\nLIGHTS"),
};

constexpr Art art[] = {plate(98, items)};

constinit Unit unit{"Foinstlg", art};

}  // namespace artwork::panels::foinstlg
