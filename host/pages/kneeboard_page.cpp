#include <algorithm>

#include "host/pages/checklist_progress.h"
#include "host/pages/sheet.h"

namespace host {
namespace {

constexpr double tab_height = 26, tab_step = 30, tab_width = 124, tab_gap = 6;
constexpr std::size_t tabs_a_row = 3;
constexpr double most_row_height = 26;

// Returns where the list begins.
double draw_tabs(Sheet& sheet, const PageView& view, std::size_t chosen) {
  for (std::size_t i = 0; i < view.lists.size(); ++i) {
    const Checklist& list = view.lists[i];
    const double x = Sheet::margin + (tab_width + tab_gap) * static_cast<double>(i % tabs_a_row);
    const double y = Sheet::top + tab_step * static_cast<double>(i / tabs_a_row);
    sheet.button(list.title, x, y, tab_width, i == chosen, page_click::ShowList{i});
    if (i != chosen && items_done(list, view.cockpit) == list.items.size())
      sheet.line(x + 8, y + tab_height - 2, x + tab_width - 8, y + tab_height - 2, 2,
                 sheet.colors().done);
  }
  const std::size_t rows = (view.lists.size() + tabs_a_row - 1) / tabs_a_row;
  return Sheet::top + tab_step * static_cast<double>(rows) + 10;
}

// What is to be done, dots, and how it should be.
void draw_item(Sheet& sheet, const PageView& view, const ChecklistItem& item, double y, double high) {
  const page_click::PointAt point{item.gauge, item.control, item.done};
  const bool done = holds(item.done, view.cockpit), pointed = view.choices.pointing == point;
  const SheetColors& colors = sheet.colors();
  const double size = high * 0.68, left = Sheet::margin + high;
  if (pointed)
    sheet.box(Sheet::margin - 6, y, Sheet::right() - Sheet::margin + 12, high, 4, colors.face);
  sheet.tick_box(Sheet::margin, y + high * 0.19, high * 0.62, done);
  const Color ink = done ? colors.soft : pointed ? colors.accent : colors.ink;
  sheet.text(item.what, left, y + high * 0.16, size, ink);
  sheet.text_right(item.wanted, Sheet::right(), y + high * 0.16, size, ink, true);
  const double from = left + Sketch::text_width(item.what, size, false) + 8;
  const double to = Sheet::right() - Sketch::text_width(item.wanted, size, true) - 8;
  for (double x = from; x < to; x += 6)
    sheet.box(x, y + high * 0.62, 1.5, 1.5, 0.7, {ink.red, ink.green, ink.blue, 0.5});
  sheet.spot(0, y, Sheet::width, high, point);
}

void draw_footer(Sheet& sheet, const PageView& view, std::size_t chosen, double y) {
  const Checklist& list = view.lists[chosen];
  const std::size_t done = items_done(list, view.cockpit);
  const bool complete = done == list.items.size();
  sheet.text(complete ? list.title + " complete"
                      : std::to_string(done) + " of " + std::to_string(list.items.size()) + " done",
             Sheet::margin, y + 4, 18, complete ? sheet.colors().done : sheet.colors().soft, complete);
  if (chosen + 1 < view.lists.size())
    sheet.button(view.lists[chosen + 1].title + " ›", Sheet::right() - 140, y, 140, complete,
                 page_click::ShowList{chosen + 1});
}

}  // namespace

DrawnPage draw_kneeboard(const PageView& view) {
  Sheet sheet(PageKind::kneeboard, view);
  if (view.lists.empty()) {
    sheet.text("There are no checklists.", Sheet::margin, Sheet::top, 18, sheet.colors().soft);
    return sheet.finish();
  }
  const std::size_t chosen = std::min(
      view.choices.list.value_or(proposed_list(view.lists, view.cockpit)), view.lists.size() - 1);
  double y = draw_tabs(sheet, view, chosen);
  const auto& items = view.lists[chosen].items;
  const double room = sheet.height() - y - 52;
  const double high =
      std::min(most_row_height, room / static_cast<double>(std::max<std::size_t>(1, items.size())));
  for (const ChecklistItem& item : items) {
    draw_item(sheet, view, item, y, high);
    y += high;
  }
  draw_footer(sheet, view, chosen, y + 12);
  return sheet.finish();
}

}  // namespace host
