/// Fuel shut-off flag: a striped shutter in its window.
#include "resources/art.h"
#include "resources/kit/legend.h"
#include "resources/kit/window.h"

namespace artwork::panels::fuelshut {

/// Red and white bars that lean, as far as `box` goes.
void draw_stripes(const Canvas& canvas, Box box) {
  const Saved saved(canvas);
  rounded(box, 0.8)(canvas.cr());
  cairo_clip(canvas.cr());
  fill(canvas, rounded(box, 0), palette::legend);
  for (double x = box.x - box.height; x < box.right(); x += 6) {
    line(canvas, {x, box.bottom() + 1}, {x + box.height, box.y - 1}, 3, palette::range_red);
  }
}

void draw_shutter(const Canvas& canvas, Box box) {
  draw_stripes(canvas, box);
  const Box label{box.x + 7, box.y, box.width - 14, box.height};
  set_linear(canvas, {0, label.y}, {0, label.bottom()},
             {{0, mixed(palette::range_red, palette::white, 0.12)},
              {0.5, palette::range_red},
              {1, mixed(palette::range_red, palette::black, 0.35)}});
  fill(canvas, rounded(label, 0));
  print(canvas, label.centre(), "FUEL SHUT", {.size = 8, .colour = palette::white});
  // The window's edge shades it.
  set_linear(canvas, {0, box.y}, {0, box.bottom()},
             {{0, faded(palette::black, 0.6)}, {0.3, faded(palette::black, 0)}});
  fill(canvas, rounded(box, 0.8));
}

/// In view, withdrawn.
void draw_flag(const Canvas& canvas, int image) {
  const Box window = whole(canvas.size()).grown(-2);
  display_window(canvas, window);
  if (image == 0) draw_shutter(canvas, window.grown(-0.4));
}

constexpr Art art[] = {
    plate(28, {}),
    drawn_art("fuel_shut_off_flag", {67, 16}, draw_flag),
};

constinit Unit unit{"Fuelshut", art};

}  // namespace artwork::panels::fuelshut
