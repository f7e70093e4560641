/// Navigation receiver 2 (pedestal): the twin of receiver 1's head.
#include "gauges/radios/nav_head.h"

namespace tarnvale {
namespace {

constexpr Radio nav2_radio{
    .system = &failure::receiver_2,
    .active = token::nav2_active,
    .standby = token::nav2_standby,
    .exchange = event::nav2_exchange,
    .megahertz_down = event::nav2_megahertz_down,
    .megahertz_up = event::nav2_megahertz_up,
    .kilohertz_down = event::nav2_kilohertz_down,
    .kilohertz_up = event::nav2_kilohertz_up,
};

/// Its switch stands a pixel aside, and by day the cockpit's light is all that lights its button.
constexpr NavHead twin() {
  NavHead head = pedestal_nav_head(nav2_radio);
  head.check_switch.x = 93;
  head.check_switch_up.x = head.check_switch_down.x = 90;
  head.check_button_flags = image_flag::transparent;
  return head;
}
constexpr NavHead head = twin();

/// The transfer light and the distance test prolong each other.
constinit SharedHoldClock timer{aircraft.nav2_timer_deadline, aircraft.nav2_timer_now};
constinit u32 transfer_lit;

constinit Body body{
    vhf2nav,
    nav_rows<head, &timer, &transfer_lit>(),
    areas(frequency_areas<head.frequencies, &timer, &transfer_lit>(), check_button_area<head>(),
          distance_test_button<&timer, &Aircraft::nav2_test_active>(), check_switch_areas<head>()),
};

}  // namespace

constinit Gauge vhf2nav{{.name = "Vhf2nav", .width_mm = 215, .background = 2290}, body};

}  // namespace tarnvale
