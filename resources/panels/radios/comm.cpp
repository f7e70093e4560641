/// VHF communication radio.
#include "resources/panels/radios/radio_parts.h"

namespace artwork::panels::comm {

void draw_head(const Board& board) { radios::draw_frequency_head(board, 14); }

constexpr Item items[] = {
    Screw{{7.5, 7.5}, 25, 3.4},
    Screw{{-7.5, 7.5}, 140, 3.4},
    Screw{{7.5, -7.5}, 82, 3.4},
    Screw{{-7.5, -7.5}, 11, 3.4},
    Ornament{draw_head},
    Legend{at("active_display_power", 0, -18), "ACTIVE", 7},
    Legend{at("standby_display_power", 0, -18), "STANDBY", 7},
    beginning(between("megahertz_knob_down", "megahertz_knob_up", 20, 0), "MHz", 7),
    ending(between("kilohertz_knob_down", "kilohertz_knob_up", -20, 0), "kHz", 7),
    heading(middle(24), "VHF COM"),
};

constexpr Art art[] = {plate(92, items)};

constinit Unit unit{"Comm", art};

}  // namespace artwork::panels::comm
