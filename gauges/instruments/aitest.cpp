/// Push-button timer (main panel) that stops by itself after a second at 18 frames a second.
#include "gauges/instruments/frame_timer.h"

namespace tarnvale {
namespace {

constinit FrameTimer timer{.divisor = 100, .limit = 88, .blank = "  "};

constinit Body body{aitest, frame_timer_rows<&timer>(), {timer_button<&timer>()}};

}  // namespace

constinit Gauge aitest{{.name = "Aitest", .width_mm = 36, .background = 1180}, body};

}  // namespace tarnvale
