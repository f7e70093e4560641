/// Kneeboard button (throttle and utility panels): the checklists on the pilot's knee.
#include "gauges/windows/window_button.h"

namespace tarnvale {
namespace {

constinit Body body{
    checktg,
    {
        window_button("Open/Close Kneeboard", {4, 4, 106, 34}, does<ask<event::kneeboard_toggle>>),
    },
};

}  // namespace

constinit Gauge checktg{{.name = "Checktg", .width_mm = 114, .background = 4340}, body};

}  // namespace tarnvale
