// The file of controls.
#include "host/hands/control_map.h"

#include <gtest/gtest.h>

#include "host/hands/actions.h"
#include "host/panel/panel_config.h"
#include "tests/rig/refusal.h"
#include "tests/rig/rows.h"

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
  for (const Row& row : rows_of("hands/refused_controls.txt", 2)) {
    const std::string said = refusal<ConfigError>([&] { parse_control_map(row[0], "my.cfg"); });
    EXPECT_TRUE(said.starts_with("my.cfg:" + row[1])) << row[0] << ": " << said;
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
