/// The second head of navigation receiver 1.
#include "resources/panels/radios/radio_parts.h"

namespace artwork::panels::nav1rad {

constexpr std::string_view lever = "deviation_check_switch";

void draw_head(const Board& board) {
  radios::draw_frequency_head(board, 13);
  radios::draw_checks(board);
}

constexpr Item items[] = {
    Screw{{7, 7}, 31, 3},
    Screw{{-7, 7}, 118, 3},
    Ornament{draw_head},
    Legend{at("active_display_power", 0, -17), "ACTIVE", 6.5},
    Legend{at("standby_display_power", 0, -17), "STANDBY", 6.5},
    Legend{between("megahertz_knob_down", "megahertz_knob_up", 0, -21), "MHz", 6.5},
    Legend{between("kilohertz_knob_down", "kilohertz_knob_up", 0, -21), "kHz", 6.5},
    Legend{at(lever, -0.5, -14), "L", 6.5},
    Legend{at(lever, -0.5, 15), "R", 6.5},
    Legend{at("vor_check_button", 0, -12), "VOR", 6.5},
    heading({76.5, 8}, "NAV 1", 8),
};

constexpr Art art[] = {
    plate(96, items),
    drawn_art("active_leading_figure", {9, 16}, radios::draw_leading_one),
    {"active_tens_of_megahertz", radios::figure_strip, radios::whole_figures},
    {"active_tenths_of_megahertz", radios::figure_strip, radios::decimal_figures},
    drawn_art("active_display_power", {52, 20}, radios::draw_glass),
    {"transfer_button",
     {38, 14},
     Lamp{.colours = lens::amber,
          .text = "TFR",
          .text_size = 7,
          .setting = Setting::flush,
          .size = {30, 14}}},
};

constinit Unit unit{"Nav1rad", art};

}  // namespace artwork::panels::nav1rad
