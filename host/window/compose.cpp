#include "host/window/compose.h"

namespace host {
namespace {

// Both bytes of a pair times alpha/255, rounded.
std::uint32_t dimmed(std::uint32_t pair, std::uint32_t alpha) {
  const std::uint32_t product = pair * alpha + 0x00800080u;
  return (product + (product >> 8 & 0x00FF00FFu)) >> 8 & 0x00FF00FFu;
}

std::uint32_t over(std::uint32_t top, std::uint32_t bottom) {
  const std::uint32_t rest = 255 - (top >> 24);
  return top + dimmed(bottom & 0x00FF00FFu, rest) + (dimmed(bottom >> 8 & 0x00FF00FFu, rest) << 8);
}

}  // namespace

void fill(Canvas& canvas, const Rect& rect, std::uint32_t color) {
  for (int y = rect.y; y < rect.y + rect.height; ++y)
    std::fill_n(canvas.pixels.begin() + std::ptrdiff_t(y) * canvas.width + rect.x, rect.width, color);
}

void copy_within(Canvas& canvas, const Canvas& picture, int x, int y, const Rect& rect) {
  const auto part = shared({x, y, picture.width, picture.height}, rect);
  if (!part) return;
  for (int row = part->y; row < part->y + part->height; ++row)
    std::copy_n(picture.pixels.begin() + std::ptrdiff_t(row - y) * picture.width + (part->x - x),
                part->width, canvas.pixels.begin() + std::ptrdiff_t(row) * canvas.width + part->x);
}

void blend_within(Canvas& canvas, const Overlay& overlay, int x, int y, const Rect& rect) {
  const auto part = shared({x, y, overlay.width, overlay.height}, rect);
  if (!part) return;
  for (int row = part->y; row < part->y + part->height; ++row) {
    const std::uint32_t* from = &overlay.pixels[std::size_t(row - y) * overlay.width + (part->x - x)];
    std::uint32_t* to = &canvas.pixels[std::size_t(row) * canvas.width + part->x];
    for (int i = 0; i < part->width; ++i) to[i] = over(from[i], to[i]) | 0xFF000000u;
  }
}

}  // namespace host
