/// APU running light (main panel): green from the start of the APU to its stop.
#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {
namespace {

constinit Body body{
    apulg,
    {
        lamp("APU running lamp", 13370, {1, 1}, lit_at<&Aircraft::apu_running>),
    },
};

}  // namespace

constinit Gauge apulg{{.name = "Apulg", .width_mm = 25, .background = 13360}, body};

}  // namespace tarnvale
