/// The drawing's inner loops against pixman's, which cairo draws with, in one run: how many times as
/// long pixman takes for the same picture.
///
/// They are our own because of what this prints: a lamp laid over takes pixman 0.9 to 2.1 times as long, a tint
/// 1.4 to 2.7, a copy 0.9 to 3.8, a shift by part of a pixel 1.3 to 2.3, a turned picture 4.7 to 9, a needle
/// 5 to 14 and another size 2 to 5.
#include <pixman.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <functional>

#include "host/drawing/blend_turned.h"
#include "host/drawing/resample.h"

namespace {

using namespace host;
using Clock = std::chrono::steady_clock;
using Image = std::unique_ptr<pixman_image_t, decltype(&pixman_image_unref)>;

constexpr int side = 400;  // of the canvas

Image image_of(pixman_format_code_t format, const std::uint32_t* pixels, int width, int height,
               std::ptrdiff_t stride) {
  return {pixman_image_create_bits_no_clear(format, width, height, const_cast<std::uint32_t*>(pixels),
                                            static_cast<int>(stride * 4)),
          pixman_image_unref};
}

void composite(pixman_op_t op, Surface target, const Rect& part, const Image& source, int x, int y) {
  const Image to =
      image_of(PIXMAN_x8r8g8b8, target.at(part.x, part.y), part.width, part.height, target.stride);
  pixman_image_composite32(op, source.get(), nullptr, to.get(), x, y, 0, 0, 0, 0, part.width,
                           part.height);
}

void lay(pixman_op_t op, Surface target, const Rect& clip, PixelView picture, int x, int y) {
  const Rect part = intersection(clip, {x, y, picture.width, picture.height});
  const Image source =
      image_of(PIXMAN_a8r8g8b8, picture.pixels, picture.width, picture.height, picture.stride);
  composite(op, target, part, source, part.x - x, part.y - y);
}

// `back` goes from the canvas to the picture.
void turn(Surface target, const Rect& clip, PixelView picture, const Affine& map, Affine back) {
  const Rect part = intersection(clip, bounds_of(map, picture.width, picture.height));
  back = back * shifted_by(part.x, part.y);
  const auto fixed = [](double x) { return pixman_fixed_t(std::lround(x * 65536)); };
  const pixman_transform matrix{{{fixed(back.xx), fixed(back.xy), fixed(back.dx)},
                                 {fixed(back.yx), fixed(back.yy), fixed(back.dy)},
                                 {0, 0, fixed(1)}}};
  const Image source =
      image_of(PIXMAN_a8r8g8b8, picture.pixels, picture.width, picture.height, picture.stride);
  pixman_image_set_transform(source.get(), &matrix);
  pixman_image_set_filter(source.get(), PIXMAN_FILTER_BILINEAR, nullptr, 0);
  composite(PIXMAN_OP_OVER, target, part, source, 0, 0);
}

void resize(const Bitmap& bitmap, int width, int height) {
  std::vector<std::uint32_t> pixels(std::size_t(width) * height);
  const Image source =
      image_of(PIXMAN_a8r8g8b8, bitmap.pixels.data(), bitmap.width, bitmap.height, bitmap.width);
  const pixman_fixed_t x = pixman_double_to_fixed(1.0 * bitmap.width / width);
  const pixman_fixed_t y = pixman_double_to_fixed(1.0 * bitmap.height / height);
  pixman_transform matrix;
  pixman_transform_init_scale(&matrix, x, y);
  pixman_image_set_transform(source.get(), &matrix);
  int count = 0;
  pixman_fixed_t* filter = pixman_filter_create_separable_convolution(
      &count, std::max(x, pixman_fixed_1), std::max(y, pixman_fixed_1), PIXMAN_KERNEL_IMPULSE,
      PIXMAN_KERNEL_IMPULSE, PIXMAN_KERNEL_CUBIC, PIXMAN_KERNEL_CUBIC, 4, 4);
  pixman_image_set_filter(source.get(), PIXMAN_FILTER_SEPARABLE_CONVOLUTION, filter, count);
  std::free(filter);
  composite(PIXMAN_OP_SRC, {pixels.data(), width, 0, 0}, {0, 0, width, height}, source, 0, 0);
}

double best(const std::function<void()>& work, int times) {
  double least = 1e18;
  for (int round = 0; round < 25; ++round) {
    const auto start = Clock::now();
    for (int i = 0; i < times; ++i) work();
    least = std::min(least, std::chrono::duration<double, std::micro>(Clock::now() - start).count());
  }
  return least / times;
}

void compare(const char* what, int size, int times, const std::function<void()>& ours,
             const std::function<void()>& theirs) {
  const double own = best(ours, times), other = best(theirs, times);
  std::printf("%-8s %3d  own %8.2f us  pixman %8.2f us, %.2f times\n", what, size, own, other,
              other / own);
}

Bitmap made(int width, int height, const std::function<std::uint32_t(int, int)>& pixel) {
  Bitmap bitmap{width, height, false, false, {}};
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) bitmap.pixels.push_back(pixel(x, y));
  return bitmap;
}

PixelView view_of(const Bitmap& bitmap) {
  return {bitmap.pixels.data(), bitmap.width, bitmap.height, bitmap.width};
}

Bitmap disc(int width) {
  return made(width, width, [=](int x, int y) {
    const double distance = std::hypot(x - width / 2.0, y - width / 2.0);
    return distance < width / 2.0 - 1 ? 0xFF204060u : distance < width / 2.0 ? 0x7F102030u : 0;
  });
}

void measure(int size) {
  Canvas canvas(side, side);
  const Surface to = surface_of(canvas);
  const Rect clip = whole_of(canvas);
  const int times = 200000 / (size * size) + 20;
  const auto laid = [&](const char* what, const Bitmap& bitmap) {
    const PixelView view = view_of(bitmap);
    compare(
        what, size, times, [&] { blend_pixels(to, clip, view, 7, 5); },
        [&] { lay(PIXMAN_OP_OVER, to, clip, view, 7, 5); });
  };
  const auto turned = [&](const char* what, const Bitmap& bitmap, double degrees, double pivot) {
    const PixelView view = view_of(bitmap);
    const Affine map = shifted_by(180.3, 160.6) * turned_by(degrees) * shifted_by(-pivot, -pivot);
    const Affine back = shifted_by(pivot, pivot) * turned_by(-degrees) * shifted_by(-180.3, -160.6);
    compare(
        what, size, times, [&] { blend_turned(to, clip, view, map); },
        [&] { turn(to, clip, view, map, back); });
  };
  laid("lamp", disc(size));
  laid("tint", made(size, size, [](int, int) { return 0x30181008u; }));
  const Bitmap solid = made(size, size, [](int, int) { return 0xFF203040u; });
  compare(
      "copy", size, times, [&] { copy_pixels(to, clip, view_of(solid), 7, 5); },
      [&] { lay(PIXMAN_OP_SRC, to, clip, view_of(solid), 7, 5); });
  turned("shifted", disc(size), 0, size / 2.0);
  turned("turned", disc(size), 33, size / 2.0);
  const auto blade = [](int, int y) { return std::abs(y - 4) < 3 ? 0xFFF0F0E8u : 0; };
  turned("needle", made(size, 9, blade), 33, 4.5);
}

}  // namespace

int main() {
  for (const int size : {12, 34, 68, 120, 360}) measure(size);
  const Bitmap picture = disc(400);
  for (const int size : {200, 276, 548})
    compare(
        "resized", size, 1, [&] { resampled(picture, size, size); },
        [&] { resize(picture, size, size); });
}
