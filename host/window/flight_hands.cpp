#include <algorithm>
#include <cmath>

#include "host/window/flight_deck.h"

namespace host {
namespace {

// A look to the side goes as far as the runway on a base leg, and comes back when the key is let go.
constexpr double most_right_deg = 95.0, most_up_deg = 30.0, turn_deg_per_s = 150.0;

constexpr double yoke_reach = 0.3;           // of the window's width and height, from its middle
constexpr double wheel_throttle = 1.0 / 32;  // of the levers' way, a notch

double toward(double from, double to, double by) { return from + std::clamp(to - from, -by, by); }

}  // namespace

void FlightDeck::apply(const FlightInputs& inputs) {
  if (inputs.empty()) return;
  simulation::FlightControls wanted = cockpit_.aircraft().controls();
  host::apply(inputs, wanted);
  inputs_.fly(wanted);
}

void FlightDeck::apply_hands() {
  const FlightInputs inputs = hands_.frame(1.0 / cockpit_.rate(), cockpit_.aircraft().controls());
  if (!flow_) apply(inputs);  // a joystick that trembles takes nothing over
  if (controls_shown_) show_controls_page();
}

bool FlightDeck::take_flying_key(const SDL_KeyboardEvent& key) {
  const auto held = held_keys_.find(key.keysym.sym);
  if (key.type == SDL_KEYUP) {
    if (held == held_keys_.end()) return false;
    hands_.release(held->second);
    held_keys_.erase(held);
    return true;
  }
  if (key.repeat != 0) return held != held_keys_.end();
  const auto action = controls_.action_of(key.keysym);
  if (!action) return false;
  const bool flies = action_table()[*action].window == WindowAction::none ||
                     action_table()[*action].window == WindowAction::mouse_yoke;
  if (flies && (paused_ || flow_has_control())) return true;
  if (held == held_keys_.end()) hands_.press(held_keys_[key.keysym.sym] = *action);
  return true;
}

void FlightDeck::let_go_of_keys() {
  for (const auto& [key, action] : held_keys_) hands_.release(action);
  held_keys_.clear();
}

void FlightDeck::take_window_actions() {
  for (const WindowAction action : hands_.take_window_actions()) {
    if (action == WindowAction::mouse_yoke) toggle_yoke();
    if (action != WindowAction::controls_page) continue;
    controls_shown_ = !controls_shown_;
    show_controls_page();
  }
}

void FlightDeck::toggle_yoke() {
  yoke_ = !yoke_;
  if (!yoke_)
    for (const Control control : {Control::aileron, Control::elevator}) hands_.move(control, 0.0);
  hand_.reset();
  show_badge();
}

// The pointer's place in the window is the stick's; a click gives the mouse back to the panel.
bool FlightDeck::take_yoke(const SDL_Event& event) {
  if (!yoke_) return false;
  if (event.type == SDL_MOUSEBUTTONDOWN) return toggle_yoke(), true;
  if (event.type == SDL_MOUSEWHEEL) {
    const simulation::FlightControls& now = cockpit_.aircraft().controls();
    for (const Control throttle : {Control::throttle_1, Control::throttle_2})
      hands_.move(throttle, position_of(now, throttle) + event.wheel.y * wheel_throttle);
    return true;
  }
  if (event.type != SDL_MOUSEMOTION || event.motion.windowID != views_.main().screen().id())
    return event.type == SDL_MOUSEBUTTONUP;
  const double density = views_.main().screen().density();
  const PanelSize size = views_.main().screen().size();
  hands_.move(Control::aileron, (event.motion.x * density / size.width - 0.5) / yoke_reach);
  hands_.move(Control::elevator, (event.motion.y * density / size.height - 0.5) / yoke_reach);
  return true;
}

void FlightDeck::turn_head(double seconds) {
  const double by = turn_deg_per_s * std::clamp(seconds, 0.0, 0.1);
  look_.right_deg = toward(look_.right_deg, most_right_deg * hands_.look_right(), by);
  look_.up_deg = toward(look_.up_deg, most_up_deg * hands_.look_up(), by);
}

void FlightDeck::show_controls_page() {
  View& view = views_.main();
  if (!controls_shown_) return view.set_layer(Layer::controls, std::nullopt);
  const PanelSize size = view.screen().size();
  const auto sticks = sticks_ ? sticks_->states() : std::vector<StickState>{};
  Overlay page = draw_controls_page({controls_, hands_, sticks, cockpit_.aircraft().controls()},
                                    size.width, size.height, view.scale());
  page.x = (size.width - page.width) / 2;
  page.y = (size.height - page.height) / 2;
  view.set_layer(Layer::controls, std::move(page));
}

void FlightDeck::show_badge() { notices_.set_badge(paused_ ? "PAUSED" : yoke_ ? "MOUSE FLIES" : ""); }

}  // namespace host
