/// Where a gauge can be clicked, turned and asked what it is.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "interface/panel_interface.h"

namespace host {

/// A box in pixels of the gauge's background. Wider than the records, so that sums never overflow.
struct Box {
  std::int64_t x = 0;
  std::int64_t y = 0;
  std::int64_t width = 0;
  std::int64_t height = 0;

  bool contains(PanelPoint point) const {
    return point.x >= x && point.x - x < width && point.y >= y && point.y - y < height;
  }

  PanelPoint middle() const {
    return {static_cast<i32>(x + width / 2), static_cast<i32>(y + height / 2)};
  }

  bool operator==(const Box&) const = default;
};

/// One click area, placed on the gauge.
struct HotArea {
  Box box;
  int depth = 0;  ///< groups around it
  int cursor = CURSOR_ARROW;
  std::uint32_t flags = 0;  ///< the actions that it answers
  MouseRoutine routine = nullptr;

  /// Calls the routine. `point` is on the gauge, `flags` the bits that fired.
  void fire(PanelPoint point, std::uint32_t fired) const;
};

/// The area that one notch of the wheel works, and as which button.
struct WheelStep {
  const HotArea* area;
  std::uint32_t button;
};

/// The mouse areas of one gauge, flattened.
class HotAreas {
 public:
  /// `table` ends with MOUSE_END; null: no areas. Tooltip texts are copied.
  explicit HotAreas(const MouseArea* table);

  const std::vector<HotArea>& areas() const { return areas_; }

  /// The innermost area under the point that answers any of the `actions`; null if there is none.
  const HotArea* at(PanelPoint point, std::uint32_t actions) const;

  /// The text of the innermost tooltip under the point; empty if there is none.
  std::string_view tooltip(PanelPoint point) const;

  /// What a notch of the wheel does. Only a pair of an increase and a decrease area and a knob
  /// that repeats on both buttons can be wheeled, also between the two areas of a pair: a switch
  /// or a guard never moves because someone scrolled over it.
  std::optional<WheelStep> wheel(PanelPoint point, bool up) const;

 private:
  struct Tooltip {
    Box box;
    int depth;
    bool everywhere;  ///< belongs to the whole gauge
    std::string text;
  };
  struct Pair {
    std::size_t increase;
    std::size_t decrease;
  };

  void read(const MouseArea* table);
  void add_tooltip(const Box& group, int depth, std::string text);
  void find_pairs();
  const Pair* pair_of(const HotArea* area) const;
  const Pair* pair_around(PanelPoint point) const;

  std::vector<HotArea> areas_;
  std::vector<Tooltip> tooltips_;
  std::vector<Pair> pairs_;
};

}  // namespace host
