/// Navigation receiver 1, and the bitmaps that all radio heads of the pedestal share.
#include "resources/panels/radios/pedestal_nav.h"

namespace artwork::panels::vhf1nav {

constexpr auto items = radios::pedestal_nav("NAV 1");

constexpr Art art[] = {
    plate(110, items),
    drawn_art("active_leading_figure", {9, 16}, radios::draw_leading_one),
    {"active_tens_of_megahertz", radios::figure_strip, radios::whole_figures},
    {"active_tenths_of_megahertz", radios::figure_strip, radios::decimal_figures},
    drawn_art("active_display_cover", {52, 20}, radios::draw_cover),
    drawn_art("active_display_power", {52, 20}, radios::draw_glass),
    flush_lamp_art("transfer_button", {42, 14}, lens::amber, "TFR", 7),
    drawn_art("vor_check_button", {8, 10}, radios::draw_check_light),
    drawn_art("deviation_check_switch", {7, 18}, radios::draw_check_switch),
};

constinit Unit unit{"Vhf1nav", art};

}  // namespace artwork::panels::vhf1nav
