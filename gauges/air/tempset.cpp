/// Temperature selector indicator (overhead): where each side's selector stands while its automatic
/// control uses it, and a toggle switch that is connected to nothing else.
#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {
namespace {

constinit u32 toggle_up = 0;

template <auto automatic, auto selector>
f64 selector_in_use(Element*) {
  return variable<automatic>() == 1 ? variable<selector>() : 0;
}

constexpr PanelPoint pivot{0, 1};
constexpr Scale<2> left_scale{{{7, 36}, 0}, {{38, 36}, 10}};
constexpr Scale<2> right_scale{{{144, 39}, 0}, {{175, 39}, 10}};

constinit Body body{
    tempset,
    {
        lighting_overlay(230),
        needle("Left selected temperature", 220, {23, 40}, pivot, left_scale,
               selector_in_use<&Aircraft::aircon_left_auto, &Aircraft::temp_selector_left>),
        needle("Right selected temperature", 220, {160, 43}, pivot, right_scale,
               selector_in_use<&Aircraft::aircon_right_auto, &Aircraft::temp_selector_right>),
        icon("Recirculation fan switch", bitmap::toggle_switch, {86, 19}, shows<&toggle_up>),
    },
    {
        click("Recirculation fan switch", {81, 17, 22, 45}, toggles<&toggle_up>),
    },
};

}  // namespace

constinit Gauge tempset{{.name = "Tempset", .width_mm = 183, .background = 210}, body};

}  // namespace tarnvale
