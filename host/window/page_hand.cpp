#include <algorithm>
#include <cmath>

#include "host/window/flight_deck.h"

namespace host {
namespace {

constexpr double page_time = 0.25;  // seconds between two pictures of a page that nobody touches
constexpr double most_of_the_width = 0.45;  // the panels keep the rest

PanelSize room_for_page(PanelSize window, double scale) {
  const double unit = std::min({scale, window.width * most_of_the_width / page_size.width,
                                static_cast<double>(window.height) / page_size.height});
  return {static_cast<int>(std::lround(page_size.width * unit)), window.height};
}

}  // namespace

void FlightDeck::follow_pages() {
  pages_.follow();
  if (pages_.take_changed() || (pages_.shown() && !paused_ && now() >= page_due_)) show_page();
}

void FlightDeck::show_page() {
  View& view = views_.main();
  page_due_ = now() + page_time;
  point_at_target();
  if (!pages_.shown()) {
    view.keep_free(0);
    return view.set_layer(Layer::page, std::nullopt);
  }
  const PanelSize size = view.screen().size();
  page_ = pages_.draw(room_for_page(size, view.scale()), view.scale());
  view.keep_free(page_.picture.width);
  page_.picture.x = size.width - page_.picture.width;
  view.set_layer(Layer::page, page_.picture);
}

bool FlightDeck::over_page(Uint32 window, int x, int y) const {
  const ScreenWindow& screen = views_.main().screen();
  if (!pages_.shown() || window != screen.id() || y < 0) return false;
  return screen.pixel_at(x, y).x >= page_.picture.x;
}

const PageSpot* FlightDeck::page_spot(int x, int y) const {
  const PanelPoint pixel = views_.main().screen().pixel_at(x, y);
  return page_.at(pixel.x - page_.picture.x, pixel.y);
}

bool FlightDeck::take_page_event(const SDL_Event& event) {
  if (event.type == SDL_MOUSEBUTTONDOWN &&
      over_page(event.button.windowID, event.button.x, event.button.y)) {
    const PageSpot* spot = page_spot(event.button.x, event.button.y);
    if (spot && event.button.button == SDL_BUTTON_LEFT) pages_.take(PageClick(spot->click));
    return true;
  }
  if (event.type == SDL_MOUSEWHEEL) {
    int x = 0, y = 0;
    SDL_GetMouseState(&x, &y);
    if (!over_page(event.wheel.windowID, x, y)) return false;
    if (pages_.shown() == PageKind::map)
      pages_.take(page_click::ChangeRange{std::clamp(event.wheel.y, -20, 20)});
    return true;
  }
  if (event.type == SDL_MOUSEMOTION && event.motion.state == 0 &&
      over_page(event.motion.windowID, event.motion.x, event.motion.y)) {
    hand_.take(event, now());
    if (page_spot(event.motion.x, event.motion.y)) hand_.show_hand();
    return true;
  }
  return false;
}

bool FlightDeck::take_page_key(const SDL_Keysym& key) {
  const auto requests = static_cast<SDL_Keycode>(request_table().size());
  if (pages_.shown() == PageKind::radio && (key.mod & KMOD_ALT) && key.sym >= SDLK_1 &&
      key.sym < SDLK_1 + requests) {
    pages_.take(
        page_click::AskFor{request_table()[static_cast<std::size_t>(key.sym - SDLK_1)].request});
    return true;
  }
  for (const PageRow& row : page_table()) {
    if (key.sym != row.key[0] - 'A' + SDLK_a) continue;
    pages_.toggle(row.kind);
    return true;
  }
  return false;
}

}  // namespace host
