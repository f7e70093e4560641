#include <algorithm>
#include <cmath>

#include "host/window/menu.h"

namespace host {
namespace {

// In units of the menu's own.
constexpr double row_height = 30, note_height = 18, title_height = 38, around = 6;
constexpr double words_left = 34, words_right = 16, least_width = 290, most_width = 680;
constexpr double letter = 18, small = 15;

double width_of(const std::string& words, double size) {
  return Sketch::text_width(words, size, false);
}

double height_of(const MenuRow& row) { return row_height + (row.note.empty() ? 0 : note_height); }

double wanted_width(const MenuSheet& sheet) {
  double width = least_width;
  for (const MenuRow& row : sheet.rows)
    width = std::max(
        {width, words_left + width_of(row.words, letter) + 40 + width_of(row.key, letter) + words_right,
         words_left + width_of(row.note, small) + words_right});
  return std::min(width, most_width);
}

class Card {
 public:
  Card(double width, double height, double unit, const SheetColors& colors)
      : unit_(unit),
        colors_(colors),
        sketch_(static_cast<int>(std::ceil(width * unit)), static_cast<int>(std::ceil(height * unit))) {
    sketch_.rounded_box(0, 0, width * unit, height * unit, 7 * unit, colors.paper);
    sketch_.box_outline(0, 0, width * unit, height * unit, 7 * unit, 1.5 * unit, colors.soft);
  }

  void text(const std::string& words, double x, double y, double size, Color color, bool bold = false) {
    sketch_.text(words, x * unit_, y * unit_, size * unit_, bold, color);
  }
  void text_right(const std::string& words, double x, double y, double size, Color color) {
    text(words, x - width_of(words, size * unit_) / unit_, y, size, color);
  }
  void box(double x, double y, double wide, double high, double radius, Color color) {
    sketch_.rounded_box(x * unit_, y * unit_, wide * unit_, high * unit_, radius * unit_, color);
  }
  void line(double x0, double y0, double x1, double y1, double thick, Color color) {
    sketch_.line(x0 * unit_, y0 * unit_, x1 * unit_, y1 * unit_, thick * unit_, color);
  }
  void arrow(double x, double y, double way) {
    line(x, y - 5, x + 5 * way, y, 1.8, colors_.soft);
    line(x + 5 * way, y, x, y + 5, 1.8, colors_.soft);
  }
  void tick(double x, double y) {
    line(x, y, x + 4, y + 4.5, 2.2, colors_.done);
    line(x + 4, y + 4.5, x + 11, y - 6, 2.2, colors_.done);
  }
  Rect place(double x, double y, double wide, double high) const {
    const auto pixels = [&](double length) { return static_cast<int>(std::lround(length * unit_)); };
    return {pixels(x), pixels(y), pixels(wide), pixels(high)};
  }
  const SheetColors& colors() const { return colors_; }
  Overlay finish() { return sketch_.finish(); }

 private:
  double unit_;
  const SheetColors& colors_;
  Sketch sketch_;
};

void draw_level(Card& card, const MenuRow& row, double width, double middle) {
  const double left = around + (width - 2 * around) * menu_bar_left;
  const double right = around + (width - 2 * around) * menu_bar_right;
  card.box(left, middle - 3, right - left, 6, 3, card.colors().line);
  card.box(left, middle - 3, std::max(6.0, (right - left) * row.level), 6, 3, card.colors().accent);
  const double at = left + (right - left) * row.level;
  card.box(at - 7, middle - 7, 14, 14, 7, card.colors().accent);
  card.text_right(row.key, width - words_right, middle - 11, letter, card.colors().soft);
}

void draw_steps(Card& card, const MenuRow& row, double width, double middle) {
  const Color color = card.colors().accent;
  const double right = width - words_right - 6;
  const double centre = around + (width - 2 * around) * menu_steps_middle;
  const double left = 2 * centre - right;
  card.line(left - 5, middle, left + 5, middle, 2.2, color);
  card.line(right - 5, middle, right + 5, middle, 2.2, color);
  card.line(right, middle - 5, right, middle + 5, 2.2, color);
  card.text(row.key, centre - width_of(row.key, letter) / 2, middle - 11, letter, card.colors().ink);
}

void draw_row(Card& card, const MenuRow& row, double width, double y, bool selected) {
  const SheetColors& colors = card.colors();
  const double middle = y + row_height / 2;
  if (selected) {
    card.box(around, y, width - 2 * around, height_of(row), 4, colors.face);
    card.box(around, y + 3, 3, height_of(row) - 6, 1.5, colors.accent);
  }
  if (row.ticked) card.tick(14, middle);
  card.text(row.words, words_left, y + 4, letter, colors.ink);
  if (!row.note.empty()) card.text(row.note, words_left, y + row_height - 4, small, colors.soft);
  switch (row.kind) {
    case MenuRow::Kind::page: return card.arrow(width - words_right - 8, middle, 1);
    case MenuRow::Kind::steps: return draw_steps(card, row, width, middle);
    case MenuRow::Kind::level: return draw_level(card, row, width, middle);
    default: return card.text_right(row.key, width - words_right, y + 4, letter, colors.soft);
  }
}

}  // namespace

DrawnMenu draw_menu(const MenuSheet& sheet, std::optional<std::size_t> selected, PanelSize room,
                    double scale, const SheetColors& colors) {
  const double head = sheet.title.empty() ? 0 : title_height;
  const double width = wanted_width(sheet);
  double height = head + 2 * around;
  for (const MenuRow& row : sheet.rows) height += height_of(row);
  const double unit = std::max(0.3, std::min({scale, room.width / width, room.height / height}));
  Card card(width, height, unit, colors);
  DrawnMenu menu;
  if (head > 0) {
    card.arrow(22, around + 15, -1);
    card.text(sheet.title, words_left, around + 2, 20, colors.ink, true);
    card.line(around + 8, head, width - around - 8, head, 1, colors.line);
    menu.title = card.place(0, 0, width, head);
  }
  double y = head + around;
  for (std::size_t i = 0; i < sheet.rows.size(); ++i) {
    draw_row(card, sheet.rows[i], width, y, selected == i);
    menu.rows.push_back(card.place(around, y, width - 2 * around, height_of(sheet.rows[i])));
    y += height_of(sheet.rows[i]);
  }
  menu.picture = card.finish();
  return menu;
}

}  // namespace host
