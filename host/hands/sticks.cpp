#include "host/hands/sticks.h"

#include <algorithm>
#include <cmath>

namespace host {
namespace {

constexpr Uint8 directions[] = {SDL_HAT_UP, SDL_HAT_RIGHT, SDL_HAT_DOWN, SDL_HAT_LEFT};
constexpr const char* direction_names[] = {"up", "right", "down", "left"};

double ratio(int value) { return std::max(-1.0, value / 32767.0); }

// What a control gets from an axis: nothing near the middle, or the way from one end to the other. A
// trigger has no middle and rests at 0.
double position(const AxisBinding& binding, bool trigger, int value) {
  double at = ratio(value);
  const bool one_way = axis_table()[binding.row].one_way;
  if (one_way && !trigger) at = (at + 1.0) / 2.0;
  if (one_way) return binding.inverted ? 1.0 - at : at;
  const double beyond = std::max(0.0, std::abs(at) - binding.dead) / (1.0 - binding.dead);
  return std::copysign(beyond, binding.inverted ? -at : at);
}

bool is_trigger(bool controller, int axis) {
  return controller &&
         (axis == SDL_CONTROLLER_AXIS_TRIGGERLEFT || axis == SDL_CONTROLLER_AXIS_TRIGGERRIGHT);
}

std::string axis_words(const DeviceMap* map, int axis) {
  std::string words;
  if (!map) return words;
  for (const AxisBinding& binding : map->axes)
    if (binding.axis == axis)
      words += (words.empty() ? "" : ", ") + std::string(axis_table()[binding.row].words);
  return words;
}

std::string button_words(const DeviceMap* map, Button button) {
  std::string words;
  if (!map) return words;
  for (const ButtonBinding& binding : map->buttons)
    if (binding.button == button)
      words += (words.empty() ? "" : ", ") + std::string(action_table()[binding.action].words);
  return words;
}

std::vector<StickPart> controller_parts(SDL_GameController& pad, const DeviceMap* map) {
  std::vector<StickPart> parts;
  for (int i = 0; i < SDL_CONTROLLER_AXIS_MAX; ++i) {
    const auto axis = static_cast<SDL_GameControllerAxis>(i);
    if (!SDL_GameControllerHasAxis(&pad, axis)) continue;
    parts.push_back({SDL_GameControllerGetStringForAxis(axis), axis_words(map, i),
                     ratio(SDL_GameControllerGetAxis(&pad, axis)), true});
  }
  for (int i = 0; i < SDL_CONTROLLER_BUTTON_MAX; ++i) {
    const auto button = static_cast<SDL_GameControllerButton>(i);
    if (!SDL_GameControllerHasButton(&pad, button)) continue;
    parts.push_back({SDL_GameControllerGetStringForButton(button), button_words(map, {i, 0}),
                     static_cast<double>(SDL_GameControllerGetButton(&pad, button)), false});
  }
  return parts;
}

std::vector<StickPart> joystick_parts(SDL_Joystick& stick, const DeviceMap* map) {
  std::vector<StickPart> parts;
  for (int i = 0; i < SDL_JoystickNumAxes(&stick); ++i)
    parts.push_back(
        {"axis " + std::to_string(i), axis_words(map, i), ratio(SDL_JoystickGetAxis(&stick, i)), true});
  for (int i = 0; i < SDL_JoystickNumButtons(&stick); ++i)
    parts.push_back({"button " + std::to_string(i), button_words(map, {i, 0}),
                     static_cast<double>(SDL_JoystickGetButton(&stick, i)), false});
  for (int i = 0; i < SDL_JoystickNumHats(&stick); ++i)
    for (std::size_t d = 0; d < std::size(directions); ++d) {
      const bool pushed = (SDL_JoystickGetHat(&stick, i) & directions[d]) != 0;
      parts.push_back({"hat " + std::to_string(i) + " " + direction_names[d],
                       button_words(map, {i, directions[d]}), pushed ? 1.0 : 0.0, false});
    }
  return parts;
}

}  // namespace

Sticks::Sticks(const ControlMap& map, Hands& hands) : map_(map), hands_(hands) {
  for (int index = 0; index < SDL_NumJoysticks(); ++index) add(index);
}

Sticks::~Sticks() = default;

void Sticks::add(int index) {
  if (devices_.contains(SDL_JoystickGetDeviceInstanceID(index))) return;
  Device device;
  const char* name = SDL_JoystickNameForIndex(index);
  device.name = name ? name : "Joystick";
  // A section of its own for this joystick counts more than what SDL knows of game controllers.
  const DeviceMap* plain = map_.device(false, device.name);
  const bool as_pad = SDL_IsGameController(index) && (!plain || plain->name.empty());
  if (as_pad) device.pad.reset(SDL_GameControllerOpen(index));
  if (!device.pad) device.stick.reset(SDL_JoystickOpen(index));
  if (!device.pad && !device.stick) return;
  device.map = device.pad ? map_.device(true, device.name) : plain;
  devices_.emplace(SDL_JoystickGetDeviceInstanceID(index), std::move(device));
}

// Its buttons will not report their release any more: whatever they held is let go.
void Sticks::remove(SDL_JoystickID id) {
  if (devices_.erase(id) > 0) hands_.release_all();
}

Sticks::Device* Sticks::device(SDL_JoystickID id, bool controller) {
  const auto found = devices_.find(id);
  if (found == devices_.end() || (found->second.pad != nullptr) != controller) return nullptr;
  return &found->second;
}

void Sticks::take_axis(const Device* device, int axis, int value) {
  if (!device || !device->map) return;
  for (const AxisBinding& binding : device->map->axes)
    if (binding.axis == axis)
      hands_.move(binding.row, position(binding, is_trigger(device->pad != nullptr, axis), value));
}

void Sticks::take_button(const Device* device, Button button, bool down) {
  if (!device || !device->map) return;
  for (const ButtonBinding& binding : device->map->buttons)
    if (binding.button == button) down ? hands_.press(binding.action) : hands_.release(binding.action);
}

void Sticks::take_hat(Device* device, int hat, Uint8 value) {
  if (!device || hat < 0 || hat > 3) return;
  for (const Uint8 direction : directions)
    if ((device->hats[hat] ^ value) & direction)
      take_button(device, {hat, direction}, (value & direction) != 0);
  device->hats[hat] = value;
}

void Sticks::take(const SDL_Event& event) {
  switch (event.type) {
    case SDL_JOYDEVICEADDED: add(event.jdevice.which); break;
    case SDL_JOYDEVICEREMOVED: remove(event.jdevice.which); break;
    case SDL_JOYAXISMOTION:
      take_axis(device(event.jaxis.which, false), event.jaxis.axis, event.jaxis.value);
      break;
    case SDL_JOYHATMOTION:
      take_hat(device(event.jhat.which, false), event.jhat.hat, event.jhat.value);
      break;
    case SDL_JOYBUTTONDOWN:
    case SDL_JOYBUTTONUP:
      take_button(device(event.jbutton.which, false), {event.jbutton.button, 0},
                  event.jbutton.state != 0);
      break;
    case SDL_CONTROLLERAXISMOTION:
      take_axis(device(event.caxis.which, true), event.caxis.axis, event.caxis.value);
      break;
    case SDL_CONTROLLERBUTTONDOWN:
    case SDL_CONTROLLERBUTTONUP:
      take_button(device(event.cbutton.which, true), {event.cbutton.button, 0},
                  event.cbutton.state != 0);
      break;
    default: break;
  }
}

std::vector<StickState> Sticks::states() const {
  std::vector<StickState> all;
  for (const auto& [id, device] : devices_)
    all.push_back({device.name, device.pad ? controller_parts(*device.pad, device.map)
                                           : joystick_parts(*device.stick, device.map)});
  return all;
}

}  // namespace host
