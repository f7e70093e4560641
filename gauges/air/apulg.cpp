/// APU running light (main panel): green from the start of the APU to its stop.
#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {

constinit Gauge<3, 0> apulg{
    Face{.name = "Apulg", .width_mm = 25, .background = 13360},
    {
        lamp(13370, {1, 1}, lit_at<aircraft.apu_running>),
    },
};

}  // namespace tarnvale
