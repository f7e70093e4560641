// Flights that begin elsewhere than on the stand: what the panels show is what the aircraft does.
#include "host/inputs/crew.h"

#include <gtest/gtest.h>

#include "host/inputs/cockpit_inputs.h"
#include "host/panel/condition.h"
#include "platform/platform_host.h"

namespace {

using namespace host;

struct Begun {
  explicit Begun(const Input& beginning) {
    platform_choose_audio(PLATFORM_AUDIO_NONE);
    for (std::uint32_t ident = 500; ident <= 507; ++ident) cockpit.panels().open(ident);
    inputs.take(beginning);
    pass(1.0);
  }

  void pass(double seconds) {
    for (int frame = 0; frame < seconds * cockpit.rate(); ++frame) inputs.frame();
  }

  bool shows(const std::string& condition) { return holds(read_condition(condition), cockpit); }

  GaugeModule module{COCKPIT_DIR "/Tarnvale.GAU"};
  Cockpit cockpit{module, read_panel_config(SOURCE_DIR "/aircraft/panel/panel.cfg")};
  CockpitInputs inputs{cockpit};
};

TEST(Crew, HasEverySwitchAsTheAircraftHasIt) {
  for (const char* place : {"runway", "downwind", "base", "final", "cruise"}) {
    Begun begun(input::StartAt{place});
    for (const char* condition :
         {"Masterbat battery_lamp = 1", "Avimaster avionics_lamp = 1", "Ctr generator_1_lamp = 0",
          "Ctr generator_2_lamp = 0", "Acload generator_1_load > 5", "Cutoff pump_1_switch = 1",
          "Cutoff engine_2_fuel_valve_light = 1", "Apu master_switch = 0", "Apulg apu_running_lamp = 0",
          "Engstart start_master_switch = 0", "Pitot left_pitot_heat_switch = 1",
          "navigation_lights = 1 and beacon_lights = 1 and strobe_lights = 1"})
      EXPECT_TRUE(begun.shows(condition)) << place << ": " << condition;
    EXPECT_EQ(begun.shows("parking_brake > 0"), place == std::string("runway")) << place;
    EXPECT_TRUE(begun.cockpit.panels().shows(507)) << "the open panels stay open";
  }
}

// At 33,000 feet an engine dies without its boost pump: they run indeed, and the switch stops them.
TEST(Crew, BoostPumpsRunAsTheirSwitchesSay) {
  Begun begun(input::StartAt{"cruise"});
  begun.pass(20.0);
  EXPECT_TRUE(begun.shows("engine_1_core_speed > 70 and engine_2_core_speed > 70"));
  click_control(begun.cockpit, "Cutoff", "pump_1_switch");
  begun.pass(20.0);
  EXPECT_TRUE(begun.shows("Cutoff pump_1_switch = 0 and engine_1_core_speed < 60"));
  EXPECT_TRUE(begun.shows("Cutoff pump_2_switch = 1 and engine_2_core_speed > 70"));
}

TEST(Crew, OneClickMovesTheGearLeverHoweverTheGearCameToStand) {
  struct Case {
    Input before;
    const char *click, *then;
  };
  const Case cases[] = {
      {input::StartAt{"downwind"}, "set_gear_down",
       "Gear gear_handle = 0 and nose_gear_position = 16383"},
      {input::StartAt{"final"}, "set_gear_up", "Gear gear_handle = 2 and nose_gear_position = 0"},
      {input::PlaceInFlight{{}}, "set_gear_down", "gear_lever > 0"},
  };
  for (const Case& each : cases) {
    Begun begun(each.before);
    click_control(begun.cockpit, "Gear", each.click);
    begun.pass(12.0);
    EXPECT_TRUE(begun.shows(each.then)) << each.then;
  }
  Begun begun(input::StartAt{"final"});
  begun.inputs.take(input::Fly{{{"gear", "up"}}});  // by the key
  begun.pass(1.0);
  click_control(begun.cockpit, "Gear", "set_gear_down");
  begun.pass(1.0);
  EXPECT_TRUE(begun.shows("gear_lever > 0"));
}

TEST(Crew, ABeginningOnTheStandAndOneThatIsNoPlaceTouchNothing) {
  Begun begun(input::StartAt{"stand"});
  EXPECT_EQ(begun.inputs.take(input::StartAt{"moon"}), Answer::nothing);
  EXPECT_TRUE(begun.shows("battery = 0 and engine_1_core_speed = 0 and beacon_lights = 0"));
}

}  // namespace
