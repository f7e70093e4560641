/// Moving images: a window behind which a strip or a card moves.
#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <vector>

#include "host/drawing/motion.h"

namespace host {
namespace {

// Where the strip stands on one axis.
class Axis {
 public:
  /// `room` is how far the strip can move behind the window, canvas pixels.
  Axis(const MovingAxis& axis, int index, int room) : axis_(axis), index_(index), room_(room) {}

  /// The offset into the strip; none when it depends on a value that is not a number.
  std::optional<int> steps(const Moment& moment) const {
    const double range = axis_.maximum - axis_.minimum;
    if (room_ <= 0 || range == 0 || !std::isfinite(range)) return 0;
    const double before = moment.before.values[index_], now = moment.now.values[index_];
    if (!std::isfinite(now)) return std::nullopt;
    const int rest = steps_at(now);
    // At rest digits stand on whole pixels, so that they are sharp.
    if (!std::isfinite(before) || steps_at(before) == rest)
      return static_cast<int>(std::lround(step_pixels(rest))) * steps_per_pixel;
    // A drum that wraps rolls over its join: it must not race back through all its digits.
    if (std::abs(now - before) > std::abs(range) / 2) return rest;
    return steps_at(mixed(before, now, moment.blend));
  }

 private:
  int steps_at(double value) const {
    const double part = (value - axis_.minimum) / (axis_.maximum - axis_.minimum);
    return pixel_steps(std::clamp(part, 0.0, 1.0) * room_);
  }

  const MovingAxis& axis_;
  int index_;
  int room_;
};

class MovingImagePainter final : public ElementPainter {
 public:
  MovingImagePainter(const Element& element, Rect window, Pictures& pictures)
      : window_(window),
        strip_(*pictures.turning(element.resource_id)),
        mask_(mask_of(element, window, pictures)),
        axes_{Axis(element.moving_image.x, 0, strip_.whole.width - window.width),
              Axis(element.moving_image.y, 1, strip_.whole.height - window.height)} {
    if (mask_ != nullptr) scratch_.resize(std::size_t(window.width) * window.height);
  }

  Look look(const Moment& moment) override {
    const auto x = axes_[0].steps(moment), y = axes_[1].steps(moment);
    if (!x || !y) return {};
    return {.shown = true, .a = *x, .b = *y};
  }

  Rect bounds(const Look&) const override { return window_; }

  void paint(Surface target, const Rect& clip, const Look& look) const override {
    const Rect part = intersection(clip, window_);
    if (mask_ != nullptr) return paint_masked(target, part, look);
    blend_turned(target, part, strip_.view(), shifted_by(window_.x, window_.y) * map(look));
  }

  bool moves() const override { return true; }

 private:
  // The mask only where it is not simply the whole window.
  static const Picture* mask_of(const Element& element, const Rect& window, Pictures& pictures) {
    const Picture* mask = pictures.at_size(element.moving_image.mask_resource_id, BitmapUse::image,
                                           window.width, window.height);
    return mask == nullptr || mask->opaque ? nullptr : mask;
  }

  // From the strip to pixels of the window.
  Affine map(const Look& look) const {
    return shifted_by(-step_pixels(look.a), -step_pixels(look.b)) * strip_.to_whole;
  }

  void paint_masked(Surface target, const Rect& part, const Look& look) const {
    const Rect inside{0, 0, window_.width, window_.height};
    std::ranges::fill(scratch_, 0u);
    blend_turned({scratch_.data(), window_.width, 0, 0}, inside, strip_.view(), map(look));
    const Rect& hole = mask_->visible;
    for (int y = 0; y < hole.height; ++y)
      mask_row(&scratch_[std::size_t(hole.y + y) * window_.width + hole.x], mask_->pixels.at(0, y),
               hole.width);
    const PixelView seen{&scratch_[std::size_t(hole.y) * window_.width + hole.x], hole.width,
                         hole.height, window_.width};
    blend_pixels(target, part, seen, window_.x + hole.x, window_.y + hole.y);
  }

  Rect window_;
  const TurningPicture& strip_;
  const Picture* mask_;
  std::array<Axis, 2> axes_;
  mutable std::vector<std::uint32_t> scratch_;  // the strip as seen through the mask
};

// The mask's size, or the image's width and a tenth of its height.
PanelSize window_size(const Element& element, const Pictures& pictures) {
  const PanelSize mask = pictures.size(element.moving_image.mask_resource_id);
  if (mask.width > 0) return mask;
  const PanelSize strip = pictures.size(element.resource_id);
  return {strip.width, std::max(1, strip.height / 10)};
}

// A mask without a hole.
bool hidden_by_mask(const Element& element, const Rect& window, Pictures& pictures) {
  const i32 mask = element.moving_image.mask_resource_id;
  return pictures.size(mask).width > 0 &&
         pictures.at_size(mask, BitmapUse::image, window.width, window.height) == nullptr;
}

}  // namespace

std::unique_ptr<ElementPainter> make_moving_image_painter(const Element& element, Pictures& pictures) {
  if (pictures.turning(element.resource_id) == nullptr) return nullptr;
  const Rect window = scaled_place(element.position, window_size(element, pictures), pictures.scale());
  if (hidden_by_mask(element, window, pictures)) return nullptr;
  return std::make_unique<MovingImagePainter>(element, window, pictures);
}

}  // namespace host
