/// A setting of the panels that both heading instruments answer with a test picture.
#pragma once

#include "module/aircraft.h"
#include "module/host.h"

namespace tarnvale {

/// The navigation heads' push switch, the left bearing selector and the heading bug on south.
inline bool heading_test() {
  return aircraft.rmi_left_selector == 0 && aircraft.nav_aux_switch == 1 &&
         read(token::heading_bug) == 180.0;
}

/// The compass card turns with the aircraft's heading.
inline f64 card_heading(Element*) { return read(token::heading); }

}  // namespace tarnvale
