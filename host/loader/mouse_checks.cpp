#include "host/loader/record_checks.h"

namespace host {
namespace {

constexpr int most_areas = 1024;
constexpr int deepest_nesting = 32;
constexpr std::size_t longest_tooltip = 255;
constexpr u32 known_flags = MOUSE_LEFT | MOUSE_RIGHT | MOUSE_REPEAT | MOUSE_DRAG;

void check_click_area(const MouseArea& area, const Inspector& place) {
  place.callable(area.routine, "the mouse routine");
  if ((area.mouse_flags & known_flags) == 0) place.warning("no click reaches it");
  if ((area.mouse_flags & ~known_flags) != 0)
    place.warning("mouse flags " + hex(area.mouse_flags) + " are not all known");
  if (area.width <= 0 || area.height <= 0)
    place.warning("a box of " + std::to_string(area.width) + " x " + std::to_string(area.height));
}

void check_cursor(i32 cursor, const Inspector& place) {
  for (const i32 known : {CURSOR_ARROW, CURSOR_INCREASE, CURSOR_DECREASE, CURSOR_HAND})
    if (cursor == known) return;
  place.warning("cursor " + std::to_string(cursor) + " is not known");
}

void check_area(const MouseArea& area, const Inspector& place) {
  place.zero(area.reserved, "the reserved word");
  check_cursor(area.cursor, place);
  if (area.kind == MOUSE_CLICK_AREA) check_click_area(area, place);
  if (area.kind == MOUSE_TOOLTIP && area.tooltip != nullptr)
    place.text(area.tooltip, longest_tooltip, "the tooltip");
  if (area.kind == MOUSE_TOOLTIP && area.tooltip == nullptr && area.help_id == 0)
    place.warning("the tooltip has neither a text nor a help number");
}

// The depth after an entry; −1 when the table cannot be followed any further.
int depth_after(const MouseArea& area, int depth, const Inspector& place) {
  if (area.kind > MOUSE_TOOLTIP) {
    place.error("kind " + std::to_string(area.kind) + " is not a mouse area kind");
    return -1;
  }
  if (area.kind == MOUSE_GROUP && ++depth > deepest_nesting) {
    place.error("groups are nested too deeply");
    return -1;
  }
  if (area.kind == MOUSE_GROUP_END && --depth < 0) {
    place.error("it closes a group that is not open");
    return -1;
  }
  if (depth == 0 && (area.kind == MOUSE_CLICK_AREA || area.kind == MOUSE_TOOLTIP))
    place.warning("it stands outside every group");
  return depth;
}

}  // namespace

void check_mouse_areas(const MouseArea* areas, const Inspector& place) {
  int depth = 0;
  for (int i = 0; i < most_areas; ++i) {
    const Inspector here = place.part("mouse area " + std::to_string(i));
    if (!here.readable(areas + i, "the entry")) return;
    if (areas[i].kind == MOUSE_END) {
      if (depth > 0) here.error("the table ends inside a group");
      return;
    }
    depth = depth_after(areas[i], depth, here);
    if (depth < 0) return;
    check_area(areas[i], here);
  }
  place.error("the mouse areas have no end");
}

}  // namespace host
