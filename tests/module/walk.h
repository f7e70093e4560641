/// A random walk through the whole cockpit with the power on: controls are clicked and tokens change, and
/// what each of them did is written down. The same walk every time. It stays longest where it learns
/// something; what a test misses it goes and looks for.
#pragma once

#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "tests/module/seen.h"

namespace walk {

/// A gauge and one of its parts.
using Place = std::pair<std::string, std::string>;

/// From value to value.
using Moves = std::set<std::pair<f64, f64>>;

/// Everything that working one control, or changing one token that a gauge reads, was seen to do.
struct Stimulus {
  std::size_t gauge;                     ///< in `gauges`
  std::optional<rig::NamedArea> area{};  ///< or a token
  u32 token = 0;
  const rig::NamedPart* part = nullptr;     ///< that the area is named after; see seen.h
  std::string name;                         ///< of area or token
  std::set<Place> changed = {};             ///< parts that showed something else right after it
  Moves moves = {};                         ///< of its part
  std::set<std::string> sounds = {};        ///< "toggle", "push", other or none, with each click
  std::set<std::pair<u32, u32>> sent = {};  ///< with their values, by its clicks
  bool heeded = false;                      ///< it sent an event or changed the shared state

  std::string text() const;  ///< for messages
};

struct Result {
  std::vector<rig::Gauge> gauges;
  std::vector<Stimulus> stimuli;
  std::set<u32> tokens;  ///< looked up
  std::set<u32> events;  ///< sent

  /// Null if the gauge has no control or token of that name.
  const Stimulus* find(std::string_view gauge, std::string_view name) const;
};

const Result& result();

/// Whether the stimulus can change that part. Looks for it where the walk has not met it.
bool comes_to_change(const Stimulus& stimulus, const Place& place);

/// The moves of the stimulus's part. Looks for those wanted that are not among them.
const Moves& moves(const Stimulus& stimulus, const Moves& wanted);

/// The values of an icon, by its gauge's and its own place in `gauges` and `parts()`. Looks for more while
/// there are fewer than `images`.
const std::set<f64>& shown(std::size_t gauge, std::size_t part, std::size_t images);

}  // namespace walk
