/// Sliders: an image that stands where its values push it.
#include "host/drawing/turning_painter.h"

namespace host {
namespace {

class SliderPainter final : public TurningPainter {
 public:
  SliderPainter(const Element& element, const TurningPicture& picture, Scale scale)
      : TurningPainter(picture), part_(element.slider), scale_(scale) {
    // At rest on whole pixels, so that a still image is sharp.
    onto_rest_ = shifted_by(scaled_edge(element.position.x, scale_.x),
                            scaled_edge(element.position.y, scale_.y)) *
                 picture.to_whole;
  }

  Look look(const Moment& moment) override {
    const auto x = pushed_steps(moment, 0, part_.x_scale, scale_.x);
    const auto y = pushed_steps(moment, 1, part_.y_scale, scale_.y);
    if (!x || !y) return {};
    return {.shown = true, .a = *x, .b = *y};
  }

 private:
  Affine map(const Look& look) const override {
    return shifted_by(step_pixels(look.a), step_pixels(look.b)) * onto_rest_;
  }

  const SliderPart& part_;
  Scale scale_;
  Affine onto_rest_;
};

}  // namespace

std::unique_ptr<ElementPainter> make_slider_painter(const Element& element, Pictures& pictures) {
  const TurningPicture* picture = pictures.turning(element.resource_id);
  if (picture == nullptr) return nullptr;
  return std::make_unique<SliderPainter>(element, *picture, pictures.scale());
}

}  // namespace host
