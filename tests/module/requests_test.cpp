/// What controls ask of the aircraft: the key event that bears their name, or that of the table requests.txt.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <sstream>

#include "tests/module/walk.h"
#include "tests/rig/rows.h"
#include "tests/rig/token_list.h"

namespace {

using Words = std::set<std::string>;

/// Without the words for the kind of a control and for what becomes of its state.
Words words_of(std::string name) {
  static const Words kinds{"knob", "switch", "button", "lever", "levers", "wheel", "thumb",
                           "bank", "set",    "toggle", "on",    "off",    "push",  "selected"};
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
  std::map<std::string, std::string> otherwise_named;
  for (const Row& row : rows_of("module/requests.txt", 2)) otherwise_named[row[0]] = ' ' + row[1] + ' ';
  for (const walk::Stimulus& control : walk::result().stimuli) {
    const std::string gauge = walk::result().gauges[control.gauge].header().name;
    if (!control.area || gauge == "Pushback" || of_a_story.contains(control.text())) continue;
    const auto other = otherwise_named.extract(control.text());
    const std::string others = other ? other.mapped() : "";
    EXPECT_FALSE(other && control.sent.empty()) << control.text() << " sends nothing";
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
  EXPECT_TRUE(otherwise_named.empty()) << "there is no " << otherwise_named.begin()->first;
}

}  // namespace
