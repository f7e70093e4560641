/// A person's keys, joysticks and mouse at the controls of the aircraft, and the turns of the head.
#pragma once

#include <SDL2/SDL.h>

#include <cstddef>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <vector>

#include "host/hands/control_map.h"
#include "host/hands/hands.h"
#include "host/hands/sticks.h"
#include "host/outside/sight.h"
#include "host/window/screen_window.h"

namespace host {

class FlyingHands {
 public:
  /// `controls` is the file of keys and sticks; empty: there are none. Throws ConfigError.
  explicit FlyingHands(const std::filesystem::path& controls);

  /// An event of a joystick or game controller; any other is ignored.
  void take_stick(const SDL_Event& event);

  /// A key to which the file of controls gives something to do; false for any other. `refused` is asked
  /// before a key moves a control: if it returns true, nothing moves.
  bool take_key(const SDL_KeyboardEvent& key, const std::function<bool()>& refused);
  void let_go_of_keys();

  /// Whether the mouse is the stick. Letting go of it centres the stick.
  bool has_yoke() const { return yoke_; }
  void toggle_yoke();
  /// The pointer's place in the window is the stick's, and the wheel moves the throttles from where
  /// they stand `now`. False for an event that is not the yoke's.
  bool take_yoke(const SDL_Event& event, const ScreenWindow& window,
                 const simulation::FlightControls& now);

  /// What has been moved with this frame, as Hands::frame().
  FlightInputs frame(double seconds, const simulation::FlightControls& now) {
    return hands_.frame(seconds, now);
  }
  /// What has been pressed for the program since the last call.
  std::vector<WindowAction> take_window_actions() { return hands_.take_window_actions(); }

  /// Turns the head for so many seconds as the held keys say.
  void turn_head(double seconds);
  const outside::Look& look() const { return look_; }

  // What the page of controls shows.
  const ControlMap& map() const { return map_; }
  const Hands& hands() const { return hands_; }
  std::vector<StickState> sticks() const;

 private:
  ControlMap map_;
  Hands hands_;
  std::optional<Sticks> sticks_;
  std::map<SDL_Keycode, std::size_t> held_keys_;  ///< and the action of each
  bool yoke_ = false;
  outside::Look look_;
};

}  // namespace host
