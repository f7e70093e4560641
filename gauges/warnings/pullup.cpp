/// PULL UP light (main panel): the ground comes too close.
#include "gauges/warnings/warning_light.h"

namespace tarnvale {
namespace {

constinit Body body{pullup, warning_light_rows<ground_proximity>(14010, 14010)};

}  // namespace

constinit Gauge pullup{{.name = "Pullup", .width_mm = 28, .background = 13490}, body};

}  // namespace tarnvale
