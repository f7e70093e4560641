/// The plate of the two navigation heads on the pedestal, which differ in their names.
#pragma once

#include <array>

#include "resources/panels/radios/radio_parts.h"

namespace artwork::panels::radios {

inline void draw_pedestal_nav(const Board& board) {
  draw_frequency_head(board, 14);
  draw_checks(board);
}

constexpr auto pedestal_nav(std::string_view name) {
  constexpr std::string_view button = "vor_check_button", lever = "deviation_check_switch",
                             test = "dme_test_button";
  return std::to_array<Item>({
      CornerScrews{},
      Ornament{draw_pedestal_nav},
      FixedButton{at(test), 6.5, palette::mould_light},
      Legend{at("active_display_power", 0, -18), "ACTIVE", 7},
      Legend{at("standby_display_power", 0, -18), "STANDBY", 7},
      Legend{between("megahertz_knob_down", "megahertz_knob_up", 0, -21), "MHz", 7},
      Legend{between("kilohertz_knob_down", "kilohertz_knob_up", 0, -21), "kHz", 7},
      beginning(at(test, 10, -3.7), "DME", 7),
      beginning(at(test, 10, 3.7), "TEST", 7),
      beginning(at(button, 11, -3.7), "VOR", 7),
      beginning(at(button, 11, 3.7), "TEST", 7),
      ending(at(lever, -8, -8), "L", 7),
      ending(at(lever, -8, 0), "ILS", 7),
      ending(at(lever, -8, 8), "R", 7),
      heading(middle(-8), name),
  });
}

}  // namespace artwork::panels::radios
