/// The menu: a card of rows at the pointer, some of which lead to a card of their own.
#pragma once

#include <SDL_keycode.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "host/pages/sheet.h"

namespace host {

enum class MenuPage { top, panels, pages, flights, flows, settings };

struct MenuRow {
  enum class Kind {
    action,
    page,   ///< leads to `page`
    steps,  ///< goes up and down
    level,  ///< goes up and down, and to any place of its bar
  };
  std::string words{};
  std::string key{};   ///< that does the same; or the value of steps and levels
  std::string note{};  ///< below the words, smaller
  bool ticked = false;
  Kind kind = Kind::action;
  double level = 0;  ///< 0 to 1
  MenuPage page = MenuPage::top;
  std::function<void()> act{};          ///< of an action; the menu has closed unless `stays`
  std::function<void(int)> step{};      ///< so many steps up
  std::function<void(double)> reach{};  ///< of a level
  bool stays = false;

  /// Whether they look alike.
  bool operator==(const MenuRow& other) const;
};

struct MenuSheet {
  std::string title;  ///< empty: it is the first one
  std::vector<MenuRow> rows;
  bool operator==(const MenuSheet&) const = default;
};

/// A menu as it was drawn: where its rows stand, in pixels of the picture.
struct DrawnMenu {
  Overlay picture;
  Rect title;
  std::vector<Rect> rows;
};

/// Of a row's width: where the bar of a level stands, and where its minus and its plus meet.
inline constexpr double menu_bar_left = 0.38, menu_bar_right = 0.74, menu_steps_middle = 0.79;

/// Smaller than `scale` where it would not fit the room.
DrawnMenu draw_menu(const MenuSheet& sheet, std::optional<std::size_t> selected, PanelSize room,
                    double scale, const SheetColors& colors);

/// Which card is open, what is selected on it, and what hands do to it.
class Menu {
 public:
  /// `build` makes a card as things stand.
  explicit Menu(std::function<MenuSheet(MenuPage)> build) : build_(std::move(build)) {}

  bool is_open() const { return open_; }

  /// Opens the first card; with its first row selected for a keyboard.
  void open(bool for_keyboard);
  void close() { open_ = false; }

  /// Whether it must be drawn again: something on the card has changed since draw(). Open only.
  bool looks_old();

  /// Draws it to stand at a point of a window of that size, or beside it.
  const Overlay& draw(PanelPoint at, PanelSize room, double scale, const SheetColors& colors);

  /// Arrows, Enter and Escape. False for any other key.
  bool take_key(SDL_Keycode key);

  /// The pointer, in pixels of the window. press() is false outside of the menu; on a level it takes
  /// hold of it until release().
  void point(int x, int y);
  bool press(int x, int y);
  void release() { held_.reset(); }
  void wheel(int notches);

 private:
  void show(MenuPage page, bool for_keyboard);
  void back(bool for_keyboard);
  void move(int by);
  void enter(bool for_keyboard);
  void step(int by);
  void reach(int x);
  std::optional<std::size_t> row_at(int x, int y) const;
  const MenuRow* selected() const;

  std::function<MenuSheet(MenuPage)> build_;
  bool open_ = false;
  MenuPage page_ = MenuPage::top;
  MenuSheet sheet_;
  std::optional<std::size_t> selected_;
  std::optional<std::size_t> held_;  ///< a level
  bool old_ = false;
  DrawnMenu drawn_;
};

}  // namespace host
