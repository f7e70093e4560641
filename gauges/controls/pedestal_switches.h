/// The two three-position switches of the right throttle pedestal.
#pragma once

#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {

/// Its middle is 0, left 1, right 2.
constexpr Row pedestal_selector_row() {
  return icon("Pedestal selector switch", {4490, 3}, {116, 186},
              shows<&Aircraft::pedestal_selector_switch>);
}

/// Unlike other levers it counts its lower position first: centre, down, up.
template <auto position>
constexpr Row auxiliary_row() {
  return icon("Auxiliary switch", {10010, 3}, {52, 180}, shows<position>);
}

/// From either end both halves bring a switch back to its centre.
template <auto position>
constexpr Area auxiliary_up() {
  return click("Auxiliary switch up", {52, 178, 30, 22}, lever_down<position>);
}
template <auto position>
constexpr Area auxiliary_down() {
  return click("Auxiliary switch down", {52, 204, 30, 22}, lever_up<position>);
}
constexpr Area pedestal_selector_left() {
  return click("Pedestal selector switch left", {114, 187, 14, 14},
               lever_up<&Aircraft::pedestal_selector_switch>);
}
constexpr Area pedestal_selector_right() {
  return click("Pedestal selector switch right", {141, 187, 14, 14},
               lever_down<&Aircraft::pedestal_selector_switch>);
}

}  // namespace tarnvale
