/// One line per click area of a gauge: the factories that gauges build their mouse tables from.
///
/// Boxes are pixels of the gauge's background; a mouse routine gets a point relative to its box.
#pragma once

#include <array>
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
  const char* words;  ///< what a person calls it, unlike every other area of the gauge
  MouseArea entries[most_entries];
  std::size_t count;
};

/// Areas that a function describes, for controls that repeat between gauges.
template <std::size_t count>
using Areas = std::array<Area, count>;

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
constexpr Area click(const char* words, Box box, MouseRoutine routine, Press press = Press::left,
                     i32 cursor = CURSOR_HAND) {
  return {words, {detail::click_entry(box, routine, press, cursor)}, 1};
}

/// The half of a knob or selector that lowers its value.
constexpr Area decrease(const char* words, Box box, MouseRoutine routine, Press press = Press::left) {
  return click(words, box, routine, press, CURSOR_DECREASE);
}

/// The half of a knob or selector that raises its value.
constexpr Area increase(const char* words, Box box, MouseRoutine routine, Press press = Press::left) {
  return click(words, box, routine, press, CURSOR_INCREASE);
}

/// An area whose words the host shows as its tooltip: a group at the control's place that holds the
/// text and the area.
constexpr Area labelled(Area area) {
  MouseArea inner = area.entries[0];
  const Box box{inner.x, inner.y, inner.width, inner.height};
  inner.x = inner.y = 0;
  MouseArea tip = detail::entry(MOUSE_TOOLTIP);
  tip.tooltip = area.words;
  return {area.words,
          {detail::entry(MOUSE_GROUP, box), tip, inner, detail::entry(MOUSE_GROUP_END)},
          Area::most_entries};
}

/// The same with a help text of the host's own in place of the words.
constexpr Area labelled(u32 help_id, Area area) {
  area = labelled(area);
  area.entries[1].tooltip = nullptr;
  area.entries[1].help_id = help_id;
  return area;
}

}  // namespace tarnvale
