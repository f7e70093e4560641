#include "host/window/cursors.h"

#include "host/window/ui_pictures.h"
#include "interface/panel_interface.h"

namespace host {

Cursors::Handle Cursors::make(int cursor) const {
  if (cursor == CURSOR_HAND) return Handle(SDL_CreateSystemCursor(SDL_SYSTEM_CURSOR_HAND));
  if (cursor != CURSOR_INCREASE && cursor != CURSOR_DECREASE)
    return Handle(SDL_CreateSystemCursor(SDL_SYSTEM_CURSOR_ARROW));
  Overlay picture = draw_turn_cursor(cursor == CURSOR_INCREASE, scale_);
  SDL_Surface* surface =
      SDL_CreateRGBSurfaceWithFormatFrom(picture.pixels.data(), picture.width, picture.height, 32,
                                         picture.width * 4, SDL_PIXELFORMAT_ARGB8888);
  Handle made(surface ? SDL_CreateColorCursor(surface, picture.width / 2, picture.height / 2)
                      : nullptr);
  SDL_FreeSurface(surface);
  return made;
}

void Cursors::show(int cursor) {
  if (cursor == shown_) return;
  shown_ = cursor;
  auto [entry, missing] = made_.try_emplace(cursor);
  if (missing) entry->second = make(cursor);
  if (entry->second) SDL_SetCursor(entry->second.get());
}

// The one that is shown stays until another is.
void Cursors::set_scale(double scale) {
  scale_ = scale;
  std::erase_if(made_, [this](const auto& entry) { return entry.first != shown_; });
}

}  // namespace host
