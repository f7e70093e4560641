/// One line per click area of a gauge: the factories that gauges build their mouse tables from.
///
/// Boxes are pixels of the gauge's background; a mouse routine gets a point relative to its box.
#pragma once

#include <cstddef>

#include "interface/panel_interface.h"

namespace tarnvale {

/// Left, top, width and height.
struct Box {
  i32 x, y, width, height;
};

/// Which mouse actions an area answers.
enum class Press : u32 {
  left = MOUSE_LEFT,
  right = MOUSE_RIGHT,
  either = MOUSE_LEFT | MOUSE_RIGHT,
  left_held = MOUSE_LEFT | MOUSE_REPEAT,
  either_held = MOUSE_LEFT | MOUSE_RIGHT | MOUSE_REPEAT,
  drag = MOUSE_LEFT | MOUSE_DRAG,
};

/// A click area as the mouse table holds it: the area itself, or a labelled group around it.
struct Area {
  static constexpr std::size_t most_entries = 4;
  MouseArea entries[most_entries];
  std::size_t count;
};

namespace detail {

constexpr MouseArea entry(u32 kind, Box box = {}, i32 cursor = CURSOR_ARROW) {
  MouseArea e{};
  e.kind = kind;
  e.x = box.x;
  e.y = box.y;
  e.width = box.width;
  e.height = box.height;
  e.cursor = cursor;
  return e;
}

constexpr MouseArea click_entry(Box box, MouseRoutine routine, Press press, i32 cursor) {
  MouseArea e = entry(MOUSE_CLICK_AREA, box, cursor);
  e.mouse_flags = static_cast<u32>(press);
  e.routine = routine;
  return e;
}

}  // namespace detail

/// A switch, a button or any other control that a click works.
constexpr Area click(Box box, MouseRoutine routine, Press press = Press::left,
                     i32 cursor = CURSOR_HAND) {
  return {{detail::click_entry(box, routine, press, cursor)}, 1};
}

/// The half of a knob or selector that lowers its value.
constexpr Area decrease(Box box, MouseRoutine routine, Press press = Press::left) {
  return click(box, routine, press, CURSOR_DECREASE);
}

/// The half of a knob or selector that raises its value.
constexpr Area increase(Box box, MouseRoutine routine, Press press = Press::left) {
  return click(box, routine, press, CURSOR_INCREASE);
}

/// An area with a tooltip: a group at the control's place that holds the text and the area.
constexpr Area labelled(const char* tooltip, Box box, MouseRoutine routine, Press press = Press::left,
                        i32 cursor = CURSOR_HAND) {
  MouseArea tip = detail::entry(MOUSE_TOOLTIP);
  tip.tooltip = tooltip;
  return {{detail::entry(MOUSE_GROUP, box), tip,
           detail::click_entry({0, 0, box.width, box.height}, routine, press, cursor),
           detail::entry(MOUSE_GROUP_END)},
          4};
}

/// Tells the two buttons apart in a routine that answers both.
constexpr bool is_left(u32 mouse_flags) { return (mouse_flags & MOUSE_LEFT) != 0; }
constexpr bool is_right(u32 mouse_flags) { return (mouse_flags & MOUSE_RIGHT) != 0; }

}  // namespace tarnvale
