/// The pointer on a gauge: clicks, held clicks, drags and the wheel, as the gauge's areas want them.
#pragma once

#include <limits>

#include "host/panel/hot_areas.h"

namespace host {

/// One pointer. Points are pixels of the gauge's background, times seconds on any steady clock.
class Pointer {
 public:
  static constexpr double repeat_delay = 0.4;     ///< before a held control starts to repeat
  static constexpr double repeat_interval = 0.1;  ///< between its repeats
  static constexpr double never = std::numeric_limits<double>::infinity();

  /// Presses MOUSE_LEFT or MOUSE_RIGHT. The innermost area that answers it gets it and keeps the
  /// pointer until release(). Returns it; null where there is none. `areas` must live until then.
  const HotArea* press(const HotAreas& areas, PanelPoint point, std::uint32_t button, double now);

  /// Moves with the button down; the point may lie outside the gauge. Returns whether it has moved and
  /// holds something.
  bool move(PanelPoint point);

  /// Repeats a held control when its time has come, and only while the pointer is still on it.
  void tick(double now);

  void release();

  bool holding() const { return held_ != nullptr; }

  /// When tick() has something to do next; `never` without a repeating control.
  double next_repeat() const { return next_repeat_; }

  /// Turns the wheel, away from the person is positive. Returns false where it works nothing.
  static bool wheel(const HotAreas& areas, PanelPoint point, int notches);

 private:
  bool is_on_held() const;

  const HotAreas* areas_ = nullptr;
  const HotArea* held_ = nullptr;
  std::uint32_t button_ = 0;
  PanelPoint point_{};
  double next_repeat_ = never;
};

}  // namespace host
