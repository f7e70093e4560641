/// What a press holds for some seconds: springs, lights and readings under test.
#include <gtest/gtest.h>

#include "module/tokens.h"
#include "tests/rig/rig.h"

namespace {

using namespace tarnvale;

/// The clock counts in whole seconds, and may be set back by `back` seconds before a hold ends.
struct Hold {
  const char *gauge, *control, *part;
  f64 held, over = 0;
  u32 button = MOUSE_LEFT;
  int seconds = 2, back = 16;
};

void PrintTo(const Hold& hold, std::ostream* out) { *out << hold.gauge << ' ' << hold.control; }

class Holds : public testing::TestWithParam<Hold> {
 protected:
  const Hold& hold = GetParam();
  rig::Host host;
  rig::Gauge gauge{hold.gauge};

  Holds() {
    aircraft.dc_power_on = 1;
    host.tokens[token::engine_1_core_speed] = 60;  // else the attitude cannot be trusted
  }

  void press_at(f64 clock) {
    host.tokens[token::clock_seconds] = clock;
    gauge.click(hold.control, hold.button);
  }
  f64 shown_at(f64 clock) {
    host.tokens[token::clock_seconds] = clock;
    gauge.frame();
    return gauge.value(hold.part);
  }
};

TEST_P(Holds, LastTheirSecondsAndEndBeforeAClockThatIsSetFarBack) {
  EXPECT_EQ(shown_at(100), hold.over);
  press_at(100.9);
  EXPECT_EQ(shown_at(100.9), hold.held);
  EXPECT_EQ(shown_at(100.9 + hold.seconds), hold.held);
  press_at(100.9 + hold.seconds);
  EXPECT_EQ(shown_at(100.9 + 2 * hold.seconds), hold.held) << "a second press prolongs it";
  EXPECT_EQ(shown_at(101 + 2 * hold.seconds), hold.over);
  press_at(200);
  EXPECT_EQ(shown_at(200 - hold.back), hold.held);
  EXPECT_EQ(shown_at(200 - hold.back - 1), hold.over);
  press_at(0);
  EXPECT_EQ(shown_at(0), hold.back > 0 ? hold.over : hold.held) << "at the clock's very beginning";
}

INSTANTIATE_TEST_SUITE_P(
    Presses, Holds,
    testing::Values(
        Hold{"Apu", "start_button", "test_light", 0, 1, MOUSE_RIGHT},
        Hold{"Stewcall", "crew_call_button", "crew_call_light", 1},
        Hold{"Vhf1nav", "transfer_button", "transfer_button", 1, 0, MOUSE_LEFT, 2, 1},
        Hold{"Vhf2nav", "transfer_button", "transfer_button", 1, 0, MOUSE_LEFT, 2, 1},
        Hold{"Nav1rad", "transfer_button", "transfer_button", 1, 0, MOUSE_LEFT, 2, 1},
        Hold{"Comm", "transfer_button", "transfer_button", 1, 0, MOUSE_LEFT, 2, 1},
        Hold{"Trim", "rudder_trim_left", "rudder_trim_buttons", 1},
        Hold{"Trim", "rudder_trim_right", "rudder_trim_buttons", 2},
        Hold{"Apcon", "test_switch_1", "test_switch", 1},
        Hold{"Apcon", "test_switch_2", "test_switch", 2},
        Hold{"Cat2apsys", "green_test_button", "left_localizer_lamp", 2},
        Hold{"Cat2apsys", "amber_test_button", "right_localizer_lamp", 1},
        Hold{"Cat2apsys", "speed_lamp_test", "speed_lamp", 1},
        Hold{"Adi", "attitude_flag_button", "attitude_flag", 1},
        Hold{"Radalt", "test_button", "radio_altitude", 100},
        Hold{"Thleft", "brake_control_switch", "brake_test_light", 1, 0, MOUSE_RIGHT},
        Hold{"Vcbrake", "brake_control_switch", "lower_left_brake_pressure", 120, 150, MOUSE_RIGHT},
        Hold{"Fuelc", "quantity_test_switch", "quantity_test_switch", 1, 0, MOUSE_LEFT, 5, 0},
        Hold{"Fuelreq", "fuel_request_lever", "fuel_request_lever", 1}));

}  // namespace
