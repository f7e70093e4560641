// The file of controls.
#include "host/hands/control_map.h"

#include <gtest/gtest.h>

#include "host/hands/actions.h"
#include "host/panel/panel_config.h"
#include "tests/rig/refusal.h"

namespace host {
namespace {

std::string action_of(const ControlMap& map, SDL_Keycode key, Uint16 mod = KMOD_NONE) {
  const auto action = map.action_of({SDL_SCANCODE_UNKNOWN, key, mod, 0});
  return action ? std::string(action_table()[*action].name) : "";
}

TEST(ControlMap, BindsKeysWithWhatIsHeldBesideThem) {
  const ControlMap map = parse_control_map(
      "# Mine\n[keys]\nbrakes = . or Space\nparking_brake = Ctrl+.   # one-handed\n"
      "stick_left = Keypad 4\nlook_left = Shift+Left\n",
      "my.cfg");
  EXPECT_EQ(action_of(map, SDLK_PERIOD), "brakes");
  EXPECT_EQ(action_of(map, SDLK_SPACE), "brakes");
  EXPECT_EQ(action_of(map, SDLK_PERIOD, KMOD_LCTRL), "parking_brake");
  EXPECT_EQ(action_of(map, SDLK_KP_4, KMOD_NUM), "stick_left");
  EXPECT_EQ(action_of(map, SDLK_LEFT, KMOD_RSHIFT), "look_left");
  EXPECT_EQ(action_of(map, SDLK_LEFT), "");
}

TEST(ControlMap, ChoosesTheSectionThatNamesTheDevice) {
  const ControlMap map = parse_control_map(
      "[joystick]\naileron = axis 0\n[joystick pedals]\nrudder = axis 2 inverted dead 10\n"
      "[controller]\nbrakes = lefttrigger or a\n",
      "my.cfg");
  ASSERT_NE(map.device(false, "Some Stick"), nullptr);
  EXPECT_EQ(map.device(false, "Some Stick")->axes[0].axis, 0);
  const AxisBinding& rudder = map.device(false, "Maker's PEDALS 3")->axes[0];
  EXPECT_EQ(rudder.axis, 2);
  EXPECT_TRUE(rudder.inverted);
  EXPECT_NEAR(rudder.dead, 0.10, 1e-9);
  const DeviceMap* pad = map.device(true, "any");
  EXPECT_EQ(pad->axes.size(), 1u) << "a trigger brakes as an axis";
  EXPECT_EQ(pad->buttons.size(), 1u) << "and a button as a button";
}

TEST(ControlMap, NamesFileLineAndFault) {
  const std::pair<const char*, const char*> cases[] = {
      {"brakes = Space", "my.cfg:1: expected a section"},
      {"[keys]\nbrakes", "my.cfg:2: expected name ="},
      {"[keys]\n\nbreaks = Space", "my.cfg:3: there is no control 'breaks'"},
      {"[keys]\nbrakes = Spacebar", "my.cfg:2: there is no key 'Spacebar'"},
      {"[keys]\nbrakes = B\ngear = B", "my.cfg:3: B already does 'brakes'"},
      {"[keys]\naileron = A", "my.cfg:2: an axis moves that"},
      {"[mouse]", "my.cfg:1: a section is [keys]"},
      {"[joystick", "my.cfg:1: the section's name has no end"},
      {"[joystick]\naileron = axis one", "my.cfg:2: 'one' is not a whole number"},
      {"[joystick]\naileron = axis 1 reversed", "my.cfg:2: behind an axis"},
      {"[joystick]\naileron = axis 1 dead", "my.cfg:2: behind an axis"},
      {"[joystick]\naileron = ", "my.cfg:2: nothing stands behind 'aileron'"},
      {"[joystick]\ngear = knob 3", "my.cfg:2: 'knob 3' is neither"},
      {"[joystick]\ngear = hat 0 north", "my.cfg:2: a hat goes up"},
      {"[controller]\ngear = triangle", "my.cfg:2: a controller has no button 'triangle'"},
      {"[controller]\naileron = stick dead 5", "my.cfg:2: a controller has no axis 'stick'"},
      {"[controller]\nbrakes = a or  or b", "my.cfg:2: nothing stands behind 'brakes'"},
  };
  for (const auto& [text, message] : cases) {
    const std::string said = refusal<ConfigError>([&] { parse_control_map(text, "my.cfg"); });
    EXPECT_TRUE(said.starts_with(message)) << text << ": " << said;
  }
}

TEST(ControlMap, TheShippedOneLeavesTheProgramItsKeys) {
  const ControlMap map =
      read_control_map(std::filesystem::path(SOURCE_DIR) / "aircraft/controls/controls.cfg");
  for (const char* key :
       {"1", "2", "3", "4", "5",   "6", "7",  "8",   "9",      "0", "T", "+",        "-",
        "=", "D", "P", "S", "F12", "H", "F1", "F11", "Escape", "Q", "V", "Keypad +", "Keypad -"})
    EXPECT_EQ(action_of(map, SDL_GetKeyFromName(key)), "") << key;
  for (std::size_t i = 0; i < action_table().size(); ++i) {
    const std::string_view name = action_table()[i].name;
    if (name.starts_with("throttle_1") || name.starts_with("throttle_2")) continue;
    EXPECT_NE(std::ranges::find(map.keys, i, &KeyBinding::action), map.keys.end())
        << name << " has no key";
  }
  EXPECT_NE(map.device(false, "x"), nullptr);
  EXPECT_NE(map.device(true, "x"), nullptr);
}

}  // namespace
}  // namespace host
