/// What the two heading instruments share: the card's heading, and the setting of the panels that both
/// answer with a test picture.
#pragma once

#include "module/aircraft.h"
#include "module/host.h"

namespace tarnvale {

/// Whether the VOR check buttons are in, the left bearing selector is on its VOR and the heading bug on
/// south.
inline bool heading_test() {
  return aircraft.rmi_left_selector == 0 && aircraft.nav_aux_switch == 1 &&
         read(token::heading_bug) == 180.0;
}

/// The compass card turns with the aircraft's heading.
inline f64 card_heading(Element*) { return read(token::heading); }

}  // namespace tarnvale
