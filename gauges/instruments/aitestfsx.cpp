/// Push-button timer (main panel) that stops by itself after two minutes at 18 frames a second.
#include "gauges/instruments/frame_timer.h"

namespace tarnvale {
namespace {

constinit FrameTimer timer{.divisor = 10000, .limit = 110, .blank = " "};

constinit Body body{aitestfsx, frame_timer_rows<&timer>(), {timer_button<&timer>()}};

}  // namespace

constinit Gauge aitestfsx{{.name = "Aitestfsx", .width_mm = 36, .background = 1180}, body};

}  // namespace tarnvale
