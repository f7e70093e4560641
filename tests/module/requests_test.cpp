/// What controls ask of the aircraft: the key event that bears their name.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <sstream>

#include "tests/module/walk.h"
#include "tests/rig/token_list.h"

namespace {

using Words = std::set<std::string>;

/// Without the words for the kind of a control and for what becomes of its state.
Words words_of(std::string name) {
  static const Words kinds{"knob", "switch", "button", "lever", "levers", "wheel", "thumb",
                           "bank", "set",    "toggle", "on",    "off",    "push", "selected"};
  if (const auto at = name.find("anti_ice"); at != name.npos) name.replace(at, 8, "antiice");
  std::ranges::replace(name, '_', ' ');
  std::istringstream all(name);
  Words words;
  for (std::string word; all >> word;) {
    if (!kinds.contains(word)) words.insert(word);
  }
  return words;
}

bool is_named_after(const std::string& event, const std::string& control) {
  const Words asked = words_of(event), worked = words_of(control);
  return std::ranges::includes(asked, worked) || std::ranges::includes(worked, asked);
}

/// Events of other names: after a blank each.
struct Request {
  const char *control, *events;
};
constexpr Request otherwise_named[] = {
    {"Apu start_button", "apu_stop"},
    {"Engstart start_master_switch", "ignition_arm"},
    {"Engstart start_selector_engine_1", "starter_1_engage"},
    {"Engstart start_selector_engine_2", "starter_2_engage"},
    {"Ramair inlet_switch", "ram_air_toggle"},
    {"Cabalt standard_pressure_button", "altimeters_to_qnh"},
    {"Vhf1nav transfer_button", "nav1_exchange"},
    {"Vhf2nav transfer_button", "nav2_exchange"},
    {"Nav1rad transfer_button", "nav1_exchange"},
    {"Comm transfer_button", "com1_exchange"},
    {"Adf set_adf_freq_0_1hz", "adf_tenths_up"},
    {"Adf set_adf_freq_1hz", "adf_units_up"},
    {"Adf set_adf_freq_10hz", "adf_tens_up"},
    {"Adf set_adf_freq_100hz", "adf_hundreds_up"},
    {"Transponder first_code_knob", "transponder_thousands_up"},
    {"Transponder second_code_knob", "transponder_hundreds_up"},
    {"Transponder third_code_knob", "transponder_tens_up"},
    {"Transponder fourth_code_knob", "transponder_units_up"},
    {"Micsel vhf_1_microphone_button", "transmit_on_com1"},
    {"Micsel vhf_2_microphone_button", "transmit_on_com2"},
    {"Micsel both_microphones_button", "receive_all_toggle"},
    {"Micsel nav_1_audio_button", "nav1_identification_on nav1_identification_off"},
    {"Micsel nav_2_audio_button", "nav2_identification_on nav2_identification_off"},
    {"Micsel adf_audio_button", "adf_identification_on adf_identification_off"},
    {"Trim pitch_trim_wheel_up", "pitch_trim_nose_down"},
    {"Trim pitch_trim_wheel_down", "pitch_trim_nose_up"},
    {"Clock setting_knob_down", "clock_back"},
    {"Clock setting_knob_up", "clock_forward"},
    {"Apcourse navigation_source_button", "hsi_source_toggle"},
    {"Apset autothrottle_button", "airspeed_hold_off"},
};
/// More than one event by the state of the panel: each has a story of its own.
const std::set<std::string> of_a_story{
    "Apmode mode_selector_up",     "Apmode mode_selector_down",
    "Ldmain lift_dump_arm_switch", "Ldmain lift_dump_deployment_switch",
    "Cutoff pump_1_switch",        "Cutoff pump_2_switch"};

/// The numbers of receivers are not in their controls' names.
std::string receiver_of(std::string_view gauge) {
  if (gauge == "Vhf1nav" || gauge == "Nav1rad") return "nav1";
  if (gauge == "Vhf2nav") return "nav2";
  return gauge == "Comm" ? "com1" : "";
}

/// Steps by one of what the host counts itself.
bool is_counted(std::string_view gauge, std::string_view control) {
  const bool turned = control.ends_with("_up") || control.ends_with("_down");
  return gauge == "Trim" || (turned && (gauge == "Hsi" || gauge == "Altimeter" || gauge == "Apmode" ||
                                        gauge == "Apcourse"));
}

TEST(Requests, BearTheNamesOfTheirControls) {
  for (const walk::Stimulus& control : walk::result().stimuli) {
    const std::string gauge = walk::result().gauges[control.gauge].header().name;
    if (!control.area || gauge == "Pushback" || of_a_story.contains(control.text())) continue;
    const auto other = std::ranges::find(otherwise_named, control.text(), &Request::control);
    const std::string others =
        other != std::end(otherwise_named) ? std::string(" ") + other->events + ' ' : "";
    for (const auto& [event, value] : control.sent) {
      const auto found = std::ranges::find(rig::all_events, event, &rig::Listed::number);
      const std::string name(found->name);
      EXPECT_TRUE(others.find(' ' + name + ' ') != others.npos || is_named_after(name, control.name))
          << control.text() << " sends " << name;
      EXPECT_TRUE(name.starts_with(receiver_of(gauge))) << control.text() << " sends " << name;
      if (gauge == "Transponder" || name.starts_with("throttle"))
        continue;  // the code, the lever's place
      EXPECT_EQ(value, is_counted(gauge, control.name)) << control.text() << " sends " << name;
    }
  }
  for (const Request& request : otherwise_named) {
    const std::string control = request.control;
    const std::size_t blank = control.find(' ');
    const walk::Stimulus* worked =
        walk::result().find(control.substr(0, blank), control.substr(blank + 1));
    ASSERT_NE(worked, nullptr) << control;
    EXPECT_FALSE(worked->sent.empty()) << control << " sends nothing";
  }
}

}  // namespace
