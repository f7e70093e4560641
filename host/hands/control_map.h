/// Which keys, buttons and axes do what: the file of controls.
///
///   [keys]                          stick_left = Left or Keypad 4
///   [joystick]                      aileron = axis 0 dead 5
///   [joystick part of its name]     brakes = button 0 or hat 0 down
///   [controller]                    throttle_up = rightshoulder
#pragma once

#include <SDL.h>

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace host {

struct KeyBinding {
  SDL_Keycode key;
  bool ctrl, shift;
  std::size_t action;  ///< in action_table()
};

/// A button, or one of a hat's four directions.
struct Button {
  int number = 0;
  Uint8 hat_direction = 0;  ///< SDL_HAT_UP...; 0: it is a button
  bool operator==(const Button&) const = default;
};

struct ButtonBinding {
  Button button;
  std::size_t action;
};

struct AxisBinding {
  int axis;
  std::size_t row;  ///< in axis_table()
  bool inverted = false;
  double dead = 0.04;  ///< of the way from the middle, where nothing moves yet
};

/// What the parts of one kind of device do.
struct DeviceMap {
  bool controller = false;  ///< parts by the names of a game controller; else by numbers
  std::string name;         ///< part of the device's name; empty: any
  std::vector<AxisBinding> axes;
  std::vector<ButtonBinding> buttons;
};

struct ControlMap {
  std::vector<KeyBinding> keys;
  std::vector<DeviceMap> devices;

  /// The action of a pressed key; empty if it has none.
  std::optional<std::size_t> action_of(const SDL_Keysym& key) const;

  /// The first section with a name that is part of the device's, else the one without a name; null if
  /// there is neither.
  const DeviceMap* device(bool controller, std::string_view name) const;
};

/// Throws ConfigError with file and line.
ControlMap parse_control_map(std::string_view text, const std::filesystem::path& file);
ControlMap read_control_map(const std::filesystem::path& file);

/// How a binding is written in the file, for a person.
std::string words_of(const KeyBinding& key);

}  // namespace host
