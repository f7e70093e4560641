/// Light-switch panel (pedestal): strobe, taxi and beacon lights, and the panel lights once more. This
/// panel-light switch leaves the main panels' windows alone.
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/host.h"

namespace tarnvale {
namespace {

constinit u32 panel_lights_shown = 0;

i32 press_panel_lights(PanelPoint, u32) {
  panel_lights_shown = panel_lights_shown == 0;
  send(event::panel_lights_toggle);
  request(toggle_click_sound_request);
  return 0;
}

}  // namespace

constinit Gauge<9, 4> lightspp{
    Face{.name = "Lightspp", .width_mm = 166, .background = 4290},
    {
        icon(4260, {137, 13}, 2, mirrors<token::panel_lights, panel_lights_shown>),
        icon(4260, {19, 13}, 2, nullptr, {.source = token::strobe_lights}),
        icon(4260, {51, 13}, 2, nullptr, {.source = token::taxi_lights}),
        icon(4260, {87, 13}, 2, nullptr, {.source = token::beacon_lights}),
    },
    {
        click({82, 11, 22, 41}, switch_sends<event::beacon_lights_toggle>),
        click({47, 11, 22, 41}, switch_sends<event::taxi_lights_toggle>),
        click({14, 11, 22, 41}, switch_sends<event::strobe_lights_toggle>),
        click({132, 11, 22, 41}, press_panel_lights),
    },
};

}  // namespace tarnvale
