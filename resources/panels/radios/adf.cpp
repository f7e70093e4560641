/// Direction finder: a knob each for hundreds and tenths, and one between them for tens and units.
#include "resources/panels/radios/radio_parts.h"

namespace artwork::panels::adf {

constexpr std::string_view hundreds = "set_adf_freq_100hz", tens = "set_adf_freq_10hz",
                           units = "set_adf_freq_1hz", tenths = "set_adf_freq_0_1hz";

void draw_head(const Board& board) {
  radios::display_frame(board, "display_power");
  radios::tuning_knob(board.canvas, hub_of(board.gauge, hundreds), 10.4);
  radios::tuning_knob(board.canvas, radios::shared_middle(board, tens, units), 12.5);
  radios::tuning_knob(board.canvas, hub_of(board.gauge, tenths), 10.4);
}

constexpr Item items[] = {
    Screw{{7.5, 7.5}, 25, 3.4},
    Screw{{-7.5, 7.5}, 140, 3.4},
    Screw{{7.5, -7.5}, 82, 3.4},
    Screw{{-7.5, -7.5}, 11, 3.4},
    Ornament{draw_head},
    ending(at(hundreds, -14, 0), "100", 7),
    Legend{at(tens, -1, 15.6), "10", 6.5},
    Legend{at(units, 1, 15.6), "1", 6.5},
    beginning(at(tenths, 14, 0), ".1", 7),
    heading({42, 25}, "ADF"),
    beginning(at("display_power", 31, 0), "kHz", 7),
};

constexpr Art art[] = {
    plate(78, items),
    drawn_art("display_power", {53, 20}, radios::draw_shaded_glass),
};

constinit Unit unit{"Adf", art};

}  // namespace artwork::panels::adf
