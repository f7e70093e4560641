/// Clock (main panel): hours, minutes and seconds of local time, and the knob that sets it.
#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {
namespace {

constexpr PanelPoint middle{46, 44};
constexpr PanelPoint pivot{7, 6};
constexpr Scale<2> sixty{{{46, 5}, 0}, {{42, 5}, 59}};
constexpr Scale<4> twice_twelve{{{46, 5}, 0}, {{26, 9}, 11}, {{46, 5}, 12}, {{26, 9}, 23}};

constinit Body body{
    clock,
    {
        lighting_overlay(12230),
        needle("Seconds hand", 12220, middle, pivot, sixty).from(token::local_seconds),
        needle("Minutes hand", 12210, middle, pivot, sixty).from(token::local_minutes),
        needle("Hours hand", 12190, middle, pivot, twice_twelve).from(token::local_hours),
    },
    {
        decrease("Setting knob down", {63, 69, 12, 18}, button_sends<event::clock_back>,
                 Press::left_held),
        increase("Setting knob up", {76, 69, 12, 18}, button_sends<event::clock_forward>,
                 Press::left_held),
    },
};

}  // namespace

constinit Gauge clock{{.name = "Clock", .width_mm = 94, .background = 12180}, body};

}  // namespace tarnvale
