#include "resources/tool/library.h"

#include <algorithm>
#include <atomic>
#include <thread>

namespace artwork {
namespace {

/// Runs `job` for 0 to `count` - 1, each once, on all processors.
void in_parallel(std::size_t count, const std::function<void(std::size_t)>& job) {
  std::atomic<std::size_t> next{0};
  const auto work = [&] {
    for (std::size_t i = next++; i < count; i = next++) job(i);
  };
  std::vector<std::jthread> threads;
  for (unsigned i = 1; i < std::thread::hardware_concurrency(); ++i) threads.emplace_back(work);
  work();
}

std::uint32_t premultiplied(const PaletteEntry& c) {
  const auto part = [&](std::uint32_t value) { return (value * c.opacity + 127) / 255; };
  return std::uint32_t{c.opacity} << 24 | part(c.red) << 16 | part(c.green) << 8 | part(c.blue);
}

}  // namespace

Bytes drawn_section(const std::vector<Bitmap>& table, int density) {
  std::vector<SectionEntry> entries(table.size());
  in_parallel(table.size(), [&](std::size_t i) {
    const Bitmap& bitmap = table[i];
    entries[i] = {static_cast<std::uint32_t>(bitmap.id), "",
                  packed(indexed(drawn(bitmap, density), bitmap.background))};
  });
  return section(entries);
}

Canvas shown(const Indexed& picture, int density) {
  Canvas canvas({picture.width / density, picture.height / density}, density, 0);
  const Pixels pixels = canvas.pixels();
  for (int y = 0; y < picture.height; ++y) {
    for (int x = 0; x < picture.width; ++x) {
      const auto at = static_cast<std::size_t>(y * picture.width + x);
      pixels.at(x, y) = premultiplied(picture.palette[picture.pixels[at]]);
    }
  }
  canvas.touched();
  return canvas;
}

void write_png(const Canvas& canvas, const std::string& path) {
  cairo_surface_write_to_png(cairo_get_target(canvas.cr()), path.c_str());
}

}  // namespace artwork
