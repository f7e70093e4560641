#include "resources/bitmap_table.h"

#include <algorithm>

#include "resources/backgrounds.h"
#include "resources/kit/metal.h"
#include "resources/panels/panels.h"

namespace artwork {
namespace {

void draw_plain_plate(Canvas& canvas, int) { painted_plate(canvas); }

void add(std::vector<Bitmap>& table, const Art& art) {
  const Size size = art.like == 0 ? art.size : background_size(art.like);
  for (int image = 0; image < art.images; ++image) {
    table.push_back({art.id + image, size, art.like == art.id, art.draw, image, art.shows});
  }
}

bool has(const std::vector<Bitmap>& table, int id) {
  return std::any_of(table.begin(), table.end(), [=](const Bitmap& b) { return b.id == id; });
}

}  // namespace

std::vector<Bitmap> bitmap_table() {
  std::vector<Bitmap> table;
  for (const std::span<const Art> group : all_art()) {
    for (const Art& art : group) add(table, art);
  }
  for (const Background& plate : backgrounds()) {
    if (has(table, plate.id)) continue;
    table.push_back({plate.id, plate.size, true, draw_plain_plate, 0, plate.gauges});
  }
  std::sort(table.begin(), table.end(), [](const Bitmap& a, const Bitmap& b) { return a.id < b.id; });
  return table;
}

Canvas drawn(const Bitmap& bitmap, int density) {
  // All pictures of a plate share its seed, so that grain stays where it is under an overlay.
  const auto seed = static_cast<std::uint32_t>(bitmap.size.width * 4099 + bitmap.size.height);
  Canvas canvas(bitmap.size, density, seed);
  bitmap.draw(canvas, bitmap.image);
  return canvas;
}

}  // namespace artwork
