/// Engine anti-ice panel (overhead): a four-position knob for each engine, and the lever between them
/// that lets one engine's supply run up to full pressure.
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/host.h"

namespace tarnvale {
namespace {

/// Positions 1 and 3 are on. The host has one engine anti-ice, which both knobs work.
template <u32& knob>
i32 turns_knob(PanelPoint point, u32 flags) {
  advances<knob, 3>(point, flags);
  send(knob % 2 == 1 ? event::engine_antiice_on : event::engine_antiice_off);
  return 0;
}

}  // namespace

constinit Gauge<7, 4> antiice{
    Face{.name = "Antiice", .width_mm = 69, .background = 1160},
    {
        icon(2080, {27, 5}, 3, shows<aircraft.antiice_upper_switch>),
        icon(1170, {47, 49}, 4, shows<aircraft.engine_antiice_right>),
        icon(1170, {11, 49}, 4, shows<aircraft.engine_antiice_left>),
    },
    {
        click({6, 50, 22, 38}, turns_knob<aircraft.engine_antiice_left>),
        click({42, 50, 22, 38}, turns_knob<aircraft.engine_antiice_right>),
        click({19, 2, 29, 23}, lever_up<aircraft.antiice_upper_switch>),
        click({19, 26, 29, 23}, lever_down<aircraft.antiice_upper_switch>),
    },
};

}  // namespace tarnvale
