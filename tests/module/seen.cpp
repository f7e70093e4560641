#include "tests/module/seen.h"

#include <algorithm>
#include <functional>
#include <map>
#include <utility>

namespace walk {

using namespace tarnvale;

Picture picture(const rig::Gauge& gauge) {
  Picture all;
  for (const rig::NamedPart& part : gauge.parts()) {
    const Element& e = *part.element;
    const bool text = e.kind == ELEMENT_STRING;
    all.push_back(text ? static_cast<f64>(std::hash<std::string_view>()(e.string.text) >> 12)
                       : gauge.value(part));
  }
  return all;
}

std::string sounds_of_click() {
  std::string sounds;
  if (rig::heard(toggle_click_sound_request)) sounds += "toggle";
  if (rig::heard(click_sound_request)) sounds += "push";
  for (u32& other : aircraft.sound_requests) {
    if (std::exchange(other, 0u) != 0) sounds += " other";
  }
  return sounds;
}

const rig::NamedPart* part_of(const rig::Gauge& gauge, std::string_view control) {
  static const std::map<std::string, std::string> other_names{
      {"landing_lights_levers", "left_landing_light_lever"},
      {"cabin_altitude_knob_down", "selected_cabin_altitude"},
      {"cabin_altitude_knob_up", "selected_cabin_altitude"},
      {"set_gear_down", "gear_handle"},
      {"set_gear_up", "gear_handle"},
      {"set_gear_neutral", "gear_handle"},
      {"rudder_trim_left", "rudder_trim_buttons"},
      {"rudder_trim_right", "rudder_trim_buttons"},
      {"automatic_button", "automatic_light"},
      {"manual_button", "manual_light"},
      {"set_airspeed_bug_1", "speed_bug_1"},
      {"set_airspeed_bug_2", "speed_bug_2"},
      {"set_airspeed_bug_3", "speed_bug_3"},
      {"set_airspeed_bug_4", "speed_bug_4"},
  };
  std::string name(control);
  // Two panels set the decision height; each shows it its own way.
  if (name.starts_with("decision_height_knob")) {
    const bool drums = gauge.header().name == std::string_view("Dhgpws");
    name = drums ? "decision_height_tens" : "decision_height_bug";
  }
  if (const auto other = other_names.find(name); other != other_names.end()) name = other->second;
  while (true) {
    const auto part = std::ranges::find(gauge.parts(), name, &rig::NamedPart::name);
    if (part != gauge.parts().end()) return &*part;
    if (name.find('_') == std::string::npos) return nullptr;
    name.erase(name.rfind('_'));
  }
}

}  // namespace walk
