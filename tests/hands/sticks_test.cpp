// Joysticks that are plugged in, moved and pulled out.
#include "host/hands/sticks.h"

#include <gtest/gtest.h>

namespace host {
namespace {

constexpr const char* file =
    "[joystick]\naileron = axis 0 dead 10\nthrottle = axis 1 inverted\nbrakes = button 0\n"
    "gear = hat 0 down\ncontrols_page = button 1\n"
    "[controller]\nelevator = lefty dead 0\nbrake_left = lefttrigger\nspeed_brake = b\n";

class VirtualStick : public testing::Test {
 protected:
  void SetUp() override {
    SDL_SetHint(SDL_HINT_JOYSTICK_ALLOW_BACKGROUND_EVENTS, "1");
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    if (SDL_Init(SDL_INIT_GAMECONTROLLER) != 0) GTEST_SKIP() << SDL_GetError();
    sticks = std::make_unique<Sticks>(map, hands);
  }
  void TearDown() override {
    stick.reset();
    sticks.reset();
    SDL_Quit();
  }

  void plug_in(SDL_JoystickType type, int axes, int buttons, int hats) {
    index = SDL_JoystickAttachVirtual(type, axes, buttons, hats);
    ASSERT_GE(index, 0) << SDL_GetError();
    stick.reset(SDL_JoystickOpen(index));
    frame();
    ASSERT_EQ(sticks->states().size(), 1u);
  }

  FlightInputs frame() {
    SDL_JoystickUpdate();
    for (SDL_Event event; SDL_PollEvent(&event);) sticks->take(event);
    const FlightInputs inputs = hands.frame(1.0 / 18, controls);
    apply(inputs, controls);
    return inputs;
  }

  FlightInputs axis(int number, int value) {
    SDL_JoystickSetVirtualAxis(stick.get(), number, static_cast<Sint16>(value));
    return frame();
  }

  struct Close {
    void operator()(SDL_Joystick* open) const { SDL_JoystickClose(open); }
  };
  const ControlMap map = parse_control_map(file, "test.cfg");
  Hands hands;
  std::unique_ptr<Sticks> sticks;
  std::unique_ptr<SDL_Joystick, Close> stick;
  simulation::FlightControls controls;
  int index = -1;
};

TEST_F(VirtualStick, AxesMoveControlsBeyondTheirDeadZone) {
  plug_in(SDL_JOYSTICK_TYPE_FLIGHT_STICK, 2, 2, 1);
  EXPECT_TRUE(frame().empty()) << "a stick that nobody has touched moves nothing";
  const struct {
    int axis, value;
    double aileron, throttle;
  } cases[] = {{0, 3000, 0, 0},       {0, 32767, 1, 0},     {0, -32768, -1, 0}, {0, 18022, 0.5, 0},
               {1, -32768, 0.5, 1.0}, {1, 32767, 0.5, 0.0}, {1, 1, 0.5, 0.5}};
  for (const auto& [number, value, aileron, throttle] : cases) {
    axis(number, value);
    EXPECT_NEAR(controls.aileron, aileron, 0.001) << "axis " << number << " at " << value;
    EXPECT_NEAR(controls.throttle[1], throttle, 0.001) << "axis " << number << " at " << value;
  }
}

TEST_F(VirtualStick, ButtonsAndHatsPressAndAStickPulledOutLetsGo) {
  plug_in(SDL_JOYSTICK_TYPE_FLIGHT_STICK, 2, 2, 1);
  SDL_JoystickSetVirtualHat(stick.get(), 0, SDL_HAT_DOWN);
  frame();
  EXPECT_FALSE(controls.gear_down);
  SDL_JoystickSetVirtualButton(stick.get(), 0, 1);
  SDL_JoystickSetVirtualButton(stick.get(), 1, 1);
  for (int i = 0; i < 18; ++i) frame();
  EXPECT_EQ(controls.brake[0], 1.0);
  EXPECT_EQ(hands.take_window_actions(), std::vector{WindowAction::controls_page});
  const StickState state = sticks->states()[0];
  ASSERT_EQ(state.parts.size(), 8u);
  EXPECT_EQ(state.parts[2].does, "Brakes");
  EXPECT_EQ(state.parts[2].position, 1.0);
  stick.reset();
  SDL_JoystickDetachVirtual(index);
  for (int i = 0; i < 18; ++i) frame();
  EXPECT_EQ(controls.brake[0], 0.0);
  EXPECT_TRUE(sticks->states().empty());
}

TEST_F(VirtualStick, AGameControllerGoesByItsNames) {
  plug_in(SDL_JOYSTICK_TYPE_GAMECONTROLLER, SDL_CONTROLLER_AXIS_MAX, SDL_CONTROLLER_BUTTON_MAX, 0);
  axis(SDL_CONTROLLER_AXIS_LEFTY, -32768);
  EXPECT_NEAR(controls.elevator, -1.0, 0.001);
  axis(SDL_CONTROLLER_AXIS_TRIGGERLEFT, 32767);
  EXPECT_NEAR(controls.brake[0], 1.0, 0.001);
  axis(SDL_CONTROLLER_AXIS_TRIGGERLEFT, -32768);
  EXPECT_NEAR(controls.brake[0], 0.0, 0.001);
  SDL_JoystickSetVirtualButton(stick.get(), SDL_CONTROLLER_BUTTON_B, 1);
  frame();
  EXPECT_EQ(controls.speed_brake, 1.0);
}

}  // namespace
}  // namespace host
