/// Navigation receiver 1 (pedestal).
#include "gauges/radios/nav_head.h"

namespace tarnvale {
namespace {

constexpr NavHead head = pedestal_nav_head(nav1_radio);

/// The transfer light and the distance test prolong each other.
constinit SharedHoldClock timer{aircraft.nav1_timer_deadline, aircraft.nav1_timer_now};
constinit u32 transfer_lit;

constinit Body body{
    vhf1nav,
    nav_rows<head, &timer, &transfer_lit>(),
    areas(frequency_areas<head.frequencies, &timer, &transfer_lit>(), check_button_area<head>(),
          distance_test_button<&timer, &Aircraft::nav1_test_active>(), check_switch_areas<head>()),
};

}  // namespace

constinit Gauge vhf1nav{{.name = "Vhf1nav", .width_mm = 215, .background = 2230}, body};

}  // namespace tarnvale
