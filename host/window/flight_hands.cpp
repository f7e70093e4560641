#include "host/window/flight_deck.h"

namespace host {

void FlightDeck::apply(const FlightInputs& inputs) {
  if (inputs.empty()) return;
  simulation::FlightControls wanted = cockpit_.aircraft().controls();
  host::apply(inputs, wanted);
  inputs_.fly(wanted);
}

void FlightDeck::apply_hands() {
  const FlightInputs inputs = flying_.frame(1.0 / cockpit_.rate(), cockpit_.aircraft().controls());
  if (!flow_) apply(inputs);  // a joystick that trembles takes nothing over
  if (controls_shown_) show_controls_page();
}

bool FlightDeck::take_flying_key(const SDL_KeyboardEvent& key) {
  return flying_.take_key(key, [this] { return paused_ || flow_has_control(); });
}

void FlightDeck::take_window_actions() {
  for (const WindowAction action : flying_.take_window_actions()) {
    if (action == WindowAction::mouse_yoke) toggle_yoke();
    if (action != WindowAction::controls_page) continue;
    controls_shown_ = !controls_shown_;
    show_controls_page();
  }
}

void FlightDeck::toggle_yoke() {
  flying_.toggle_yoke();
  hand_.reset();
  show_badge();
}

// A click gives the mouse back to the panels.
bool FlightDeck::take_yoke(const SDL_Event& event) {
  if (!flying_.has_yoke()) return false;
  if (event.type == SDL_MOUSEBUTTONDOWN) return toggle_yoke(), true;
  return flying_.take_yoke(event, views_.main().screen(), cockpit_.aircraft().controls());
}

void FlightDeck::show_controls_page() {
  View& view = views_.main();
  if (!controls_shown_) return view.set_layer(Layer::controls, std::nullopt);
  const PanelSize size = view.screen().size();
  const std::vector<StickState> sticks = flying_.sticks();
  Overlay page =
      draw_controls_page({flying_.map(), flying_.hands(), sticks, cockpit_.aircraft().controls()},
                         size.width, size.height, view.scale());
  page.x = (size.width - page.width) / 2;
  page.y = (size.height - page.height) / 2;
  view.set_layer(Layer::controls, std::move(page));
}

void FlightDeck::show_badge() {
  notices_.set_badge(paused_ ? "PAUSED" : flying_.has_yoke() ? "MOUSE FLIES" : "");
}

}  // namespace host
