/// Joysticks and game controllers, which may be plugged in and out in flight.
#pragma once

#include <SDL.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "host/hands/control_map.h"
#include "host/hands/hands.h"

namespace host {

/// What a part of a device does now, for a person who sets it up.
struct StickPart {
  std::string name;  ///< as the file of controls calls it
  std::string does;  ///< empty: nothing
  double position;   ///< an axis: -1 to 1; a button: 0 or 1
  bool is_axis;
};

struct StickState {
  std::string name;
  std::vector<StickPart> parts;
};

/// The joystick system of SDL must be running while it lives. `map` and `hands` must outlive it.
class Sticks {
 public:
  Sticks(const ControlMap& map, Hands& hands);
  ~Sticks();
  Sticks(const Sticks&) = delete;
  Sticks& operator=(const Sticks&) = delete;

  /// One event of SDL; others than those of sticks are ignored.
  void take(const SDL_Event& event);

  std::vector<StickState> states() const;

 private:
  struct Close {
    void operator()(SDL_Joystick* stick) const { SDL_JoystickClose(stick); }
    void operator()(SDL_GameController* pad) const { SDL_GameControllerClose(pad); }
  };
  struct Device {
    std::string name;
    const DeviceMap* map;
    std::unique_ptr<SDL_Joystick, Close> stick;
    std::unique_ptr<SDL_GameController, Close> pad;  ///< else it is a plain joystick
    Uint8 hats[4] = {};
  };

  void add(int index);
  void remove(SDL_JoystickID id);
  Device* device(SDL_JoystickID id, bool controller);
  void take_axis(const Device* device, int axis, int value);
  void take_button(const Device* device, Button button, bool down);
  void take_hat(Device* device, int hat, Uint8 value);

  const ControlMap& map_;
  Hands& hands_;
  std::map<SDL_JoystickID, Device> devices_;
};

}  // namespace host
