/// Vertical speed and heading panel (glareshield): the vertical-speed wheel with its thumb wheel, the
/// selected heading, and the button that gives the horizontal situation indicator its source.
#include "gauges/autopilot/selected_figures.h"
#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {
namespace {

/// The wheel stops a little before the ends of its strip. Feet per minute.
constexpr f64 stop = 6200, strip_end = 6300;

f64 vertical_speed(Element* wheel) { return limited(drum_source(wheel), -stop, stop); }

constinit Body body{
    apcourse,
    rows(drum("Vertical speed wheel", 24110, {19, 17}, {strip_end, -strip_end}, vertical_speed)
             .from(token::selected_vertical_speed),
         icon("Navigation source button", 13460, {33, 71}, shows<&Aircraft::apcourse_switch_on>),
         selected_figures(
             {"Selected heading hundreds", "Selected heading tens", "Selected heading units"},
             token::heading_bug, {125, 23}, 10)),
    {
        click("Navigation source button", {28, 66, 22, 22},
              pushes<&Aircraft::apcourse_switch_on, event::hsi_source_toggle>),
        decrease("Selected heading knob down", {115, 57, 24, 34}, turns_by_one<event::heading_bug_down>,
                 Press::left_held),
        increase("Selected heading knob up", {141, 57, 24, 34}, turns_by_one<event::heading_bug_up>,
                 Press::left_held),
        decrease("Vertical speed thumb wheel down", {76, 34, 25, 30},
                 turns_by_one<event::selected_vertical_speed_down>, Press::left_held),
        increase("Vertical speed thumb wheel up", {76, 2, 25, 30},
                 turns_by_one<event::selected_vertical_speed_up>, Press::left_held),
    },
};

}  // namespace

constinit Gauge apcourse{{.name = "Apcourse", .width_mm = 171, .background = 13450}, body};

}  // namespace tarnvale
