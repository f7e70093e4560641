/// Plays the panel host for the tests: tokens in, frames and clicks; pictures, key events, window
/// calls and sound requests out. One rig at a time; a new one puts the shared state back to its start.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "module/aircraft.h"

namespace rig {

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
  std::map<u32, f64> tokens;
  Events events;
  WindowCalls windows;
  /// Called for every key event, to let tokens follow.
  std::map<u32, std::function<void()>> on_event;

  /// Lets each event flip its token between 0 and 1, as the host's switches do.
  void flips(u32 event, u32 token);
};

/// A running gauge of the module, by its name.
class Gauge {
 public:
  explicit Gauge(std::string_view name);

  const GaugeHeader& header() const { return *header_; }
  const std::vector<Element*>& chain() const { return chain_; }

  /// Runs whole frames: tick, the values of every shown element, after values, before draw.
  void frame(int count = 1);

  /// Sends one service id.
  void service(u32 id, uintptr_t extra_data = 0);

  /// Clicks at a pixel of the background. Fails the test where nothing answers there.
  void click(i32 x, i32 y, u32 flags = MOUSE_LEFT);
  void right_click(i32 x, i32 y) { click(x, y, MOUSE_RIGHT); }

  /// The value of the element with that bitmap in the set that shows, after the last frame. `nth`
  /// counts from 0 among the elements of the set with the same bitmap, in chain order.
  f64 value(i32 resource, int nth = 0) const;

  /// The element at a position of the set that shows.
  f64 value_at(PanelPoint position) const;

  /// A text of the set that shows.
  std::string text(int nth = 0) const;

 private:
  std::size_t index_of(i32 resource, int nth) const;
  const GaugeHeader* header_;
  std::vector<Element*> chain_;
  std::vector<f64> values_;
};

/// The header of a gauge by name; null if the module has none.
const GaugeHeader* find(std::string_view name);

/// How many sounds are asked for just now; and the test's ear: asks, and takes the request away.
int sounds_requested();
bool heard(tarnvale::SoundRequest sound);

}  // namespace rig
