/// The picture out of the captain's window.
///
/// The same sight gives the same picture, pixel for pixel.
#pragma once

#include <memory>

#include "host/drawing/painter.h"
#include "host/outside/sight.h"

namespace host::outside {

class OutsideView {
 public:
  OutsideView();
  ~OutsideView();
  OutsideView(const OutsideView&) = delete;
  OutsideView& operator=(const OutsideView&) = delete;

  /// Fills `place`, which lies on the canvas; black where the eye is nowhere.
  void draw(Canvas& canvas, const Rect& place, const Sight& sight);

 private:
  struct Scene;
  std::unique_ptr<Scene> scene_;
};

}  // namespace host::outside
