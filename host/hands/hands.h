/// A person's hands and feet: keys that are held, sticks that are moved, and how the controls follow.
///
/// Time here is that of the simulation, a frame at a time: the same presses in the same frames move the
/// same controls to the bit.
#pragma once

#include <array>
#include <utility>
#include <vector>

#include "host/hands/actions.h"

namespace host {

class Hands {
 public:
  Hands();

  /// A key or a button, by its action's place in the table. Several may hold the same one.
  void press(std::size_t action);
  void release(std::size_t action);

  /// Lets go of all keys and buttons, for when their release will not be heard of.
  void release_all();

  /// An axis has moved to -1..1 (or, where it goes one way only, 0..1).
  void move(std::size_t axis_row, double position);

  /// Moves one control at once, as an axis does.
  void move(Control control, double position);

  /// What has been moved with this frame of `seconds`, from where the controls stand `now`. A control
  /// that nobody holds and nobody moves is left to whoever else flies.
  FlightInputs frame(double seconds, const simulation::FlightControls& now);

  /// Held actions that turn the head: -1 to 1.
  double look_right() const { return look(WindowAction::look_right); }
  double look_up() const { return look(WindowAction::look_up); }

  /// What has been pressed for the program since the last call.
  std::vector<WindowAction> take_window_actions() { return std::exchange(for_window_, {}); }

  bool is_held(std::size_t action) const { return held_[action] > 0; }

 private:
  struct Spring {
    double position = 0.0;
    double held_s = 0.0;
    bool active = false;
  };

  double look(WindowAction direction) const;
  double pull(Control control) const;
  void press_once(const ActionRow& row, const simulation::FlightControls& now, FlightInputs& inputs);
  void follow_spring(Control control, double seconds, const simulation::FlightControls& now,
                     FlightInputs& inputs);
  void follow_ramps(double seconds, const simulation::FlightControls& now, FlightInputs& inputs);

  std::vector<int> held_;             ///< of each action: by how many keys
  std::vector<std::size_t> pressed_;  ///< since the last frame
  std::vector<WindowAction> for_window_;
  FlightInputs moved_;  ///< by axes since the last frame
  std::array<Spring, control_count> springs_;
};

}  // namespace host
