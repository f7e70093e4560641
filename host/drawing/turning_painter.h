/// What needles, sliders and sprites share: one image, drawn through a map that the look gives.
#pragma once

#include "host/drawing/motion.h"

namespace host {

class TurningPainter : public ElementPainter {
 public:
  /// The picture and the rows must outlive the painter; only what is `seen` is drawn, null means all.
  explicit TurningPainter(const TurningPicture& picture, const std::vector<RowPart>* seen = nullptr)
      : picture_(picture), seen_(seen) {}

  Rect bounds(const Look& look) const final {
    return bounds_of(map_of(look), picture_.pixels.width, picture_.pixels.height);
  }

  void paint(Surface target, const Rect& clip, const Look& look) const final {
    blend_turned(target, clip, picture_.view(), map_of(look), seen_);
  }

  bool moves() const final { return true; }

 protected:
  /// From the picture's pixels to canvas pixels relative to the gauge.
  virtual Affine map(const Look& look) const = 0;

  const TurningPicture& picture() const { return picture_; }

 private:
  // A new look is first asked for its bounds and then drawn.
  const Affine& map_of(const Look& look) const {
    if (look != mapped_) map_ = map(mapped_ = look);
    return map_;
  }

  mutable Look mapped_;
  mutable Affine map_;
  const TurningPicture& picture_;
  const std::vector<RowPart>* seen_;
};

}  // namespace host
