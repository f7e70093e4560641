/// The rows of the target that a turned picture covers, and the ways through the picture along them.
#pragma once

#include <algorithm>
#include <cmath>

#include "host/drawing/blend_turned.h"

namespace host {

/// Places in a picture are counted in 1/65536 of a pixel.
inline constexpr int place_bits = 16;

/// A straight way through a picture: the place of its first pixel, and how far each further one is. All its
/// places lie between four pixels of the picture.
struct PictureWay {
  std::uint32_t u, v;
  std::int32_t du, dv;
};

/// One axis of the ways: narrows columns to those where a way stays between two pixels.
class WayLimits {
 public:
  WayLimits(std::int32_t step, int side)
      : step_(step),
        end_(std::int64_t{side - 1} << place_bits),
        per_step_(step == 0 ? 0 : 1.0 / step) {}

  /// `start` is the place at column 0.
  void narrow(std::int64_t start, std::int64_t& first, std::int64_t& last) const {
    if (step_ == 0) {
      if (!inside(start, first)) last = first - 1;
      return;
    }
    // So far that only what a double cannot tell is left to the loops.
    constexpr double hair = 1e-4;
    const double a = static_cast<double>(-start) * per_step_;
    const double b = static_cast<double>(end_ - start) * per_step_;
    const double low = std::min(a, b) + (1 - hair), high = std::max(a, b) + hair;
    first = static_cast<std::int64_t>(std::max(static_cast<double>(first), low));
    last = static_cast<std::int64_t>(std::min(static_cast<double>(last), high));
    while (first <= last && !inside(start, first)) ++first;
    while (first <= last && !inside(start, last)) --last;
  }

 private:
  bool inside(std::int64_t start, std::int64_t column) const {
    const std::int64_t at = start + step_ * column;
    return at >= 0 && at < end_;
  }

  std::int64_t step_;
  std::int64_t end_;
  double per_step_;
};

class TurnedRows {
 public:
  /// `part` of the target, from which `back` leads to the picture; of it only what is `seen`, null means all.
  TurnedRows(Surface target, const Rect& part, const PixelView& picture, const Affine& back,
             const std::vector<RowPart>* seen)
      : target_(target), part_(part), seen_(seen), picture_(picture) {
    // From the middle of a target pixel to the middle of a picture pixel. Ways start at the gauge's corner and not
    // at the clip, so that a pixel does not depend on what else is drawn with it.
    const Affine middle = shifted_by(-0.5, -0.5) * back * shifted_by(0.5, 0.5);
    u0_ = counted(middle.dx, row_bits);
    v0_ = counted(middle.dy, row_bits);
    u_by_row_ = counted(middle.xy, row_bits);
    v_by_row_ = counted(middle.yy, row_bits);
    du_ = static_cast<std::int32_t>(counted(middle.xx, place_bits));
    dv_ = static_cast<std::int32_t>(counted(middle.yx, place_bits));
  }

  const PixelView& picture() const { return picture_; }

  /// How far each column goes in the picture.
  std::int32_t du() const { return du_; }
  std::int32_t dv() const { return dv_; }

  /// Calls draw(first pixel of the target, count of pixels, way) for each part of a row that shows something.
  template <typename Draw>
  __attribute__((always_inline)) void each(Draw draw) const {
    const WayLimits across(du_, picture_.width), down(dv_, picture_.height);
    const RowPart* open = seen_ == nullptr ? nullptr : first_open();
    for (RowPart row{part_.y - 1, part_.x, part_.x + part_.width}; next(row, open);) {
      const std::int64_t u = (u0_ + u_by_row_ * row.y) >> (row_bits - place_bits);
      const std::int64_t v = (v0_ + v_by_row_ * row.y) >> (row_bits - place_bits);
      std::int64_t first = row.first, last = row.end - 1;
      across.narrow(u, first, last);
      down.narrow(v, first, last);
      if (first > last) continue;
      draw(target_.at(static_cast<int>(first), row.y), static_cast<int>(last - first + 1),
           PictureWay{static_cast<std::uint32_t>(u + du_ * first),
                      static_cast<std::uint32_t>(v + dv_ * first), du_, dv_});
    }
  }

 private:
  static constexpr int row_bits = 24;  // finer, so that a way's start is right on the last row too

  const RowPart* first_open() const {
    return seen_->data() +
           (std::ranges::lower_bound(*seen_, part_.y, {}, &RowPart::y) - seen_->begin());
  }

  // The next row; where only parts are seen, the next part at `open`.
  bool next(RowPart& row, const RowPart*& open) const {
    const int bottom = part_.y + part_.height;
    if (seen_ == nullptr) return ++row.y < bottom;
    if (open == seen_->data() + seen_->size() || open->y >= bottom) return false;
    row = {open->y, std::max(part_.x, open->first), std::min(part_.x + part_.width, open->end)};
    ++open;
    return true;
  }

  static std::int64_t counted(double pixels, int bits) {
    constexpr double farthest = 1e9;
    return std::llround(std::clamp(pixels, -farthest, farthest) * static_cast<double>(1ll << bits));
  }

  Surface target_;
  Rect part_;
  const std::vector<RowPart>* seen_;
  PixelView picture_;
  std::int64_t u0_, v0_, u_by_row_, v_by_row_;
  std::int32_t du_, dv_;
};

/// Draws the rows, pixel by pixel.
void blend_plainly(const TurnedRows& rows);

/// The same to the bit, four pixels at a time; only where the processor has AVX2.
void blend_four_at_once(const TurnedRows& rows);

}  // namespace host
