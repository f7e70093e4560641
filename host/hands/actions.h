/// What a key or a button can do, and what an axis can move.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string_view>

#include "host/hands/flight_inputs.h"

namespace host {

/// How a pressed key moves its control.
enum class Motion {
  spring,  ///< toward `amount` while it is held, back to the middle after
  ramp,    ///< by `amount` a second while it is held
  step,    ///< by `amount` once
  flip,    ///< to the other of its two places
  set,     ///< to `amount`
  look,    ///< turns the head while it is held: `amount` right, or up
  window,  ///< something of the program's
};

/// For actions that are not the aircraft's.
enum class WindowAction { none, mouse_yoke, controls_page, look_right, look_up };

struct ActionRow {
  std::string_view name;   ///< in the file of controls
  std::string_view words;  ///< for a person
  Motion motion;
  double amount;
  std::array<std::optional<Control>, 2> controls{};
  WindowAction window = WindowAction::none;
};

/// All actions; they are known by their place in the table.
std::span<const ActionRow> action_table();

/// What an axis moves: one control or two at once.
struct AxisRow {
  std::string_view name, words;
  std::array<std::optional<Control>, 2> controls;
  bool one_way;  ///< from 0 at one end to 1 at the other
};

std::span<const AxisRow> axis_table();

}  // namespace host
