#include "resources/rows/draw.h"

#include "resources/kit/metal.h"
#include "resources/kit/records.h"
#include "resources/rows/overloaded.h"

namespace artwork {
namespace {

const Element& element_of(const Bitmap& bitmap) {
  return part(*gauge_of(*bitmap.unit), bitmap.art->of.part);
}

void draw_strip(const Canvas& canvas, const Bitmap& bitmap, const Tape& tape) {
  const MovingImagePart& record = element_of(bitmap).moving_image;
  const Bitmap* mask = find_bitmap(record.mask_resource_id);
  if (mask == nullptr) wrong(subject(bitmap) + " has no mask");
  draw_tape(canvas, tape, record.x, mask->size.width);
}

void draw_plate(Canvas& canvas, const Bitmap& bitmap, const Plate& plate) {
  const GaugeHeader& gauge = *gauge_of(*bitmap.unit);
  if (bitmap.overlay) {
    lit_overlay(canvas, bitmap.image, [&](const Canvas& face, Lighting lighting) {
      draw_plate({face, gauge, lighting}, plate.items);
    });
  } else {
    draw_plate({canvas, gauge}, plate.items);
  }
}

}  // namespace

void draw(Canvas& canvas, const Bitmap& bitmap) {
  if (bitmap.art == nullptr) return painted_plate(canvas);
  std::visit(overloaded{
                 [&](const Plate& plate) { draw_plate(canvas, bitmap, plate); },
                 [&](const Needle& row) { draw_needle(canvas, row, element_of(bitmap).needle.center); },
                 [&](const Bug& row) { draw_bug(canvas, row, element_of(bitmap).needle.center); },
                 [&](const Flag& row) { draw_flag(canvas, row, bitmap.image); },
                 [&](const Drum& row) { draw_drum(canvas, row, element_of(bitmap).moving_image.y); },
                 [&](const Tape& row) { draw_strip(canvas, bitmap, row); },
                 [&](const Mask& row) { draw_mask(canvas, row); },
                 [&](const CompassCard& row) {
                   draw_compass_card(canvas, row, turning_point(element_of(bitmap)));
                 },
                 [&](const Ball& row) { draw_ball(canvas, row, turning_point(element_of(bitmap))); },
                 [&](const auto&) { draw_control(canvas, bitmap.art->picture, bitmap.image); },
             },
             bitmap.art->picture);
}

}  // namespace artwork
