/// Plays the panel host for the tests: tokens in, frames and clicks; pictures, key events, window
/// calls and sound requests out. Parts and controls have the names that their words make
/// ("battery_switch"). One rig at a time; a new one puts the shared state back to its start.
#pragma once

#include <initializer_list>
#include <source_location>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include "module/aircraft.h"
#include "resources/names/gauge_names.h"

namespace rig {

using tarnvale::names::NamedArea;
using tarnvale::names::NamedPart;

using Events = std::vector<std::pair<u32, u32>>;

/// What a gauge asked of the host's windows: 'o' open, 'c' close, 't' toggle, and the ident.
using WindowCalls = std::vector<std::pair<char, u32>>;

class Host {
 public:
  Host();
  ~Host();
  Host(const Host&) = delete;
  Host& operator=(const Host&) = delete;

  /// Host token variables; the others read 0.
  std::unordered_map<u32, f64> tokens;
  Events events;
  WindowCalls windows;

  /// The events since they were last asked for.
  Events sent() { return std::exchange(events, {}); }

  /// The tokens that the module has looked up so far.
  std::unordered_set<u32> looked_up;

  /// Whether each key event named after a token ("battery_toggle", "altitude_hold_on") flips or sets it,
  /// as the aircraft does.
  bool follows = false;
};

/// A value of an element: its source and its routine.
struct Reading {
  TokenVariable* source;
  ValueRoutine routine;  ///< null: the value is the source's
  bool evaluated = true;
};

/// A running gauge of the module.
class Gauge {
 public:
  explicit Gauge(std::string_view name);
  explicit Gauge(const GaugeHeader& header);

  const GaugeHeader& header() const { return *header_; }
  const std::vector<NamedPart>& parts() const { return parts_; }
  const std::vector<NamedArea>& areas() const { return areas_; }

  /// Runs whole frames: tick, the values of every element that is neither hidden nor covered by its
  /// lit copy, after values, before draw.
  void frame(int count = 1);

  /// Sends one service id.
  void service(u32 id, uintptr_t extra_data = 0);

  /// Clicks in the middle of a control's box. Fails the test where another one answers, or none.
  void click(std::string_view control, u32 flags = MOUSE_LEFT);
  void right_click(std::string_view control) { click(control, MOUSE_RIGHT); }

  /// What a part showed in the last frame: the value of its shown copy, and of a text its letters.
  f64 value(std::string_view part) const;
  f64 value(const NamedPart& part) const { return values_[part.index]; }
  std::string text(std::string_view part) const;

  /// Runs a frame and expects what parts show then.
  void expect(std::initializer_list<std::pair<std::string_view, f64>> parts,
              std::source_location at = std::source_location::current());

 private:
  const GaugeHeader* header_;
  std::vector<NamedPart> parts_;
  std::vector<NamedArea> areas_;
  std::vector<Element*> chain_;
  std::vector<std::vector<Reading>> readings_;
  std::vector<std::size_t> covered_by_;  ///< a later copy of each element, or 0
  std::vector<f64> values_;
};

/// Every gauge of the module that has parts or areas; not the sound gauge, which asks for a device.
std::vector<Gauge> built_gauges();

/// A gauge's elements from the background on.
std::vector<Element*> chain_of(const GaugeHeader& gauge);

/// How many sounds are asked for just now; and the test's ear: asks, and takes the request away.
int sounds_requested();
bool heard(tarnvale::SoundRequest sound);

}  // namespace rig
