/// Needles. An unturned needle image points to the right: with a calibration table the image is
/// turned by the direction of the mark, without one by the value in degrees clockwise. The middle
/// of the image's pivot pixel lies on the middle of the background pixel at the needle's position.
#include <cmath>

#include "host/drawing/turning_painter.h"
#include "host/gauge/needle_geometry.h"

namespace host {
namespace {

class NeedlePainter final : public TurningPainter {
 public:
  NeedlePainter(const Element& element, const TurningPicture& picture, Scale scale)
      : TurningPainter(picture), scale_(needle_scale(element)) {
    const PanelPoint pivot = element.needle.center;
    onto_pivot_ = shifted_by(-(pivot.x + 0.5), -(pivot.y + 0.5)) * picture.to_image;
    onto_gauge_ =
        shifted_by((element.position.x + 0.5) * scale.x, (element.position.y + 0.5) * scale.y) *
        scaled_by(scale.x, scale.y);
    steps_ = turn_steps(reach(std::max(scale.x, scale.y)));
  }

  Look look(const Moment& moment) override {
    const double before = needle_value(moment.before), now = needle_value(moment.now);
    const double angle = needle_angle_between(scale_, before, now, moment.blend);
    if (!std::isfinite(angle)) return {};
    return {.shown = true, .turn = turn_step(angle, steps_)};
  }

 private:
  Affine map(const Look& look) const override {
    return onto_gauge_ * turned_by(360.0 * look.turn / steps_) * onto_pivot_;
  }

  // The farthest corner from the pivot, in canvas pixels.
  double reach(double scale) const {
    const Rect box = bounds_of(onto_pivot_, picture().pixels.width, picture().pixels.height);
    const double x = std::max(std::abs(box.x), std::abs(box.x + box.width));
    const double y = std::max(std::abs(box.y), std::abs(box.y + box.height));
    return std::hypot(x, y) * scale;
  }

  NeedleScale scale_;
  Affine onto_pivot_;  // the picture, with the pivot in the corner, in background pixels
  Affine onto_gauge_;
  int steps_ = 0;
};

}  // namespace

std::unique_ptr<ElementPainter> make_needle_painter(const Element& element, Pictures& pictures) {
  const TurningPicture* picture = pictures.turning(element.resource_id);
  if (picture == nullptr) return nullptr;
  return std::make_unique<NeedlePainter>(element, *picture, pictures.scale());
}

}  // namespace host
