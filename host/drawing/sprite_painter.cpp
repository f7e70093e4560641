/// Sprites: cards and horizons. The middle of the image's pixel `texture_center` lies on the middle
/// of the background pixel with the same numbers. The image is first shifted, then turned about
/// that point of the gauge, so that a horizon moves along the aircraft's own axis. A card shows the
/// heading that its value gives on top, so the picture turns counterclockwise for positive degrees.
#include <cmath>

#include "host/drawing/turning_painter.h"

namespace host {
namespace {

class SpritePainter final : public TurningPainter {
 public:
  SpritePainter(const Element& element, const TurningPicture& picture, Scale scale,
                const Openings* openings)
      : TurningPainter(picture, openings ? &openings->parts : nullptr),
        part_(element.sprite),
        scale_(scale) {
    const double x = part_.texture_center.x + 0.5, y = part_.texture_center.y + 0.5;
    onto_center_ = shifted_by(-x, -y) * picture.to_image;
    onto_gauge_ = shifted_by(x * scale.x, y * scale.y);
    const double width = picture.pixels.width, height = picture.pixels.height;
    steps_ = turn_steps(std::hypot(width, height));
  }

  Look look(const Moment& moment) override {
    const auto x = pushed_steps(moment, 0, part_.x.scale, scale_.x);
    const auto y = pushed_steps(moment, 1, part_.y.scale, scale_.y);
    const double before = moment.before.values[2] * part_.rotation.scale;
    const double now = moment.now.values[2] * part_.rotation.scale;
    const double angle = part_.rotation.scale == 0 ? 0 : mixed_angle(before, now, moment.blend);
    if (!x || !y || !std::isfinite(angle)) return {};
    return {.shown = true, .a = *x, .b = *y, .turn = turn_step(angle, steps_)};
  }

 private:
  // The turn happens in background pixels, so that a gauge stretched one way keeps its circles'
  // shape in step with the background.
  Affine map(const Look& look) const override {
    const Affine shifted = shifted_by(step_pixels(look.a) / scale_.x, step_pixels(look.b) / scale_.y);
    return onto_gauge_ * scaled_by(scale_.x, scale_.y) * turned_by(-360.0 * look.turn / steps_) *
           shifted * onto_center_;
  }

  const SpritePart& part_;
  Scale scale_;
  Affine onto_center_;  // the picture, with the turning point in the corner, in background pixels
  Affine onto_gauge_;
  int steps_ = 0;
};

}  // namespace

std::unique_ptr<ElementPainter> make_sprite_painter(const Element& element, Pictures& pictures,
                                                    const Openings* openings) {
  const TurningPicture* picture = pictures.turning(element.resource_id);
  if (picture == nullptr) return nullptr;
  return std::make_unique<SpritePainter>(element, *picture, pictures.scale(), openings);
}

}  // namespace host
