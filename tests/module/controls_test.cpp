/// What every control of the cockpit does, seen in a long walk that works them all: each moves the
/// part it is named after and no other control, on its own side and not on the other.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "module/tokens.h"
#include "tests/module/sides.h"
#include "tests/module/walk.h"

namespace {

using namespace tarnvale;
using walk::Stimulus;

std::vector<const Stimulus*> controls() {
  std::vector<const Stimulus*> all;
  for (const Stimulus& s : walk::result().stimuli) {
    if (s.area) all.push_back(&s);
  }
  return all;
}

const rig::Gauge& gauge_of(const Stimulus& s) { return walk::result().gauges[s.gauge]; }
const rig::NamedPart* part_of(const Stimulus& s) { return s.part; }

bool ends_with_one_of(std::string_view name, std::initializer_list<std::string_view> ends) {
  return std::ranges::any_of(ends, [&](std::string_view end) { return name.ends_with(end); });
}

/// A light under test is no control.
bool is_test(std::string_view control) { return control.find("test") != std::string_view::npos; }

/// Levers and pointers that stand where the host's answer puts them.
const std::set<std::string> answered_by_the_host{"Hsi course_knob_down",
                                                 "Hsi course_knob_up",
                                                 "Airspeed selected_speed_knob_down",
                                                 "Airspeed selected_speed_knob_up",
                                                 "Thleft throttle_1_lever",
                                                 "Thright throttle_2_lever",
                                                 "Thright flap_lever_up",
                                                 "Thright flap_lever_down"};

TEST(Controls, EachMovesThePartItIsNamedAfter) {
  const std::set<std::string> printed_on_the_plate{"Lightsp fire_test_button",
                                                   "Cabalt standard_pressure_button",
                                                   "Aitest timer_button",
                                                   "Aitestfsx timer_button",
                                                   "Altimeter pressure_setting_knob_down",
                                                   "Altimeter pressure_setting_knob_up",
                                                   "Clock setting_knob_down",
                                                   "Clock setting_knob_up",
                                                   "Radalt test_button",
                                                   "Dhgpws test_switch",
                                                   "Flightrec readout_button",
                                                   "Flightrec thumbwheel_1",
                                                   "Flightrec thumbwheel_2",
                                                   "Flightrec thumbwheel_3",
                                                   "Flightrec thumbwheel_4",
                                                   "Flightrec thumbwheel_5",
                                                   "Apmode selected_speed_knob_down",
                                                   "Apmode selected_speed_knob_up",
                                                   "Apalt selected_altitude_knob_down",
                                                   "Apalt selected_altitude_knob_up",
                                                   "Apcourse selected_heading_knob_down",
                                                   "Apcourse selected_heading_knob_up",
                                                   "Apcourse vertical_speed_thumb_wheel_down",
                                                   "Apcourse vertical_speed_thumb_wheel_up",
                                                   "Cat2apsys green_test_button",
                                                   "Cat2apsys amber_test_button",
                                                   "Ffsys fuel_computer_power_button",
                                                   "Ffsys fuel_used_mode_button",
                                                   "Ffsys weight_mode_button",
                                                   "Ffsys reset_button",
                                                   "Trim pitch_trim_wheel_up",
                                                   "Trim pitch_trim_wheel_down",
                                                   "Pushback turn_button",
                                                   "Pushback automatic_push_back",
                                                   "Pushback automatic_push_left",
                                                   "Pushback automatic_push_right",
                                                   "Pushback manual_push_back",
                                                   "Pushback manual_push_left",
                                                   "Pushback manual_push_right",
                                                   "Stewcall crew_call_button"};
  const std::set<std::string> printed_on_radios{
      "megahertz_knob_down", "megahertz_knob_up",  "kilohertz_knob_down",
      "kilohertz_knob_up",   "set_adf_freq_100hz", "set_adf_freq_10hz",
      "set_adf_freq_1hz",    "set_adf_freq_0_1hz", "dme_test_button"};
  for (const Stimulus* control : controls()) {
    const rig::NamedPart* part = part_of(*control);
    const bool printed =
        printed_on_the_plate.contains(control->text()) || printed_on_radios.contains(control->name);
    EXPECT_EQ(part == nullptr, printed) << control->text();
    if (part == nullptr) {
      const bool later = control->name.starts_with("automatic_push");  // its story is a minute long
      EXPECT_TRUE(later || control->heeded || !control->changed.empty())
          << control->text() << " does nothing";
    } else if (answered_by_the_host.contains(control->text())) {
      EXPECT_TRUE(control->heeded) << control->text() << " asks for nothing";
    } else {
      EXPECT_TRUE(walk::comes_to_change(*control, {gauge_of(*control).header().name, part->name}))
          << control->text() << " leaves " << part->name;
    }
  }
}

/// A guard that closes takes the switch under it along.
bool is_guard_of(std::string guard, std::string_view control) {
  const std::size_t at = guard.rfind("guard");
  return at != std::string::npos && guard.replace(at, 5, "switch") == control;
}

bool is_of_pushback(const Stimulus& control) {
  return gauge_of(control).header().name == std::string("Pushback");
}

TEST(Controls, EachLeavesTheOtherControlsOfItsGaugeAlone) {
  // The APU's master ends its start, the autothrottle its speed hold, a transponder that is off shows no
  // ident, there is one transmitter at a time, and armed dumpers are deployed at once.
  const auto goes_along = [](const Stimulus& control, const std::string& part) {
    const std::string text = control.text();
    return (text == "Apu master_switch" && part == "start_button") ||
           (text == "Apset autothrottle_button" && part == "airspeed_hold_button") ||
           (text.starts_with("Transponder transponder_selector") && part == "ident_button") ||
           (text.starts_with("Micsel") && part.ends_with("microphone_button")) ||
           (text.starts_with("Micsel") && part.ends_with("microphones_button")) ||
           (text == "Ldmain lift_dump_arm_switch" && part == "lift_dump_deployment_switch") ||
           is_of_pushback(control);  // of its modes and angles one takes back the other
  };
  for (const Stimulus* control : controls()) {
    const rig::Gauge& gauge = gauge_of(*control);
    const rig::NamedPart* own = part_of(*control);
    for (const rig::NamedArea& other : gauge.areas()) {
      const rig::NamedPart* part = walk::part_of(gauge, other.name);
      if (own == nullptr || part == nullptr || part == own || is_test(other.name)) continue;
      if (is_guard_of(own->name, part->name) || goes_along(*control, part->name)) continue;
      EXPECT_FALSE(control->changed.contains({gauge.header().name, part->name}))
          << control->text() << " moves " << part->name;
    }
  }
}

TEST(Controls, ASideAnswersToItsOwnControlsAndTokens) {
  for (const Stimulus& stimulus : walk::result().stimuli) {
    const std::string gauge = gauge_of(stimulus).header().name;
    const Stimulus* other = walk::result().find(gauge, sides::mirrored(stimulus.name));
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
                  walk::comes_to_change(*other, {place, other_part}))
          << stimulus.text() << " moves " << place << ' ' << part << ", but " << other->name << " not "
          << other_part;
    }
  }
}

/// Switches, levers and guards click like a toggle switch, buttons, knobs and selectors like a button,
/// and a test button is silent.
TEST(Controls, EachClickIsHeardOnce) {
  const std::map<std::string, std::set<std::string>> unlike_its_kind{
      {"Antiice left_engine_anti_ice_knob", {"toggle"}},  // a switch with a knob on it
      {"Antiice right_engine_anti_ice_knob", {"toggle"}},
      {"Windshield windshield_heat_knob", {"toggle"}},  // a switch with a knob on it
      {"Engstart start_selector_off", {"toggle"}},      // a lever
      {"Engstart start_selector_engine_1", {"toggle"}},
      {"Engstart start_selector_engine_2", {"toggle"}},
      {"Apu start_button", {"", " other"}},       // soft: the APU itself is heard
      {"Stewcall crew_call_button", {" other"}},  // chimes of their own
      {"Stewcall left_sign_switch", {" other"}},
      {"Stewcall right_sign_switch", {" other"}},
      {"Fuelc quantity_test_switch", {""}},
      {"Fuelreq fuel_request_lever", {"push"}},
      {"Gear set_gear_down", {""}},  // heavy: what it moves is heard
      {"Gear set_gear_up", {""}},
      {"Gear set_gear_neutral", {""}},
      {"Gearind horn_cutout_switch", {"push"}},  // a key that stays in
      {"Trim rudder_trim_left", {"toggle"}},     // the motor's contactor
      {"Trim rudder_trim_right", {"toggle"}},
      {"Radalt test_button", {" other"}},
      {"Apcon test_switch_1", {"push"}},
      {"Apcon test_switch_2", {"push"}},
      {"Coltsw left_selector_flow", {"toggle"}},  // levers with a pointer
      {"Coltsw left_selector_quantity", {"toggle"}},
      {"Coltsw left_selector_check", {"toggle"}},
      {"Coltsw right_selector_flow", {"toggle"}},
      {"Coltsw right_selector_quantity", {"toggle"}},
      {"Coltsw right_selector_check", {"toggle"}},
      {"Dhgpws stall_warning_button", {"push", "push other"}},  // the warning's sound, in a test
      {"Dhgpws ground_proximity_button", {"push", "push other"}},
      {"Flightrec event_button", {""}},
      {"Flightrec readout_button", {""}},
      {"Airspeed set_airspeed_bug_1", {""}},  // rings that turn freely
      {"Airspeed set_airspeed_bug_2", {""}},
      {"Airspeed set_airspeed_bug_3", {""}},
      {"Airspeed set_airspeed_bug_4", {""}},
      {"Airspeed selected_speed_knob_down", {""}},
      {"Airspeed selected_speed_knob_up", {""}},
      {"Selcall taxi_announcement_button", {"", " other"}},
      {"Selcall safety_announcement_button", {"", " other"}},
      {"Selcall climb_announcement_button", {"", " other"}},
      {"Selcall descent_announcement_button", {"", " other"}},
      {"Selcall final_approach_announcement_button", {"", " other"}},
      {"Selcall roll_out_announcement_button", {"", " other"}},
      {"Selcall welcome_announcement_button", {"push", "push other"}},
      {"Selcall ground_power_button", {"push other"}},
      {"Thleft throttle_1_lever", {""}},  // levers that slide
      {"Thright throttle_2_lever", {""}},
      {"Thright flap_lever_up", {""}},
      {"Thright flap_lever_down", {""}},
      {"Thleft parking_brake_lever", {" other"}},  // heard as what they are
      {"Thleft speed_brake_switch", {" other"}},
      {"Vcthleft speed_brake_switch", {" other"}},
  };
  for (const Stimulus* control : controls()) {
    const rig::NamedPart* part = part_of(*control);
    const std::string& kind =
        part != nullptr && part->element->kind == ELEMENT_ICON ? part->name : control->name;
    const bool test = is_test(control->name);
    const bool toggle = ends_with_one_of(kind, {"switch", "lever", "guard", "bank", "handle"});
    std::set<std::string> expected{test ? "" : toggle ? "toggle" : "push"};
    const auto unlike = unlike_its_kind.find(control->text());
    if (unlike != unlike_its_kind.end()) expected = unlike->second;
    // The radios' detents.
    if (ends_with_one_of(control->name, {"transfer_button", "code_knob", "hz"})) expected = {"toggle"};
    if (control->name.starts_with("deviation_check_switch")) expected = {"push"};
    EXPECT_EQ(control->sounds, expected) << control->text();
  }
}

using walk::Moves;

/// What the moves of a control are by its kind, from image to image of `last + 1`.
Moves moves_of(std::string_view control, std::string_view part, f64 last) {
  if (ends_with_one_of(control, {"up"}) && last == 2 && !part.ends_with("knob")) {
    return {{0, 1}, {1, 0}, {2, 0}};
  }
  if (ends_with_one_of(control, {"down"}) && last == 2 && !part.ends_with("knob")) {
    return {{0, 2}, {1, 0}, {2, 0}};
  }
  Moves moves;
  for (f64 at = 0; at <= last; ++at) {
    f64 to = at < last ? at + 1 : 0;
    if (control.ends_with("up")) to = std::min(at + 1, last);
    if (control.ends_with("down")) to = std::max(at - 1, 0.0);
    moves.emplace(at, to);
  }
  return moves;
}

/// A lever goes from the centre to its half and from anywhere else to the centre; a knob or selector
/// with two halves goes one step and stops at its ends; everything else goes round.
TEST(Controls, EachHasTheMovesOfItsKind) {
  const std::map<std::string, Moves> of_its_own{
      {"Engstart start_selector_off", {{0, 0}, {1, 0}, {2, 0}}},
      {"Engstart start_selector_engine_1", {{0, 2}, {1, 2}, {2, 2}}},
      {"Engstart start_selector_engine_2", {{0, 1}, {1, 1}, {2, 1}}},
      // The knob leans the way it was turned, but not at its end; a second later it stands again.
      {"Tempcon left_temperature_selector_down", {{0, 0}, {0, 1}}},
      {"Tempcon left_temperature_selector_up", {{0, 0}, {0, 2}}},
      {"Tempcon right_temperature_selector_down", {{0, 0}, {0, 1}}},
      {"Tempcon right_temperature_selector_up", {{0, 0}, {0, 2}}},
      // Left switches it on and off, right tests it.
      {"Mancon manual_control_button", {{0, 1}, {1, 0}, {1, 2}}},
      {"Adi attitude_flag_button", {{0, 1}, {1, 1}}},
      {"Fuelreq fuel_request_lever", {{0, 1}}},
      {"Coltsw left_selector_flow", {{0, 1}, {1, 1}, {2, 1}}},
      {"Coltsw left_selector_quantity", {{0, 0}, {1, 0}, {2, 0}}},
      {"Coltsw left_selector_check", {{0, 2}, {1, 2}, {2, 2}}},
      {"Coltsw right_selector_flow", {{0, 1}, {1, 1}, {2, 1}}},
      {"Coltsw right_selector_quantity", {{0, 0}, {1, 0}, {2, 0}}},
      {"Coltsw right_selector_check", {{0, 2}, {1, 2}, {2, 2}}},
      // Without a mode there is nothing to identify.
      {"Transponder ident_button", {{0, 0}, {0, 1}, {1, 0}}},
      // Left of the centre, and right of it.
      {"Thright pedestal_selector_switch_left", {{0, 1}, {1, 0}, {2, 0}}},
      {"Thright pedestal_selector_switch_right", {{0, 2}, {1, 0}, {2, 0}}},
      {"Vcthright pedestal_selector_switch_left", {{0, 1}, {1, 0}, {2, 0}}},
      {"Vcthright pedestal_selector_switch_right", {{0, 2}, {1, 0}, {2, 0}}},
      // Its lower position comes first.
      {"Thright auxiliary_switch_up", {{0, 2}, {1, 0}, {2, 0}}},
      {"Thright auxiliary_switch_down", {{0, 1}, {1, 0}, {2, 0}}},
      {"Vcthright auxiliary_switch_up", {{0, 2}, {1, 0}, {2, 0}}},
      {"Vcthright auxiliary_switch_down", {{0, 1}, {1, 0}, {2, 0}}},
      // It cannot be armed at take-off thrust.
      {"Thleft speed_brake_switch", {{0, 0}, {0, 1}, {1, 0}}},
      {"Vcthleft speed_brake_switch", {{0, 0}, {0, 1}, {1, 0}}},
      {"Gear set_gear_down", {{0, 0}, {1, 0}, {1, 2}, {2, 2}}},  // up and down are the aircraft's
      {"Gear set_gear_up", {{0, 0}, {1, 0}, {1, 2}, {2, 2}}},
      {"Gear set_gear_neutral", {{0, 1}, {1, 1}, {2, 1}}},
      {"Trim rudder_trim_left", {{0, 1}}},
      {"Trim rudder_trim_right", {{0, 2}}},
      // The left button moves a handle down, the right one up.
      {"Firesw left_fire_handle", {{0, 1}, {1, 0}, {1, 2}, {2, 1}}},
      {"Firesw apu_fire_handle", {{0, 1}, {1, 0}, {1, 2}, {2, 1}}},
      {"Firesw right_fire_handle", {{0, 1}, {1, 0}, {1, 2}, {2, 1}}},
  };
  for (const Stimulus* control : controls()) {
    const rig::NamedPart* part = part_of(*control);
    if (part == nullptr || part->element->kind != ELEMENT_ICON) continue;
    if (is_test(control->name) || answered_by_the_host.contains(control->text())) continue;
    const f64 last = part->element->icon.image_count - 1.0;
    Moves expected = moves_of(control->name, part->name, last);
    const auto own = of_its_own.find(control->text());
    if (own != of_its_own.end()) expected = own->second;
    if (control->name == "transfer_button") expected = {{0, 1}};  // it shines for some seconds
    std::string guard = part->name;
    if (guard.ends_with("switch")) guard.replace(guard.size() - 6, 6, "guard");
    const bool guarded = guard != part->name && walk::part_of(gauge_of(*control), guard) != nullptr &&
                         walk::part_of(gauge_of(*control), guard)->name == guard;
    if (guarded) expected.emplace(0, 0);
    Moves seen = walk::moves(*control, expected);
    // The right button tests a light; a button of this panel engages only where it can; a push that is
    // at its target sets the automatic mode again.
    const bool may_stay = (control->area->area->mouse_flags & MOUSE_RIGHT) != 0 ||
                          gauge_of(*control).header().name == std::string("Apset") ||
                          is_of_pushback(*control);
    if (may_stay) {
      std::erase_if(seen, [](const auto& move) { return move.first == move.second; });
    }
    if (part->name == "mode_selector") {  // on a glide slope the knob goes on by itself
      for (const auto& capture : {std::pair{2.0, 4.0}, {4.0, 2.0}, {4.0, 4.0}}) seen.erase(capture);
    }
    EXPECT_EQ(seen, expected) << control->text();
  }
}

/// A disconnect light that has latched goes dark when its switch is worked under the closed guard.
void darken_latched_lights(rig::Gauge& panel) {
  for (const std::string drive : {"drive_1_disconnect_", "drive_2_disconnect_"}) {
    panel.frame();
    if (panel.value(drive + "guard") == 1) panel.click(drive + "guard");
    panel.click(drive + "switch");
  }
}

TEST(Controls, ALightUnderTestShinesForTwoSecondsAndTestsProlongEachOther) {
  rig::Host host;
  aircraft.duct_left_temp_normal = aircraft.duct_right_temp_normal = 1;
  f64& clock = host.tokens[token::clock_seconds];
  for (rig::Gauge& gauge : rig::built_gauges()) {
    std::vector<std::pair<std::string, const rig::NamedPart*>> tests;
    for (const rig::NamedArea& area : gauge.areas()) {
      const rig::NamedPart* light = walk::part_of(gauge, area.name);
      const bool no_light = area.name == "quantity_test_switch" || area.name.starts_with("test_switch");
      if (is_test(area.name) && light != nullptr && !no_light) tests.emplace_back(area.name, light);
    }
    if (gauge.header().name == std::string("Acpwr")) darken_latched_lights(gauge);
    for (const auto& [button, light] : tests) {
      SCOPED_TRACE(std::string(gauge.header().name) + ' ' + button);
      const auto shown_after = [&](f64 seconds) {
        clock += seconds;
        gauge.frame();
        return gauge.value(*light);
      };
      const f64 dark = shown_after(100), lit = 1 - dark;
      gauge.click(button);
      EXPECT_EQ(shown_after(2.5), lit);
      gauge.click(tests.back().first);
      EXPECT_EQ(shown_after(1.5), lit);
      EXPECT_EQ(shown_after(1), dark);
      gauge.click(button);
      EXPECT_EQ(shown_after(-9), lit) << "the clock may run back by up to 16 seconds";
      EXPECT_EQ(shown_after(-8), dark) << "but not further";
    }
  }
}

TEST(Controls, TheCursorSaysWhichWayAHalfTurns) {
  for (const Stimulus* control : controls()) {
    const rig::NamedPart* part = part_of(*control);
    const bool lever = part != nullptr && part->name != "flap_lever" &&
                       ends_with_one_of(part->name, {"lever", "switch", "mode_selector"});
    // Pulled down, the flap lever gives more flap.
    const bool turned_round = part != nullptr && part->name == "flap_lever";
    const bool more = control->name.ends_with(turned_round ? "down" : "up");
    const bool less = control->name.ends_with(turned_round ? "up" : "down");
    const i32 expected = lever  ? CURSOR_HAND
                         : more ? CURSOR_INCREASE
                         : less ? CURSOR_DECREASE
                                : CURSOR_HAND;
    EXPECT_EQ(control->area->area->cursor, expected) << control->text();
  }
}

TEST(Controls, EveryImageOfAnIconIsShownAndNoOther) {
  // What these show hangs on where the aircraft is, or cannot be seen; each has its stories.
  const std::set<std::string> of_the_flight{"Adi",   "Altimeter", "Dhgpws",   "Hsi",
                                            "Hvsnd", "Markers",   "Pushback", "Radalt"};
  const std::vector<rig::Gauge>& gauges = walk::result().gauges;
  for (std::size_t g = 0; g < gauges.size(); ++g) {
    if (of_the_flight.contains(gauges[g].header().name)) continue;
    for (std::size_t i = 0; i < gauges[g].parts().size(); ++i) {
      const rig::NamedPart& part = gauges[g].parts()[i];
      if (part.element->kind != ELEMENT_ICON) continue;
      std::set<f64> images;
      for (f64 image = 0; image < part.element->icon.image_count; ++image) images.insert(image);
      EXPECT_EQ(walk::shown(g, i, images.size()), images)
          << gauges[g].header().name << ' ' << part.name;
    }
  }
}

}  // namespace
