/// The parts of a gauge that have to be drawn again.
#pragma once

#include <vector>

#include "host/drawing/pixels.h"

namespace host {

/// A few rectangles that together hold everything added; they may overlap.
class DirtyArea {
 public:
  /// Forgets everything; from now on keeps to what lies in `limits`.
  void reset(const Rect& limits);

  /// Rectangles that cost less to draw together than apart become one.
  void add(Rect rect);

  const std::vector<Rect>& parts() const { return parts_; }

 private:
  static constexpr std::size_t most_parts = 16;

  Rect limits_;
  std::vector<Rect> parts_;
};

}  // namespace host
