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

  /// The point itself, or the nearest one inside.
  PanelPoint nearest(PanelPoint point) const;

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

  /// Makes these areas the parts of one control, so that it has no dead strip between them.
  void join(std::vector<std::size_t> areas) { controls_.push_back(std::move(areas)); }

  /// The innermost area under the point that answers any of the `actions`; between the areas of one
  /// control the nearest of them. Null if there is none.
  const HotArea* at(PanelPoint point, std::uint32_t actions) const;

  /// The text of the innermost tooltip under the point; empty if there is none.
  std::string_view tooltip(PanelPoint point) const;

  /// What a notch of the wheel does. Only an increase and a decrease area side by side and a knob
  /// that repeats on both buttons can be wheeled, also between the two areas of a pair: a switch
  /// or a guard never moves because someone scrolled over it, nor a lever, whose ends stand apart.
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
  const HotArea* between(PanelPoint point, std::uint32_t actions) const;
  void find_pairs();
  const Pair* pair_of(const HotArea* area) const;
  const Pair* pair_around(PanelPoint point) const;

  std::vector<HotArea> areas_;
  std::vector<Tooltip> tooltips_;
  std::vector<Pair> pairs_;
  std::vector<std::vector<std::size_t>> controls_;
};

}  // namespace host
