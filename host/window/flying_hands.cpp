#include "host/window/flying_hands.h"

#include <algorithm>

namespace host {
namespace {

// A look to the side goes as far as the runway on a base leg, and comes back when the key is let go.
constexpr double most_right_deg = 95.0, most_up_deg = 30.0, turn_deg_per_s = 150.0;

constexpr double yoke_reach = 0.3;           // of the window's width and height, from its middle
constexpr double wheel_throttle = 1.0 / 32;  // of the levers' way, a notch

double toward(double from, double to, double by) { return from + std::clamp(to - from, -by, by); }

bool flies(const ActionRow& action) {
  return action.window == WindowAction::none || action.window == WindowAction::mouse_yoke;
}

}  // namespace

FlyingHands::FlyingHands(const std::filesystem::path& controls) {
  if (controls.empty()) return;
  map_ = read_control_map(controls);
  sticks_.emplace(map_, hands_);
}

void FlyingHands::take_stick(const SDL_Event& event) {
  if (sticks_) sticks_->take(event);
}

bool FlyingHands::take_key(const SDL_KeyboardEvent& key, const std::function<bool()>& refused) {
  const auto held = held_keys_.find(key.keysym.sym);
  if (key.type == SDL_KEYUP) {
    if (held == held_keys_.end()) return false;
    hands_.release(held->second);
    held_keys_.erase(held);
    return true;
  }
  if (key.repeat != 0) return held != held_keys_.end();
  const auto action = map_.action_of(key.keysym);
  if (!action) return false;
  if (flies(action_table()[*action]) && refused()) return true;
  if (held == held_keys_.end()) hands_.press(held_keys_[key.keysym.sym] = *action);
  return true;
}

void FlyingHands::let_go_of_keys() {
  for (const auto& [key, action] : held_keys_) hands_.release(action);
  held_keys_.clear();
}

void FlyingHands::toggle_yoke() {
  yoke_ = !yoke_;
  if (yoke_) return;
  for (const Control control : {Control::aileron, Control::elevator}) hands_.move(control, 0.0);
}

bool FlyingHands::take_yoke(const SDL_Event& event, const ScreenWindow& window,
                            const simulation::FlightControls& now) {
  if (event.type == SDL_MOUSEWHEEL) {
    for (const Control throttle : {Control::throttle_1, Control::throttle_2})
      hands_.move(throttle, position_of(now, throttle) + event.wheel.y * wheel_throttle);
    return true;
  }
  if (event.type != SDL_MOUSEMOTION || event.motion.windowID != window.id())
    return event.type == SDL_MOUSEBUTTONUP;
  const double density = window.density();
  const PanelSize size = window.size();
  hands_.move(Control::aileron, (event.motion.x * density / size.width - 0.5) / yoke_reach);
  hands_.move(Control::elevator, (event.motion.y * density / size.height - 0.5) / yoke_reach);
  return true;
}

void FlyingHands::turn_head(double seconds) {
  const double by = turn_deg_per_s * std::clamp(seconds, 0.0, 0.1);
  look_.right_deg = toward(look_.right_deg, most_right_deg * hands_.look_right(), by);
  look_.up_deg = toward(look_.up_deg, most_up_deg * hands_.look_up(), by);
}

std::vector<StickState> FlyingHands::sticks() const {
  return sticks_ ? sticks_->states() : std::vector<StickState>{};
}

}  // namespace host
