/// Avionics master panel (overhead): one switch with its lamp.
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/host.h"

namespace tarnvale {
namespace {

i32 press_avionics_master(PanelPoint, u32) {
  aircraft.avionics_master_on = aircraft.avionics_master_on == 0;
  send(event::avionics_toggle);
  request(toggle_click_sound_request);
  return 0;
}

}  // namespace

constinit Gauge<5, 1> avimaster{
    Face{.name = "Avimaster", .width_mm = 122, .background = 2310},
    {
        icon(2320, {37, 19}, 2, mirrors<token::avionics, aircraft.avionics_master_on>),
        lamp(2330, {86, 51}, lit_at<aircraft.avionics_master_on>),
    },
    {
        click({39, 21, 36, 36}, press_avionics_master),
    },
};

}  // namespace tarnvale
