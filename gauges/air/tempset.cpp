/// Temperature selector indicator (overhead): where each side's selector stands while its automatic
/// control uses it, and a toggle switch that is connected to nothing else.
#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {
namespace {

constinit u32 toggle_up = 0;

template <u32& automatic, u32& selector>
f64 selector_in_use(Element*) {
  return automatic == 1 ? selector : 0;
}

constexpr PanelPoint pivot{0, 1};
constexpr Scale<2> left_scale{{{7, 36}, 0}, {{38, 36}, 10}};
constexpr Scale<2> right_scale{{{144, 39}, 0}, {{175, 39}, 10}};

}  // namespace

constinit Gauge<9, 1> tempset{
    Face{.name = "Tempset", .width_mm = 183, .background = 210},
    {
        lighting_overlay(230),
        needle(220, {23, 40}, pivot, left_scale,
               selector_in_use<aircraft.aircon_left_auto, aircraft.temp_selector_left>),
        needle(220, {160, 43}, pivot, right_scale,
               selector_in_use<aircraft.aircon_right_auto, aircraft.temp_selector_right>),
        icon(2130, {86, 19}, 2, shows<toggle_up>),
    },
    {
        click({81, 17, 22, 45}, toggles<toggle_up>),
    },
};

}  // namespace tarnvale
