/// What every control of the cockpit does, seen in a long walk that works them all: each moves the
/// part it is named after and no other control, on its own side and not on the other.
#include <gtest/gtest.h>

#include "module/tokens.h"
#include "tests/module/controls.h"
#include "tests/module/sides.h"

namespace {

using namespace tarnvale;
using namespace walk;

TEST(Controls, EachMovesThePartItIsNamedAfter) {
  for (const Stimulus* control : controls()) {
    const bool printed_on_the_plate = is_like(control->text(), {"Lightsp fire_test_button",
                                                                "Cabalt standard_pressure_button",
                                                                "Aitest* timer_button",
                                                                "Altimeter pressure_setting_knob_*",
                                                                "Clock setting_knob_*",
                                                                "Radalt test_button",
                                                                "Dhgpws test_switch",
                                                                "Flightrec readout_button",
                                                                "Flightrec thumbwheel_*",
                                                                "Apmode selected_speed_knob_*",
                                                                "Apalt selected_altitude_knob_*",
                                                                "Apcourse selected_heading_knob_*",
                                                                "Apcourse vertical_speed_thumb_wheel_*",
                                                                "Cat2apsys green_test_button",
                                                                "Cat2apsys amber_test_button",
                                                                "Ffsys *_button",
                                                                "Trim pitch_trim_wheel_*",
                                                                "Pushback turn_button",
                                                                "Pushback *_push_*",
                                                                "Stewcall crew_call_button",
                                                                "*hertz_knob_up",
                                                                "*hertz_knob_down",
                                                                "Adf set_adf_freq_*",
                                                                "*dme_test_button"});
    const rig::NamedPart* part = control->part;
    EXPECT_EQ(part == nullptr, printed_on_the_plate) << control->text();
    if (part == nullptr) {
      const bool later = control->name.starts_with("automatic_push");  // its story is a minute long
      EXPECT_TRUE(later || control->heeded || !control->changed.empty())
          << control->text() << " does nothing";
    } else if (is_answered_by_the_host(*control)) {
      EXPECT_TRUE(control->heeded) << control->text() << " asks for nothing";
    } else {
      EXPECT_TRUE(comes_to_change(*control, {gauge_of(*control).header().name, part->name}))
          << control->text() << " leaves " << part->name;
    }
  }
}

/// A guard that closes takes the switch under it along.
bool is_guard_of(std::string guard, std::string_view control) {
  const std::size_t at = guard.rfind("guard");
  return at != std::string::npos && guard.replace(at, 5, "switch") == control;
}

TEST(Controls, EachLeavesTheOtherControlsOfItsGaugeAlone) {
  // The APU's master ends its start, the autothrottle its speed hold, a transponder that is off shows no
  // ident, there is one transmitter at a time, and armed dumpers are deployed at once.
  const auto goes_along = [](const Stimulus& control, const std::string& part) {
    return is_of_pushback(control) ||
           is_like(control.text() + ' ' + part,
                   {"Apu master_switch start_button", "Apset autothrottle_button airspeed_hold_button",
                    "Transponder transponder_selector_* ident_button", "Micsel * *_microphone*_button",
                    "Ldmain lift_dump_arm_switch lift_dump_deployment_switch"});
  };
  for (const Stimulus* control : controls()) {
    const rig::Gauge& gauge = gauge_of(*control);
    const rig::NamedPart* own = control->part;
    for (const rig::NamedArea& other : gauge.areas()) {
      const rig::NamedPart* part = part_of(gauge, other.name);
      if (own == nullptr || part == nullptr || part == own || is_test(other.name)) continue;
      if (is_guard_of(own->name, part->name) || goes_along(*control, part->name)) continue;
      EXPECT_FALSE(control->changed.contains({gauge.header().name, part->name}))
          << control->text() << " moves " << part->name;
    }
  }
}

TEST(Controls, ASideAnswersToItsOwnControlsAndTokens) {
  for (const Stimulus& stimulus : result().stimuli) {
    const std::string gauge = gauge_of(stimulus).header().name;
    const Stimulus* other = result().find(gauge, sides::mirrored(stimulus.name));
    for (const auto& [place, part] : stimulus.changed) {
      if (part.ends_with("duct_hot_light")) continue;     // a duct that heats up lights it any time
      if (part.ends_with("display")) continue;            // what it turns to may read the same
      if (part.ends_with("microphone_button")) continue;  // one transmitter at a time
      if (part.ends_with("dumper_light")) continue;       // both throttles and both dumpers decide
      if (place == "Pushback") continue;  // its programmes have one tug and one distance
      EXPECT_FALSE(sides::opposite(stimulus.name, part))
          << stimulus.text() << " moves " << place << ' ' << part;
      if (!stimulus.area && place != gauge) continue;
      const std::string other_part = sides::mirrored(part);
      EXPECT_TRUE(other == nullptr || other_part.empty() ||
                  comes_to_change(*other, {place, other_part}))
          << stimulus.text() << " moves " << place << ' ' << part << ", but " << other->name << " not "
          << other_part;
    }
  }
}

TEST(Controls, EveryImageOfAnIconIsShownAndNoOther) {
  // What these show hangs on where the aircraft is, or cannot be seen; each has its stories.
  const std::set<std::string> of_the_flight{"Adi",   "Altimeter", "Dhgpws",   "Hsi",
                                            "Hvsnd", "Markers",   "Pushback", "Radalt"};
  const std::vector<rig::Gauge>& gauges = result().gauges;
  for (std::size_t g = 0; g < gauges.size(); ++g) {
    if (of_the_flight.contains(gauges[g].header().name)) continue;
    for (std::size_t i = 0; i < gauges[g].parts().size(); ++i) {
      const rig::NamedPart& part = gauges[g].parts()[i];
      if (part.element->kind != ELEMENT_ICON) continue;
      std::set<f64> images;
      for (f64 image = 0; image < part.element->icon.image_count; ++image) images.insert(image);
      EXPECT_EQ(shown(g, i, images.size()), images) << gauges[g].header().name << ' ' << part.name;
    }
  }
}

}  // namespace
