#include <algorithm>
#include <cstdio>
#include <utility>

#include "host/window/flight_deck.h"

namespace host {
namespace {

constexpr double zoom_shown_s = 1.5;
constexpr double scroll_share = 0.75;  // of the window, for a key

}  // namespace

void FlightDeck::take_key(const SDL_KeyboardEvent& event) {
  View* found = views_.find(event.windowID);
  View& view = found ? *found : views_.main();
  const SDL_Keysym& key = event.keysym;
  if (take_page_key(key) || take_scroll_key(key, view)) return;
  take_repeating_key(key, view);
  if (event.repeat != 0 || take_panel_key(key)) return;
  switch (key.sym) {
    case SDLK_t: toggle_torn(); break;
    case SDLK_v: toggle_outside(); break;
    case SDLK_d: toggle_panel_lights(); break;
    case SDLK_p: toggle_pause(); break;
    case SDLK_s:
    case SDLK_F12: pictures_.write(view.picture()); break;
    case SDLK_h:
    case SDLK_F1: toggle_help(); break;
    case SDLK_F11: view.screen().set_full_screen(!view.screen().is_full_screen()); break;
    case SDLK_ESCAPE: go_back(view); break;
    case SDLK_q: leave(); break;
    default: break;
  }
}

void FlightDeck::take_repeating_key(const SDL_Keysym& key, View& view) {
  switch (key.sym) {
    case SDLK_PLUS:
    case SDLK_EQUALS:
    case SDLK_KP_PLUS: change_zoom(zoom_notch, view); break;
    case SDLK_MINUS:
    case SDLK_KP_MINUS: change_zoom(1 / zoom_notch, view); break;
    case SDLK_0:
    case SDLK_KP_0:
      view.set_zoom(std::nullopt);
      zoomed_ = view.screen().id();
      break;
    default: break;
  }
}

// Arrows and Page keys alone fly.
bool FlightDeck::take_scroll_key(const SDL_Keysym& key, View& view) {
  if ((key.mod & KMOD_CTRL) == 0) return false;
  const PanelSize size = view.screen().size();
  const int across = static_cast<int>(size.width * scroll_share);
  const int down = static_cast<int>(size.height * scroll_share);
  switch (key.sym) {
    case SDLK_PAGEUP: view.scroll(0, down); return true;
    case SDLK_PAGEDOWN: view.scroll(0, -down); return true;
    case SDLK_HOME: view.scroll(across, 0); return true;
    case SDLK_END: view.scroll(-across, 0); return true;
    default: return false;
  }
}

bool FlightDeck::take_panel_key(const SDL_Keysym& keysym) {
  SDL_Keycode key = keysym.sym;
  if (key >= SDLK_KP_1 && key <= SDLK_KP_9) key = SDLK_1 + (key - SDLK_KP_1);
  if (key < SDLK_1 || key > SDLK_9) return false;
  toggle_window(captains_panel + static_cast<std::uint32_t>(key - SDLK_1), keysym.mod & KMOD_SHIFT);
  return true;
}

// What is open and not in sight comes into sight before it closes.
void FlightDeck::toggle_window(std::uint32_t ident, bool beside) {
  const auto window = cockpit_.panels().find(ident);
  if (!window) return;
  const bool open = cockpit_.panels().shows(ident);
  if (open && !views_.waits(*window)) {
    if (!flow_has_control()) inputs_.take(input::CloseWindow{ident});
    return;
  }
  if (!open) inputs_.take(input::OpenWindow{ident});
  if (open || beside) views_.bring(*window, beside);
}

void FlightDeck::toggle_torn() {
  const auto window = hand_.window_under();
  if (!window) return notices_.add("Point at a panel to tear it off", now());
  views_.toggle_torn(*window);
}

void FlightDeck::send(std::uint32_t event) { inputs_.take(input::KeyEvent{event, 0}); }

// The main panels' faces follow, as they do for the switch on the panel.
void FlightDeck::toggle_panel_lights() {
  if (paused_ || flow_has_control()) return;
  send(event::panel_lights_toggle);
  const bool night = cockpit_.panel_lights_on();
  for (const WindowConfig& window : cockpit_.config().windows) {
    const std::uint32_t face = night ? window.night_ident : window.day_ident;
    if (face != 0 && cockpit_.panels().shows(window.ident)) inputs_.take(input::OpenWindow{face});
  }
}

void FlightDeck::toggle_outside() {
  View& view = views_.main();
  view.want_outside(!view.wants_outside());
  if (!view.wants_outside()) return;
  if (!cockpit_.panels().shows(captains_panel))
    notices_.add("The view stands above the captain's panel: key 1", now());
}

void FlightDeck::toggle_pause() {
  paused_ = !paused_;
  if (paused_) flying_.let_go_of_keys();
  look_or_work();
  frame_due_ = now();
  strip_old_ = true;
  if (paused_ && on_pause) on_pause();
  show_badge();
}

void FlightDeck::change_zoom(double factor, View& view) {
  view.zoom_by(factor, hand_.place_in(view));
  zoomed_ = view.screen().id();
}

void FlightDeck::show_zoom() {
  View* view = views_.find(std::exchange(zoomed_, 0));
  if (!view) return;
  hide_zoom();
  char text[32];
  std::snprintf(text, sizeof text, "%.0f %%", 100 * view->zoom() / view->scale());
  Overlay badge = draw_badge(text, view->scale());
  badge.x = view->screen().size().width - badge.width - static_cast<int>(12 * view->scale());
  badge.y = static_cast<int>(30 * view->scale());
  view->set_layer(Layer::zoom, std::move(badge));
  zoom_shown_until_ = now() + zoom_shown_s;
}

void FlightDeck::hide_zoom() {
  views_.each([](View& view) { view.set_layer(Layer::zoom, std::nullopt); });
  zoom_shown_until_ = Pointer::never;
}

// Escape leads out of whatever one is in, one thing at a time, and never out of the cockpit.
void FlightDeck::go_back(View& view) {
  if (controls_shown_)
    controls_shown_ = false, show_controls_page();
  else if (notices_.help_shown())
    notices_.toggle_help();
  else if (flow_)
    take_over();
  else if (pages_.shown())
    pages_.close();
  else if (flying_.has_yoke())
    toggle_yoke();
  else if (view.screen().is_full_screen())
    view.screen().set_full_screen(false);
  else
    open_menu_for_keyboard(view);
}

void FlightDeck::toggle_help() {
  notices_.toggle_help();
  if (std::exchange(settings_.help_seen, true)) return;
  strip_old_ = true;
  keep_desk();
}

// The journal keeps a flight, and --resume takes it up: leaving loses nothing then, and needs no
// question.
void FlightDeck::leave() {
  if (ask_to_leave && !std::exchange(asked_, true))
    return notices_.add("Nothing keeps this flight: once more to leave it", now());
  leaving_ = true;
}

}  // namespace host
