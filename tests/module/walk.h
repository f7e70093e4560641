/// A long random walk through the whole cockpit with the power on: controls are clicked and tokens
/// change, and what each of them did is written down. The same walk every time.
#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "tests/rig/rig.h"

namespace walk {

/// A gauge and one of its parts.
using Place = std::pair<std::string, std::string>;

/// Everything that working one control, or changing one token that a gauge reads, was seen to do.
struct Stimulus {
  std::size_t gauge;                     ///< in `gauges`
  std::optional<rig::NamedArea> area{};  ///< or a token
  u32 token = 0;
  std::string name;                          ///< of area or token
  std::set<Place> changed = {};              ///< parts that showed something else right after it
  std::set<std::pair<f64, f64>> moves = {};  ///< of the part that the area is named after
  std::set<std::string> sounds = {};         ///< "toggle", "push", other or none, with each click
  bool heeded = false;                       ///< it sent an event or changed the shared state

  std::string text() const;  ///< for messages
};

struct Result {
  std::vector<rig::Gauge> gauges;
  std::vector<Stimulus> stimuli;
  std::map<Place, std::set<f64>> shown;  ///< by icons
  std::set<u32> tokens;                  ///< looked up
  std::set<u32> events;                  ///< sent

  /// Null if the gauge has no control or token of that name.
  const Stimulus* find(std::string_view gauge, std::string_view name) const;
};

const Result& result();

/// The part that a control works, which it is named after: "start_selector" for "start_selector_off".
/// Null for a button that is printed on its plate.
const rig::NamedPart* part_of(const rig::Gauge& gauge, std::string_view control);

/// A name with the other side in place of the only one that it names: "pump_2" for "pump_1". Empty if
/// it names none or several.
std::string mirrored(const std::string& name);

/// Whether two names mean different sides of one thing. Left, 1 and A are one side, right, 2 and B the
/// other.
bool opposite(const std::string& one, const std::string& two);

}  // namespace walk
