/// STALL light (glareshield): the wing is near its greatest angle of attack.
#include "gauges/warnings/warning_light.h"

namespace tarnvale {
namespace {

constinit Body body{stall, warning_light_rows<stall_warning>(13270, 13260)};

}  // namespace

constinit Gauge stall{{.name = "Stall", .width_mm = 76, .background = 13250}, body};

}  // namespace tarnvale
