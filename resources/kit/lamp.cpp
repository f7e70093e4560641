#include "resources/kit/lamp.h"

#include <algorithm>

namespace artwork {
namespace {

void glow(const Canvas& canvas, const Path& path, Colour colour, double reach) {
  soft(canvas, path, faded(colour, 0.85), reach);
}

/// The words of a dark lens: of one strength in every colour, as far as the deep red ones go.
Colour dark_ink(Colour colour) {
  const double light = 0.30 * colour.red + 0.59 * colour.green + 0.11 * colour.blue;
  return mixed(palette::well, colour, std::clamp(0.48 / light, 0.64, 0.84));
}

void dark_lens(const Canvas& canvas, Box box, Colour colour) {
  const Colour deep = mixed(palette::well, colour, 0.12), tint = mixed(palette::well, colour, 0.25);
  set_linear(canvas, {box.x, box.y}, {box.x, box.bottom()}, {{0, deep}, {0.35, tint}, {1, deep}});
  fill(canvas, rounded(box, 1.2));
}

/// The filaments stand behind the middle of the lens.
void lit_lens(const Canvas& canvas, Box box, Colour colour) {
  const Point c = box.centre();
  fill(canvas, rounded(box, 1.2), mixed(colour, palette::black, 0.22));
  const Saved saved(canvas);
  rounded(box, 1.2)(canvas.cr());
  cairo_clip(canvas.cr());
  cairo_translate(canvas.cr(), c.x, c.y);
  cairo_scale(canvas.cr(), box.width / 2, box.height / 2);
  set_radial(canvas, {0, 0}, {0, 0}, 1.42,
             {{0, mixed(colour, palette::white, 0.56)},
              {0.45, mixed(colour, palette::white, 0.22)},
              {0.75, colour},
              {1, mixed(colour, palette::black, 0.28)}});
  cairo_paint(canvas.cr());
}

/// Light from above left on the glass.
void lens_gloss(const Canvas& canvas, Box box, double strength) {
  line(canvas, {box.x + 1, box.y + 0.6}, {box.right() - 1, box.y + 0.6}, 0.7,
       faded(palette::white, strength));
  set_linear(canvas, {box.x, box.y}, {box.x, box.y + box.height * 0.5},
             {{0, faded(palette::white, strength * 0.4)}, {1, faded(palette::white, 0)}});
  fill(canvas, rounded({box.x, box.y, box.width, box.height * 0.5}, 1.2));
}

}  // namespace

void lamp_housing(const Canvas& canvas, Box frame) {
  cast_shadow(canvas, rounded(frame, 1.8), 0.9, 0.5);
  fill(canvas, rounded(frame, 1.8), palette::mould_dark);
  set_slope(canvas, frame,
            {{0, faded(palette::white, 0.44)},
             {0.47, faded(palette::white, 0.2)},
             {0.53, faded(palette::black, 0.4)},
             {1, faded(palette::black, 0.7)}});
  stroke(canvas, rounded(frame.grown(-0.4), 1.6), 0.8);
}

void lamp_lens(const Canvas& canvas, Box box, const Lens& lens, bool lit) {
  lit ? lit_lens(canvas, box, lens.colour) : dark_lens(canvas, box, lens.colour);
  const Colour ink = lit ? rgb(0x14120C) : dark_ink(lens.colour);
  print(canvas, box.centre(), lens.text, {.size = lens.text_size, .colour = ink});
  lens_gloss(canvas, box, lit ? 0.35 : 0.14);
}

void lamp(const Canvas& canvas, Box picture, const Lens& lens, bool lit) {
  const Box frame = lamp_frame(picture);
  if (lit) glow(canvas, rounded(frame, 1.8), lens.colour, lamp_spill * 0.8);
  lamp_housing(canvas, frame);
  lamp_lens(canvas, frame.grown(-2), lens, lit);
}

void round_light(const Canvas& canvas, Point c, double radius, Colour colour, bool lit) {
  // A glow that the picture's edge would cut off is none.
  const Size picture = canvas.size();
  const double room = std::min({c.x, c.y, picture.width - c.x, picture.height - c.y}) - radius;
  if (lit && room > 1.2) glow(canvas, circle(c, radius), colour, std::min(2.2, room / 1.8));
  cast_shadow(canvas, circle(c, radius), 1, 0.55);
  set_linear(canvas, c - Point{radius, radius}, c + Point{radius, radius},
             {{0, palette::steel_light}, {0.4, palette::steel}, {1, palette::steel_deep}});
  fill(canvas, circle(c, radius));
  fill(canvas, circle(c, radius * 0.82), palette::steel_deep);
  const double r = radius * 0.74;
  if (lit) {
    set_radial(canvas, c, c, r,
               {{0, mixed(colour, palette::white, 0.75)},
                {0.4, mixed(colour, palette::white, 0.35)},
                {0.8, colour},
                {1, mixed(colour, palette::black, 0.35)}});
  } else {
    set_radial(canvas, {c.x + r * 0.2, c.y + r * 0.4}, c, r,
               {{0, mixed(palette::well, colour, 0.58)},
                {0.6, mixed(palette::well, colour, 0.36)},
                {1, mixed(palette::well, colour, 0.15)}});
  }
  fill(canvas, circle(c, r));
  const Point shine{c.x - r * 0.36, c.y - r * 0.42};
  set_radial(canvas, shine, shine, r * 0.5,
             {{0, faded(palette::white, lit ? 0.85 : 0.55)}, {1, faded(palette::white, 0)}});
  fill(canvas, circle(shine, r * 0.5));
}

void push_button(const Canvas& canvas, Box picture, const Lens& lens, bool lit) {
  const Box frame = picture.grown(-1.5);
  if (lit) glow(canvas, rounded(frame, 2), lens.colour, 1.2);
  lamp_housing(canvas, frame);
  const Box face = frame.grown(-2);
  set_slope(canvas, face, {{0, palette::mould_light}, {0.5, palette::mould}, {1, palette::mould_dark}});
  fill(canvas, rounded(face, 1.4));
  stroke(canvas, rounded(face.grown(-0.4), 1.2), 0.6, faded(palette::white, 0.22));
  lamp_lens(canvas, face.grown(-1.6), lens, lit);
}

void lit_cap(const Canvas& canvas, Box picture, const Lens& lens, bool lit) {
  const Box frame = picture.grown(-1), cap = frame.grown(-1.2);
  if (lit) glow(canvas, rounded(frame, 2), lens.colour, 0.9);
  lamp_housing(canvas, frame);
  lamp_lens(canvas, cap, lens, lit);
  set_slope(canvas, cap,
            {{0, faded(palette::white, lit ? 0.75 : 0.42)},
             {0.45, faded(palette::white, 0.06)},
             {0.55, faded(palette::black, 0.1)},
             {1, faded(palette::black, 0.6)}});
  stroke(canvas, rounded(cap.grown(-0.5), 1.4), 1);
}

}  // namespace artwork
