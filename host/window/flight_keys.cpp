#include <algorithm>
#include <cstdio>

#include "host/window/flight_deck.h"

namespace host {
namespace {

constexpr std::uint32_t first_panel_ident = 500;  // the panels stand on the keys in their idents' order

std::filesystem::path free_picture_name(const std::filesystem::path& folder) {
  for (int number = 1;; ++number) {
    char name[32];
    std::snprintf(name, sizeof name, "tarnvale-%03d.png", number);
    if (!std::filesystem::exists(folder / name)) return folder / name;
  }
}

}  // namespace

void FlightDeck::take_key(const SDL_Keysym& key) {
  if (take_page_key(key) || take_panel_key(key.sym)) return;
  switch (key.sym) {
    case SDLK_t: toggle_torn(); break;
    case SDLK_PLUS:
    case SDLK_EQUALS:
    case SDLK_KP_PLUS: change_zoom(1.125); break;
    case SDLK_MINUS:
    case SDLK_KP_MINUS: change_zoom(1 / 1.125); break;
    case SDLK_0:
    case SDLK_KP_0: views_.main().set_zoom(std::nullopt); break;
    case SDLK_v: toggle_outside(); break;
    case SDLK_d: toggle_panel_lights(); break;
    case SDLK_p: toggle_pause(); break;
    case SDLK_s:
    case SDLK_F12: save_picture(); break;
    case SDLK_h:
    case SDLK_F1: notices_.toggle_help(); break;
    case SDLK_F11: views_.main().screen().toggle_full_screen(); break;
    case SDLK_ESCAPE: leave_or_close_help(); break;
    case SDLK_q: leaving_ = true; break;
    default: break;
  }
}

bool FlightDeck::take_panel_key(SDL_Keycode key) {
  if (key >= SDLK_KP_1 && key <= SDLK_KP_9) key = SDLK_1 + (key - SDLK_KP_1);
  if (key < SDLK_1 || key > SDLK_9) return false;
  toggle_window(first_panel_ident + static_cast<std::uint32_t>(key - SDLK_1));
  return true;
}

void FlightDeck::toggle_window(std::uint32_t ident) {
  if (cockpit_.panels().shows(ident))
    inputs_.take(input::CloseWindow{ident});
  else
    inputs_.take(input::OpenWindow{ident});
}

void FlightDeck::toggle_torn() {
  const auto window = hand_.window_under();
  if (!window) return notices_.add("Point at a panel to tear it off", now());
  hand_.reset();
  views_.toggle_torn(*window);
}

void FlightDeck::send(std::uint32_t event) { inputs_.take(input::KeyEvent{event, 0}); }

// The main panels' faces follow, as they do for the switch on the panel.
void FlightDeck::toggle_panel_lights() {
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
  frame_due_ = now();
  if (paused_ && on_pause) on_pause();
  show_badge();
}

void FlightDeck::change_zoom(double factor) {
  View& view = views_.main();
  view.set_zoom(view.zoom() * factor);
}

void FlightDeck::save_picture() {
  try {
    std::error_code unwritable;  // then writing the picture says so
    std::filesystem::create_directories(options_.pictures, unwritable);
    const std::filesystem::path file = free_picture_name(options_.pictures);
    write_png(views_.main().screen().canvas(), file.string());
    notices_.add("Saved " + file.lexically_normal().string(), now());
  } catch (const std::exception& error) {
    notices_.add(error.what(), now());
  }
}

void FlightDeck::leave_or_close_help() {
  if (controls_shown_)
    controls_shown_ = false, show_controls_page();
  else if (notices_.help_shown())
    notices_.toggle_help();
  else if (pages_.shown())
    pages_.close();
  else
    leaving_ = true;
}

}  // namespace host
