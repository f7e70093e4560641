#include "resources/rows/draw.h"

#include "resources/kit/records.h"
#include "resources/rows/overloaded.h"

namespace artwork {
namespace {

const Element& element_of(const Bitmap& bitmap) {
  return part(*gauge_of(*bitmap.unit), bitmap.art->of.part);
}

/// A strip that slides sideways needs a mask: without one its window would be as wide as itself.
double masked_width(const Bitmap& bitmap) {
  const Element& strip = element_of(bitmap);
  if (find_bitmap(strip.moving_image.mask_resource_id) == nullptr)
    wrong(subject(bitmap) + " has no mask");
  return window_of(strip).width;
}

void draw_plate(Canvas& canvas, const Bitmap& bitmap, const Plate& plate) {
  const GaugeHeader& gauge = *gauge_of(*bitmap.unit);
  if (bitmap.overlay) {
    lit_overlay(canvas, bitmap.image, [&](const Canvas& face, Lighting lighting) {
      draw_plate({face, gauge, lighting}, plate.items);
    });
    shade_openings({canvas, gauge}, plate.items);
  } else {
    draw_plate({canvas, gauge}, plate.items);
  }
}

}  // namespace

void draw(Canvas& canvas, const Bitmap& bitmap) {
  std::visit(overloaded{
                 [&](const Plate& plate) { draw_plate(canvas, bitmap, plate); },
                 [&](const Needle& row) { draw_needle(canvas, row, element_of(bitmap).needle.center); },
                 [&](const Bug& row) { draw_bug(canvas, row, element_of(bitmap).needle.center); },
                 [&](const Flag& row) { draw_flag(canvas, row, bitmap.image); },
                 [&](const Drum& row) {
                   const Element& drum = element_of(bitmap);
                   draw_drum(canvas, row, drum.moving_image.y, window_of(drum).height);
                 },
                 [&](const Tape& row) {
                   draw_tape(canvas, row, element_of(bitmap).moving_image.x, masked_width(bitmap));
                 },
                 [&](const CompassStrip& row) {
                   draw_compass_strip(canvas, row, element_of(bitmap).moving_image.x,
                                      masked_width(bitmap));
                 },
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
