#include "host/window/menu.h"

#include <algorithm>
#include <utility>

namespace host {
namespace {

bool contains(const Rect& rect, int x, int y) {
  return x >= rect.x && y >= rect.y && x < rect.x + rect.width && y < rect.y + rect.height;
}

}  // namespace

bool MenuRow::operator==(const MenuRow& other) const {
  return words == other.words && key == other.key && note == other.note && ticked == other.ticked &&
         kind == other.kind && level == other.level;
}

void Menu::open(bool for_keyboard) {
  open_ = true;
  show(MenuPage::top, for_keyboard);
}

void Menu::show(MenuPage page, bool for_keyboard) {
  page_ = page;
  held_.reset();
  sheet_ = build_(page);
  selected_ = for_keyboard ? std::optional<std::size_t>(0) : std::nullopt;
  old_ = true;
}

// The row that led here is selected again.
void Menu::back(bool for_keyboard) {
  const MenuPage from = page_;
  if (from == MenuPage::top) return close();
  show(MenuPage::top, for_keyboard);
  for (std::size_t i = 0; for_keyboard && i < sheet_.rows.size(); ++i)
    if (sheet_.rows[i].kind == MenuRow::Kind::page && sheet_.rows[i].page == from) selected_ = i;
}

bool Menu::looks_old() {
  MenuSheet now = build_(page_);
  if (now != sheet_) old_ = true;
  sheet_ = std::move(now);
  if (selected_ && *selected_ >= sheet_.rows.size()) selected_.reset();
  return old_;
}

const Overlay& Menu::draw(PanelPoint at, PanelSize room, double scale, const SheetColors& colors) {
  drawn_ = draw_menu(sheet_, selected_, room, scale, colors);
  Overlay& picture = drawn_.picture;
  picture.x = std::clamp(at.x, 0, std::max(0, room.width - picture.width));
  picture.y = std::clamp(at.y, 0, std::max(0, room.height - picture.height));
  old_ = false;
  return picture;
}

const MenuRow* Menu::selected() const {
  return selected_ && *selected_ < sheet_.rows.size() ? &sheet_.rows[*selected_] : nullptr;
}

void Menu::move(int by) {
  const int count = static_cast<int>(sheet_.rows.size());
  if (count == 0) return;
  const int from = selected_ ? static_cast<int>(*selected_) : by > 0 ? -1 : 0;
  selected_ = static_cast<std::size_t>((from + by + count) % count);
  old_ = true;
}

// What a row does may build the rows anew, or end the menu.
void Menu::enter(bool for_keyboard) {
  const MenuRow* chosen = selected();
  if (!chosen) return;
  const MenuRow row = *chosen;
  if (row.kind == MenuRow::Kind::page) return show(row.page, for_keyboard);
  if (row.kind != MenuRow::Kind::action) return;
  if (!row.stays) close();
  if (row.act) row.act();
}

void Menu::step(int by) {
  const MenuRow* row = selected();
  if (row && row->step) std::function<void(int)>(row->step)(by);
}

bool Menu::take_key(SDL_Keycode key) {
  const MenuRow* row = selected();
  const bool steps = row && row->step;
  switch (key) {
    case SDLK_UP: return move(-1), true;
    case SDLK_DOWN: return move(1), true;
    case SDLK_LEFT:
      if (steps) return step(-1), true;
      if (page_ != MenuPage::top) back(true);
      return true;
    case SDLK_RIGHT:
      if (steps) return step(1), true;
      if (row && row->kind == MenuRow::Kind::page) enter(true);
      return true;
    case SDLK_RETURN:
    case SDLK_KP_ENTER:
    case SDLK_SPACE: return enter(true), true;
    case SDLK_ESCAPE: return back(true), true;
    default: return false;
  }
}

std::optional<std::size_t> Menu::row_at(int x, int y) const {
  x -= drawn_.picture.x;
  y -= drawn_.picture.y;
  for (std::size_t i = 0; i < std::min(drawn_.rows.size(), sheet_.rows.size()); ++i)
    if (contains(drawn_.rows[i], x, y)) return i;
  return std::nullopt;
}

void Menu::point(int x, int y) {
  if (held_) return reach(x);
  const auto row = row_at(x, y);
  if (!row || row == selected_) return;
  selected_ = row;
  old_ = true;
}

void Menu::reach(int x) {
  if (*held_ >= std::min(drawn_.rows.size(), sheet_.rows.size())) return held_.reset();
  const Rect& place = drawn_.rows[*held_];
  const double along = (x - drawn_.picture.x - place.x) / std::max(1.0, double(place.width));
  const std::function<void(double)> reach = sheet_.rows[*held_].reach;
  reach(std::clamp((along - menu_bar_left) / (menu_bar_right - menu_bar_left), 0.0, 1.0));
}

bool Menu::press(int x, int y) {
  const Overlay& picture = drawn_.picture;
  if (!contains({picture.x, picture.y, picture.width, picture.height}, x, y)) return false;
  if (contains(drawn_.title, x - picture.x, y - picture.y)) return back(false), true;
  const auto at = row_at(x, y);
  if (!at) return true;
  selected_ = at;
  const MenuRow::Kind kind = sheet_.rows[*at].kind;
  if (kind == MenuRow::Kind::level) {
    held_ = at;
    reach(x);
  } else if (kind == MenuRow::Kind::steps) {
    const Rect& place = drawn_.rows[*at];
    step(x - picture.x - place.x < menu_steps_middle * place.width ? -1 : 1);
  } else {
    enter(false);
  }
  return true;
}

void Menu::wheel(int notches) {
  if (notches != 0) step(std::clamp(notches, -20, 20));
}

}  // namespace host
