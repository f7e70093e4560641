#include "host/hands/control_map.h"

#include <algorithm>
#include <functional>

#include "host/files/read_file.h"
#include "host/files/shortened.h"
#include "host/hands/actions.h"
#include "host/panel/config_values.h"
#include "host/panel/panel_config.h"
#include "host/panel/text.h"

namespace host {
namespace {

template <typename Row>
std::optional<std::size_t> place_of(std::span<const Row> table, std::string_view name) {
  const auto found = std::ranges::find(table, name, &Row::name);
  if (found == table.end()) return std::nullopt;
  return static_cast<std::size_t>(found - table.begin());
}

// The parts of "this or that".
std::vector<std::string_view> alternatives(std::string_view text) {
  std::vector<std::string_view> all;
  for (;;) {
    const std::size_t at = text.find(" or ");
    all.push_back(trimmed(text.substr(0, at)));
    if (at == std::string_view::npos) return all;
    text.remove_prefix(at + 4);
  }
}

std::vector<std::string_view> words_in(std::string_view text) {
  std::vector<std::string_view> words;
  for (const std::string_view word : split(text, ' '))
    if (!trimmed(word).empty()) words.push_back(trimmed(word));
  return words;
}

KeyBinding read_key(std::string_view text, std::size_t action) {
  KeyBinding binding{SDLK_UNKNOWN, false, false, action};
  std::string_view name = text;
  for (bool more = true; more;) {
    more = false;
    for (auto [prefix, flag] :
         {std::pair{std::string_view("Ctrl+"), &binding.ctrl}, {"Shift+", &binding.shift}})
      if (name.starts_with(prefix) && name.size() > prefix.size()) {
        *flag = more = true;
        name.remove_prefix(prefix.size());
      }
  }
  binding.key = SDL_GetKeyFromName(std::string(name).c_str());
  if (binding.key == SDLK_UNKNOWN) throw LineError("there is no key " + in_quotes(name));
  return binding;
}

Uint8 direction_of(std::string_view word) {
  if (word == "up") return SDL_HAT_UP;
  if (word == "down") return SDL_HAT_DOWN;
  if (word == "left") return SDL_HAT_LEFT;
  if (word == "right") return SDL_HAT_RIGHT;
  throw LineError("a hat goes up, down, left or right, not " + in_quotes(word));
}

int part_number(std::string_view text) { return whole_number(text, 0, 255); }

Button read_button(std::string_view text, bool controller) {
  const auto words = words_in(text);
  if (controller) {
    const int number = SDL_GameControllerGetButtonFromString(std::string(text).c_str());
    if (number == SDL_CONTROLLER_BUTTON_INVALID)
      throw LineError("a controller has no button " + in_quotes(text));
    return {number, 0};
  }
  if (words.size() == 2 && words[0] == "button") return {part_number(words[1]), 0};
  if (words.size() == 3 && words[0] == "hat") return {part_number(words[1]), direction_of(words[2])};
  throw LineError(in_quotes(text) + " is neither 'button 0' nor 'hat 0 up'");
}

AxisBinding read_axis(std::string_view text, std::size_t row, bool controller) {
  const auto words = words_in(text);
  AxisBinding binding{0, row};
  std::size_t next = controller ? 1 : 2;
  if (words.size() < next || (!controller && words[0] != "axis"))
    throw LineError(in_quotes(text) + " is no axis");
  binding.axis = controller ? SDL_GameControllerGetAxisFromString(std::string(words[0]).c_str())
                            : part_number(words[1]);
  if (binding.axis == SDL_CONTROLLER_AXIS_INVALID)
    throw LineError("a controller has no axis " + in_quotes(words[0]));
  for (; next < words.size(); ++next) {
    if (words[next] == "inverted") {
      binding.inverted = true;
    } else if (words[next] == "dead" && next + 1 < words.size()) {
      binding.dead = whole_number(words[++next], 0, 90) / 100.0;
    } else {
      throw LineError("behind an axis stand 'inverted' and 'dead' with per cent, not " +
                      in_quotes(words[next]));
    }
  }
  return binding;
}

class Reader {
 public:
  explicit Reader(ControlMap& map) : map_(map) {}

  void take(std::string_view line) {
    line = trimmed(line.substr(0, line.find("# ")));
    if (line.empty() || line.front() == '#') return;
    if (line.front() == '[') return take_section(line);
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) throw LineError("expected name = key, button or axis");
    take_row(trimmed(line.substr(0, equals)), trimmed(line.substr(equals + 1)));
  }

 private:
  void take_section(std::string_view line) {
    if (line.back() != ']') throw LineError("the section's name has no end: " + shortened(line));
    const std::string_view title = trimmed(line.substr(1, line.size() - 2));
    const std::string_view kind = title.substr(0, title.find(' '));
    const std::string_view name = trimmed(title.substr(kind.size()));
    in_keys_ = title == "keys";
    in_device_ = kind == "joystick" || kind == "controller";
    if (!in_keys_ && !in_device_)
      throw LineError("a section is [keys], [joystick] or [controller], not [" + shortened(title) +
                      "]");
    if (in_device_) map_.devices.push_back({kind == "controller", std::string(name), {}, {}});
  }

  void take_row(std::string_view name, std::string_view value) {
    if (!in_keys_ && !in_device_) throw LineError("expected a section such as [keys] first");
    const auto action = place_of(action_table(), name);
    const auto axis = place_of(axis_table(), name);
    if (!action && !axis) throw LineError("there is no control " + in_quotes(name));
    for (const std::string_view part : alternatives(value)) {
      if (part.empty()) throw LineError("nothing stands behind " + in_quotes(name));
      take_part(action, axis, part);
    }
  }

  void take_part(std::optional<std::size_t> action, std::optional<std::size_t> axis,
                 std::string_view part) {
    if (in_keys_) {
      if (!action) throw LineError("an axis moves that, not a key");
      return add_key(read_key(part, *action));
    }
    DeviceMap& device = map_.devices.back();
    // Brakes can be an axis or a button: what stands there decides.
    const bool is_axis =
        axis && (!action || part.starts_with("axis") ||
                 (device.controller &&
                  SDL_GameControllerGetAxisFromString(std::string(words_in(part)[0]).c_str()) >= 0));
    if (is_axis)
      device.axes.push_back(read_axis(part, *axis, device.controller));
    else
      device.buttons.push_back({read_button(part, device.controller), *action});
  }

  void add_key(const KeyBinding& binding) {
    for (const KeyBinding& other : map_.keys)
      if (other.key == binding.key && other.ctrl == binding.ctrl && other.shift == binding.shift)
        throw LineError(words_of(binding) + " already does " +
                        in_quotes(action_table()[other.action].name));
    map_.keys.push_back(binding);
  }

  ControlMap& map_;
  bool in_keys_ = false, in_device_ = false;
};

}  // namespace

std::string words_of(const KeyBinding& key) {
  return std::string(key.ctrl ? "Ctrl+" : "") + (key.shift ? "Shift+" : "") + SDL_GetKeyName(key.key);
}

std::optional<std::size_t> ControlMap::action_of(const SDL_Keysym& key) const {
  const bool ctrl = (key.mod & KMOD_CTRL) != 0, shift = (key.mod & KMOD_SHIFT) != 0;
  for (const KeyBinding& binding : keys)
    if (binding.key == key.sym && binding.ctrl == ctrl && binding.shift == shift) return binding.action;
  return std::nullopt;
}

const DeviceMap* ControlMap::device(bool controller, std::string_view name) const {
  const DeviceMap* any = nullptr;
  for (const DeviceMap& each : devices) {
    if (each.name.empty() && each.controller == controller && !any) any = &each;
    if (!each.name.empty() && each.controller == controller &&
        lower(name).find(lower(each.name)) != std::string::npos)
      return &each;
  }
  return any;
}

ControlMap parse_control_map(std::string_view text, const std::filesystem::path& file) {
  ControlMap map;
  Reader reader(map);
  int number = 0;
  for (const std::string_view line : split(text, '\n')) {
    ++number;
    try {
      reader.take(line);
    } catch (const LineError& error) {
      throw ConfigError(at_line(file, number, error.what()));
    }
  }
  return map;
}

ControlMap read_control_map(const std::filesystem::path& file) {
  try {
    return parse_control_map(read_file(file, mebibyte), file);
  } catch (const FileFault& fault) {
    throw ConfigError(fault.what());
  }
}

}  // namespace host
