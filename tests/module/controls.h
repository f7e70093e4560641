/// The controls of the walk, and what their names say of them.
#pragma once

#include <algorithm>
#include <initializer_list>
#include <set>
#include <string>
#include <vector>

#include "tests/module/walk.h"

namespace walk {

inline std::vector<const Stimulus*> controls() {
  std::vector<const Stimulus*> all;
  for (const Stimulus& s : result().stimuli) {
    if (s.area) all.push_back(&s);
  }
  return all;
}

inline const rig::Gauge& gauge_of(const Stimulus& s) { return result().gauges[s.gauge]; }

/// Whether a name is like a pattern, in which every * stands for anything.
inline bool is_like(std::string_view name, std::string_view pattern) {
  const std::size_t star = pattern.find('*');
  if (star == pattern.npos) return name == pattern;
  if (!name.starts_with(pattern.substr(0, star))) return false;
  for (std::size_t at = star; at <= name.size(); ++at) {
    if (is_like(name.substr(at), pattern.substr(star + 1))) return true;
  }
  return false;
}
inline bool is_like(std::string_view name, std::initializer_list<std::string_view> patterns) {
  return std::ranges::any_of(patterns, [&](auto pattern) { return is_like(name, pattern); });
}

/// What stands behind the first pattern of a table that the name is like, or null.
inline const std::string* row_like(const std::vector<std::vector<std::string>>& rows,
                                   std::string_view name) {
  const auto row = std::ranges::find_if(rows, [&](const auto& each) { return is_like(name, each[0]); });
  return row == rows.end() ? nullptr : &(*row)[1];
}

/// A light under test is no control.
inline bool is_test(std::string_view control) { return control.find("test") != control.npos; }

/// Levers and pointers that stand where the host's answer puts them.
inline bool is_answered_by_the_host(const Stimulus& control) {
  return is_like(control.text(), {"Hsi course_knob_*", "Airspeed selected_speed_knob_*",
                                  "Th* throttle_1_lever", "Th* throttle_2_lever", "Thright flap_lever_*"});
}

/// Of its modes and angles one takes back the other.
inline bool is_of_pushback(const Stimulus& control) { return control.text().starts_with("Pushback"); }

}  // namespace walk
