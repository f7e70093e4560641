#include "host/panel/hot_areas.h"

#include <algorithm>
#include <cstdlib>

namespace host {
namespace {

constexpr std::uint32_t any_button = MOUSE_LEFT | MOUSE_RIGHT;

// Tooltips and groups that name one of the host's own help pages instead of carrying a text.
std::string help_text(std::uint32_t help_id) {
  switch (help_id) {
    case 0x3053: return "Set Barometric Pressure";
    case 0x3071: return "Set Selected Airspeed";
    case 0xAB77: return "Standby Compass";
    default: return {};
  }
}

Box placed(const MouseArea& area, const Box& group) {
  return {group.x + area.x, group.y + area.y, area.width, area.height};
}

bool is_inside(const HotArea& a, const HotArea& b) {
  if (a.depth != b.depth) return a.depth > b.depth;
  return a.box.width * a.box.height < b.box.width * b.box.height;
}

bool is_knob(const HotArea& area) {
  const std::uint32_t bits = any_button | MOUSE_REPEAT;
  return area.cursor == CURSOR_HAND && (area.flags & bits) == bits;
}

std::int64_t gap(std::int64_t a, std::int64_t a_size, std::int64_t b, std::int64_t b_size) {
  return std::max<std::int64_t>({0, b - (a + a_size), a - (b + b_size)});
}

// The free space between two boxes; between two as near, the better aligned pair is nearer.
std::int64_t distance(const Box& a, const Box& b) {
  const std::int64_t dx = gap(a.x, a.width, b.x, b.width);
  const std::int64_t dy = gap(a.y, a.height, b.y, b.height);
  const std::int64_t skew = std::min(std::abs(a.x - b.x), std::abs(a.y - b.y));
  return (dx + dy) * 1000 + skew;
}

// The halves of a knob stand side by side, the ends of a lever apart.
bool stand_together(const Box& a, const Box& b) {
  const std::int64_t across = std::min(a.width, b.width), along = std::min(a.height, b.height);
  return 2 * gap(a.x, a.width, b.x, b.width) < across && 2 * gap(a.y, a.height, b.y, b.height) < along;
}

Box around(const Box& a, const Box& b) {
  const std::int64_t x = std::min(a.x, b.x), y = std::min(a.y, b.y);
  return {x, y, std::max(a.x + a.width, b.x + b.width) - x,
          std::max(a.y + a.height, b.y + b.height) - y};
}

std::int64_t square_of_distance(const Box& box, PanelPoint point) {
  const PanelPoint inside = box.nearest(point);
  const std::int64_t dx = std::int64_t{inside.x} - point.x, dy = std::int64_t{inside.y} - point.y;
  return dx * dx + dy * dy;
}

}  // namespace

PanelPoint Box::nearest(PanelPoint point) const {
  const auto within = [](std::int64_t at, std::int64_t low, std::int64_t size) {
    return static_cast<i32>(std::max(low, std::min(at, low + size - 1)));
  };
  return {within(point.x, x, width), within(point.y, y, height)};
}

void HotArea::fire(PanelPoint point, std::uint32_t fired) const {
  if (routine) routine({static_cast<i32>(point.x - box.x), static_cast<i32>(point.y - box.y)}, fired);
}

HotAreas::HotAreas(const MouseArea* table) {
  if (table) read(table);
  find_pairs();
}

void HotAreas::read(const MouseArea* table) {
  std::vector<Box> groups(1);
  for (const MouseArea* row = table; row->kind != MOUSE_END; ++row) {
    const Box group = groups.back();
    const int depth = static_cast<int>(groups.size()) - 1;
    if (row->kind == MOUSE_GROUP) {
      groups.push_back(placed(*row, group));
      if (row->help_id) add_tooltip(groups.back(), depth + 1, help_text(row->help_id));
    } else if (row->kind == MOUSE_GROUP_END) {
      if (groups.size() > 1) groups.pop_back();
    } else if (row->kind == MOUSE_CLICK_AREA) {
      areas_.push_back({placed(*row, group), depth, row->cursor, row->mouse_flags, row->routine});
    } else if (row->kind == MOUSE_TOOLTIP) {
      std::string text = row->help_id ? help_text(row->help_id) : row->tooltip ? row->tooltip : "";
      add_tooltip(group, depth, std::move(text));
    }
  }
}

void HotAreas::add_tooltip(const Box& group, int depth, std::string text) {
  tooltips_.push_back({group, depth, group.width == 0 && group.height == 0, std::move(text)});
}

const HotArea* HotAreas::at(PanelPoint point, std::uint32_t actions) const {
  const HotArea* found = nullptr;
  for (const HotArea& area : areas_)
    if ((area.flags & actions) && area.box.contains(point) && (!found || !is_inside(*found, area)))
      found = &area;
  return found ? found : between(point, actions);
}

const HotArea* HotAreas::between(PanelPoint point, std::uint32_t actions) const {
  for (const std::vector<std::size_t>& control : controls_) {
    Box all = areas_[control.front()].box;
    for (const std::size_t i : control) all = around(all, areas_[i].box);
    if (!all.contains(point)) continue;
    const auto nearest = std::ranges::min_element(
        control, {}, [&](std::size_t i) { return square_of_distance(areas_[i].box, point); });
    if (areas_[*nearest].flags & actions) return &areas_[*nearest];
  }
  return nullptr;
}

std::string_view HotAreas::tooltip(PanelPoint point) const {
  const Tooltip* found = nullptr;
  for (const Tooltip& tip : tooltips_)
    if ((tip.everywhere || tip.box.contains(point)) && (!found || tip.depth >= found->depth))
      found = &tip;
  return found ? std::string_view(found->text) : std::string_view();
}

// Nearest first, and every area in one pair at most: the halves of a knob stand closer together
// than the knobs.
void HotAreas::find_pairs() {
  std::vector<Pair> candidates;
  for (std::size_t up = 0; up < areas_.size(); ++up)
    for (std::size_t down = 0; down < areas_.size(); ++down)
      if (areas_[up].cursor == CURSOR_INCREASE && areas_[down].cursor == CURSOR_DECREASE &&
          (areas_[up].flags & areas_[down].flags & MOUSE_LEFT) &&
          stand_together(areas_[up].box, areas_[down].box))
        candidates.push_back({up, down});
  std::ranges::stable_sort(candidates, {}, [&](const Pair& pair) {
    return distance(areas_[pair.increase].box, areas_[pair.decrease].box);
  });
  for (const Pair& pair : candidates)
    if (!pair_of(&areas_[pair.increase]) && !pair_of(&areas_[pair.decrease])) pairs_.push_back(pair);
}

const HotAreas::Pair* HotAreas::pair_of(const HotArea* area) const {
  const auto found = std::ranges::find_if(pairs_, [&](const Pair& pair) {
    return area == &areas_[pair.increase] || area == &areas_[pair.decrease];
  });
  return found == pairs_.end() ? nullptr : &*found;
}

const HotAreas::Pair* HotAreas::pair_around(PanelPoint point) const {
  const auto found = std::ranges::find_if(pairs_, [&](const Pair& pair) {
    return around(areas_[pair.increase].box, areas_[pair.decrease].box).contains(point);
  });
  return found == pairs_.end() ? nullptr : &*found;
}

std::optional<WheelStep> HotAreas::wheel(PanelPoint point, bool up) const {
  const HotArea* under = at(point, any_button);
  if (under && is_knob(*under)) return WheelStep{under, up ? MOUSE_LEFT : MOUSE_RIGHT};
  const Pair* pair = under ? pair_of(under) : pair_around(point);
  if (!pair) return std::nullopt;
  return WheelStep{&areas_[up ? pair->increase : pair->decrease], MOUSE_LEFT};
}

}  // namespace host
