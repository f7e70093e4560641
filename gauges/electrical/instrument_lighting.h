/// The two pilots' instrument-lighting panels work alike; each swaps its own main panel for the night.
#pragma once

#include "module/controls.h"

namespace tarnvale {

/// The panel-light switch: lights on shows the night version of the pilot's main panel.
template <u32 day_window, u32 night_window>
void press_panel_lights() {
  flip(aircraft.panel_lights_on);
  open_window(aircraft.panel_lights_on != 0 ? night_window : day_window);
  close_window(aircraft.panel_lights_on != 0 ? day_window : night_window);
  send_and_click<click_sound_request, event::panel_lights_toggle>();
}
template <u32 day_window, u32 night_window>
inline constexpr MouseRoutine presses_panel_lights = does<press_panel_lights<day_window, night_window>>;

}  // namespace tarnvale
