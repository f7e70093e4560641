#include "host/panel/pointer.h"

#include <cstdlib>

namespace host {

const HotArea* Pointer::press(const HotAreas& areas, PanelPoint point, std::uint32_t button,
                              double now) {
  release();
  held_ = areas.at(point, button);
  if (!held_) return nullptr;
  areas_ = &areas;
  button_ = button;
  point_ = point;
  if (held_->flags & MOUSE_REPEAT) next_repeat_ = now + repeat_delay;
  held_->fire(held_->box.nearest(point), button);
  return held_;
}

bool Pointer::move(PanelPoint point) {
  const bool moved = point.x != point_.x || point.y != point_.y;
  point_ = point;
  if (!held_ || !moved) return false;
  if (held_->flags & MOUSE_DRAG) held_->fire(point, button_ | MOUSE_DRAG);
  return true;
}

void Pointer::tick(double now) {
  if (now < next_repeat_) return;
  next_repeat_ = now + repeat_interval;
  if (is_on_held()) held_->fire(held_->box.nearest(point_), button_ | MOUSE_REPEAT);
}

bool Pointer::is_on_held() const {
  return held_->box.contains(point_) || areas_->at(point_, button_) == held_;
}

void Pointer::release() {
  held_ = nullptr;
  next_repeat_ = never;
}

bool Pointer::wheel(const HotAreas& areas, PanelPoint point, int notches) {
  const auto step = areas.wheel(point, notches > 0);
  if (!step || notches == 0) return false;
  const Box& box = step->area->box;
  const PanelPoint middle{static_cast<i32>(box.x + box.width / 2),
                          static_cast<i32>(box.y + box.height / 2)};
  for (int i = 0; i < std::abs(notches); ++i) step->area->fire(middle, step->button);
  return true;
}

}  // namespace host
