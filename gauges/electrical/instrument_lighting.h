/// The two pilots' instrument-lighting panels work alike; each swaps its own main panel for the night.
#pragma once

#include "module/controls.h"
#include "module/host.h"

namespace tarnvale {

/// The panel-light switch: lights on shows the night version of the pilot's main panel.
template <u32 day_window, u32 night_window>
i32 presses_panel_lights(PanelPoint, u32) {
  aircraft.panel_lights_on = aircraft.panel_lights_on == 0;
  open_window(aircraft.panel_lights_on != 0 ? night_window : day_window);
  close_window(aircraft.panel_lights_on != 0 ? day_window : night_window);
  send(event::panel_lights_toggle);
  request(click_sound_request);
  return 0;
}

}  // namespace tarnvale
