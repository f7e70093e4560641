/// The light that says the autopilot is engaged (main panel).
#include "module/catalogue.h"

namespace tarnvale {
namespace {

constinit Body body{aplight, {lamp("Autopilot lamp", 12470, {1, 1}).from(token::autopilot)}};

}  // namespace

constinit Gauge aplight{{.name = "Aplight", .width_mm = 26, .background = 12460}, body};

}  // namespace tarnvale
