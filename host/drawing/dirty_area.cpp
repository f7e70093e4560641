#include "host/drawing/dirty_area.h"

#include <algorithm>

namespace host {
namespace {

std::int64_t area(const Rect& rect) { return std::int64_t{rect.width} * rect.height; }

}  // namespace

void DirtyArea::reset(const Rect& limits) {
  limits_ = limits;
  parts_.clear();
}

void DirtyArea::add(Rect rect) {
  rect = intersection(rect, limits_);
  if (is_empty(rect)) return;
  const auto joins = [&](const Rect& part) {
    return parts_.size() >= most_parts || area(around(part, rect)) <= area(part) + area(rect);
  };
  for (auto part = std::ranges::find_if(parts_, joins); part != parts_.end();
       part = std::ranges::find_if(parts_, joins)) {
    rect = around(*part, rect);
    *part = parts_.back();
    parts_.pop_back();
  }
  parts_.push_back(rect);
}

}  // namespace host
