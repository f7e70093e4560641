#include <algorithm>

#include "host/panel/panel_scene.h"
#include "host/window/flight_deck.h"

namespace host {
namespace {

constexpr double eye_s = 0.7;  // for the eye to find a control before a flow works it
constexpr double rest_s = 4;   // after its last work, until the eye goes back to the captain's panel
constexpr int most_speed = 16;
constexpr double bar_share = 0.6;  // of the strip's width, for a flow that says much

// "engine_start" as a person reads it.
std::string in_words(std::string name) {
  std::ranges::replace(name, '_', ' ');
  return name;
}

}  // namespace

void FlightDeck::watch(const std::filesystem::path& flow) {
  flying_.let_go_of_keys();
  stage_.clear();
  const auto say = [this](const std::string& text) {
    stage_ = text;
    strip_old_ = true;
  };
  flow_ = std::make_unique<WatchedFlow>(inputs_, flow, lists_, say);
  flow_name_ = in_words(flow_->name());
  strip_old_ = true;
  look_or_work();
}

// One turn of the flow. False when no frame passes now: it is over, or the eye is being led to what
// comes.
bool FlightDeck::let_flow_work() {
  switch (flow_->go_on()) {
    case WatchedFlow::Wish::frame: return true;
    case WatchedFlow::Wish::nothing: return end_flow(), false;
    case WatchedFlow::Wish::gesture: break;
  }
  const Spot& spot = flow_->about_to_work();
  if (!show_to_the_eye(spot)) return let_flow_work();
  frame_due_ = now() + eye_s / speed_;
  return false;
}

// Brings the control's panel to work and frames the control; false if it is still the one before.
bool FlightDeck::show_to_the_eye(const Spot& spot) {
  const CockpitGauge* gauge = cockpit_.find(spot.gauge);
  if (!gauge) return false;
  const HotArea* area = spot.area ? spot.area : gauge->areas.at(spot.point, MOUSE_LEFT | MOUSE_RIGHT);
  const Target target{gauge, area ? area->box : Box{spot.point.x - 10, spot.point.y - 10, 20, 20}};
  const WindowConfig* window = window_for(cockpit_, *gauge);
  if (window)
    if (const auto index = cockpit_.panels().find(window->ident); index && views_.waits(*index))
      views_.bring(*index, false);
  const bool known = flow_target_ && flow_target_->gauge == gauge && flow_target_->box == target.box;
  flow_target_ = target;
  point_at_target();
  rest_due_ = now() + rest_s;
  return !known;
}

// Between two works one looks where a pilot looks.
void FlightDeck::rest_the_eye() {
  rest_due_ = Pointer::never;
  flow_target_.reset();
  point_at_target();
  const auto captain = cockpit_.panels().find(captains_panel);
  if (captain && views_.waits(*captain)) views_.bring(*captain, false);
}

void FlightDeck::point_at_target() {
  const auto target = flow_ ? flow_target_ : pages_.pointed();
  views_.each([&](View& view) { view.point_at(target); });
}

void FlightDeck::end_flow() {
  const std::string failure = flow_->failure();
  const std::string how = failure.empty() ? " has come to its end. " : " has failed: ";
  stop_flow(flow_name_ + how + failure + (failure.empty() ? "" : "\n") + "You have control.");
}

void FlightDeck::take_over() {
  if (flow_) stop_flow("You have control. " + flow_name_ + " flies no more.");
}

void FlightDeck::stop_flow(const std::string& note) {
  flow_.reset();
  flow_target_.reset();
  point_at_target();
  set_speed(1);
  frame_due_ = now();
  strip_old_ = true;
  look_or_work();
  notices_.add(note, now());
}

void FlightDeck::set_speed(int speed) {
  speed = std::clamp(speed, 1, most_speed);
  if (speed == speed_) return;
  if (on_speed && (speed == 1) != (speed_ == 1)) on_speed(speed == 1);
  speed_ = speed;
  frame_due_ = now();
  strip_old_ = true;
}

// Tells a person who wants to work something while a flow does how to take over.
bool FlightDeck::flow_has_control() {
  if (!flow_) return false;
  notices_.add(flow_name_ + " has control: Esc takes over", now());
  return true;
}

void FlightDeck::look_or_work() { hand_.look_only(paused_ || flow_ != nullptr); }

bool FlightDeck::take_flow_key(const SDL_KeyboardEvent& key) {
  if (!flow_ || key.type != SDL_KEYDOWN || (key.keysym.mod & (KMOD_CTRL | KMOD_SHIFT | KMOD_ALT)))
    return false;
  const bool faster = key.keysym.sym == SDLK_RIGHT;
  if (!faster && key.keysym.sym != SDLK_LEFT) return false;
  if (key.repeat == 0) set_speed(faster ? speed_ * 2 : speed_ / 2);
  return true;
}

// A press that would work a control, or close a panel that the flow may need.
bool FlightDeck::refuses_press(const SDL_MouseButtonEvent& event) {
  if (!flow_ || paused_) return false;
  const auto hit = hit_at(event.windowID, event.x, event.y);
  if (!hit) return false;
  const bool closes = hit->caption == CaptionPart::close && event.button == SDL_BUTTON_LEFT;
  return (closes || takes_click(*hit)) && flow_has_control();
}

void FlightDeck::show_strip() {
  strip_old_ = false;
  View& view = views_.main();
  const int room = static_cast<int>(view.strip_width() * bar_share);
  if (flow_)
    strip_ = draw_flow_bar({flow_name_, stage_, speed_, paused_}, room, view.scale());
  else if (!settings_.help_seen)
    strip_ = draw_help_hint(view.scale());
  else
    strip_ = {};
  view.set_strip_end(strip_.spots.empty() ? std::nullopt : std::optional(strip_.picture));
}

std::optional<StripAct> FlightDeck::strip_act(Uint32 window, int x, int y) const {
  const View& view = views_.main();
  if (window != view.screen().id()) return std::nullopt;
  const PanelPoint pixel = view.screen().pixel_at(x, y);
  if (view.is_covered(pixel.x, pixel.y)) return std::nullopt;
  const auto point = view.on_strip_end(pixel.x, pixel.y);
  return point ? strip_.at(point->x, point->y) : std::nullopt;
}

bool FlightDeck::take_strip_motion(const SDL_Event& event) {
  if (event.type != SDL_MOUSEMOTION || event.motion.state != 0 ||
      !strip_act(event.motion.windowID, event.motion.x, event.motion.y))
    return false;
  hand_.take(event, now());
  hand_.show_hand();
  return true;
}

bool FlightDeck::take_strip_press(const SDL_MouseButtonEvent& event) {
  const auto act = strip_act(event.windowID, event.x, event.y);
  if (!act || event.button != SDL_BUTTON_LEFT) return false;
  View& view = views_.main();
  switch (*act) {
    case StripAct::help: toggle_help(); break;
    case StripAct::menu: open_menu(view, view.screen().pixel_at(event.x, event.y), false); break;
    case StripAct::slower: set_speed(speed_ / 2); break;
    case StripAct::faster: set_speed(speed_ * 2); break;
    case StripAct::pause: toggle_pause(); break;
    case StripAct::take_over: take_over(); break;
  }
  return true;
}

}  // namespace host
