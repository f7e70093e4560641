#include <utility>

#include "host/panel/dusk.h"
#include "host/window/flight_deck.h"

namespace host {
namespace {

bool is_modifier(SDL_Keycode key) {
  return (key >= SDLK_LCTRL && key <= SDLK_RGUI) || key == SDLK_CAPSLOCK || key == SDLK_MODE;
}

}  // namespace

View& FlightDeck::menu_view() {
  View* view = views_.find(menu_view_);
  return view ? *view : views_.main();
}

void FlightDeck::open_menu(View& view, PanelPoint at, bool for_keyboard) {
  close_menu();
  hand_.reset();
  hand_.show_arrow();
  if (flying_.has_yoke()) toggle_yoke();
  const auto hit = view.hit(at.x, at.y);
  menu_window_ = hit ? std::optional(hit->window) : std::nullopt;
  menu_view_ = view.screen().id();
  menu_at_ = at;
  menu_.open(for_keyboard);
  menu_old_ = true;
}

void FlightDeck::open_menu_for_keyboard(View& view) {
  const PanelSize size = view.screen().size();
  open_menu(view, hand_.place_in(view).value_or(PanelPoint{size.width / 3, size.height / 5}), true);
}

void FlightDeck::close_menu() {
  menu_.close();
  show_menu();
}

// The card as things stand; taken away where it has closed, or its window has.
void FlightDeck::show_menu() {
  if (menu_.is_open() && !views_.find(menu_view_)) menu_.close();
  if (menu_.is_open()) {
    if (!menu_.looks_old() && !std::exchange(menu_old_, false)) return;
    View& view = menu_view();
    view.set_layer(Layer::menu, menu_.draw(menu_at_, view.screen().size(), view.scale(),
                                           sheet_colors(is_dark(cockpit_))));
    menu_shown_ = true;
  } else if (std::exchange(menu_shown_, false)) {
    views_.each([](View& view) { view.set_layer(Layer::menu, std::nullopt); });
    keep_desk();
  }
}

bool FlightDeck::take_menu_key(const SDL_KeyboardEvent& event) {
  const SDL_Keycode key = event.keysym.sym;
  const bool menu_key = key == SDLK_F10 || key == SDLK_APPLICATION || key == SDLK_MENU;
  if (event.type != SDL_KEYDOWN || (!menu_.is_open() && !menu_key)) return false;
  if (menu_key) {
    if (event.repeat != 0) return true;
    View* view = views_.find(event.windowID);
    menu_.is_open() ? close_menu() : open_menu_for_keyboard(view ? *view : views_.main());
    return true;
  }
  if (menu_.take_key(key)) return true;
  if (event.repeat == 0 && !is_modifier(key)) close_menu();  // and the key does what it always does
  return false;
}

// While the menu is open it has all of the mouse. A press beside it closes it and does nothing else,
// except that the right button may open it somewhere else.
bool FlightDeck::take_menu_mouse(const SDL_Event& event) {
  if (!menu_.is_open()) return false;
  if (event.type == SDL_MOUSEMOTION) {
    if (event.motion.windowID != menu_view_) return true;
    const PanelPoint at = menu_view().screen().pixel_at(event.motion.x, event.motion.y);
    menu_.point(at.x, at.y);
    return true;
  }
  if (event.type == SDL_MOUSEWHEEL) return menu_.wheel(event.wheel.y), true;
  if (event.type == SDL_MOUSEBUTTONUP) return menu_.release(), true;
  if (event.type != SDL_MOUSEBUTTONDOWN) return false;
  const PanelPoint at = menu_view().screen().pixel_at(event.button.x, event.button.y);
  if (event.button.windowID == menu_view_ && menu_.press(at.x, at.y)) return true;
  close_menu();
  if (event.button.button == SDL_BUTTON_RIGHT) take_menu_ask(event.button);
  return true;
}

std::optional<ViewHit> FlightDeck::hit_at(Uint32 window, int x, int y) {
  const View* view = views_.find(window);
  if (!view) return std::nullopt;
  const PanelPoint pixel = view->screen().pixel_at(x, y);
  return view->hit(pixel.x, pixel.y);
}

bool FlightDeck::takes_click(const ViewHit& hit) {
  return hit.gauge && hit.gauge->gauge->areas.at(hit.gauge->point, MOUSE_LEFT | MOUSE_RIGHT);
}

// A right click where no control lies asks for the menu.
bool FlightDeck::take_menu_ask(const SDL_MouseButtonEvent& event) {
  View* view = views_.find(event.windowID);
  if (!view || event.button != SDL_BUTTON_RIGHT) return false;
  const auto hit = hit_at(event.windowID, event.x, event.y);
  if (hit && takes_click(*hit)) return false;
  open_menu(*view, view->screen().pixel_at(event.x, event.y), false);
  return true;
}

}  // namespace host
