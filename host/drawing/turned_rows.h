/// The rows of the target that a turned picture covers, and the ways through the picture along them.
#pragma once

#include <algorithm>
#include <cmath>

#include "host/drawing/blend_turned.h"

namespace host {

/// Places in a picture are counted in 1/65536 of a pixel.
inline constexpr int place_bits = 16;

/// A straight way through a picture: the place of its first pixel, and how far each further one is. All
/// its places lie between four pixels of the picture.
struct PictureWay {
  std::uint32_t u, v;
  std::int32_t du, dv;
};

/// One axis of the ways: the columns in which a way stays between two pixels.
class WayLimits {
 public:
  WayLimits(std::int32_t step, int side)
      : step_(step),
        end_(std::uint64_t(std::max(side - 1, 0)) << place_bits),
        per_step_(step == 0 ? 0 : 1.0 / step) {}

  struct Columns {
    double first, last;
  };

  /// The first and the last of them, once their fractions are cut off; either may be one too far out,
  /// where a double cannot tell. `start` is the place at column 0.
  Columns columns(std::int64_t start) const {
    constexpr double hair = 1e-4, all = 1e9;
    if (step_ == 0) return inside(start, 0) ? Columns{-all, all} : Columns{all, -all};
    const double a = static_cast<double>(-start) * per_step_;
    const double b = static_cast<double>(static_cast<std::int64_t>(end_) - start) * per_step_;
    return {std::min(a, b) + (1 - hair), std::max(a, b) + hair};
  }

  bool inside(std::int64_t start, std::int64_t column) const {
    return static_cast<std::uint64_t>(start + step_ * column) < end_;
  }

 private:
  std::int64_t step_;
  std::uint64_t end_;
  double per_step_;
};

/// The rows, and for each the way that lies under it.
class TurnedRows {
 public:
  /// `part` of the target, from which `back` leads to the picture; of it only what is `seen`, null means
  /// all.
  TurnedRows(Surface target, const Rect& part, const PixelView& picture, const Affine& back,
             const std::vector<RowPart>* seen)
      : target_(target), part_(part), seen_(seen), picture_(picture) {
    // From the middle of a target pixel to the middle of a picture pixel. Ways start at the gauge's corner
    // and not at the clip, so that a pixel does not depend on what else is drawn with it.
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

  /// Calls draw(first pixel of the target, count of pixels, way) for each part of a row that shows
  /// something.
  template <typename Draw>
  __attribute__((always_inline)) void each(Draw draw) const {
    const WayLimits across(du_, picture_.width), down(dv_, picture_.height);
    const RowPart* open = seen_ == nullptr ? nullptr : first_open();
    for (RowPart row{part_.y - 1, part_.x, part_.x + part_.width}; next(row, open);) {
      const std::int64_t u = (u0_ + u_by_row_ * row.y) >> (row_bits - place_bits);
      const std::int64_t v = (v0_ + v_by_row_ * row.y) >> (row_bits - place_bits);
      const auto [first_u, last_u] = across.columns(u);
      const auto [first_v, last_v] = down.columns(v);
      auto first =
          static_cast<std::int64_t>(std::max({first_u, first_v, static_cast<double>(row.first)}));
      auto last =
          static_cast<std::int64_t>(std::min({last_u, last_v, static_cast<double>(row.end - 1)}));
      const auto outside = [&](std::int64_t column) {
        return !across.inside(u, column) || !down.inside(v, column);
      };
      while (first <= last && outside(first)) ++first;
      while (first <= last && outside(last)) --last;
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

  // Rounded; the library's rounding is a call that shows.
  static std::int64_t counted(double pixels, int bits) {
    constexpr double farthest = 1e9;
    const double places = std::clamp(pixels, -farthest, farthest) * static_cast<double>(1ll << bits);
    return static_cast<std::int64_t>(places + (places < 0 ? -0.5 : 0.5));
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
