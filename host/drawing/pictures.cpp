#include "host/drawing/pictures.h"

#include <algorithm>
#include <cmath>
#include <span>

#include "host/drawing/night.h"
#include "host/drawing/resample.h"

namespace host {
namespace {

constexpr double farthest = 1e6;  // canvas pixels
constexpr int greatest_side = 16384;

bool row_is_clear(const Bitmap& bitmap, int y) {
  const std::uint32_t* row = bitmap.pixels.data() + std::size_t(y) * bitmap.width;
  return std::all_of(row, row + bitmap.width, [](auto pixel) { return pixel >> 24 == 0; });
}

bool column_is_clear(const Bitmap& bitmap, int x, int top, int bottom) {
  for (int y = top; y < bottom; ++y)
    if (bitmap.pixels[std::size_t(y) * bitmap.width + x] >> 24 != 0) return false;
  return true;
}

Rect visible_part(const Bitmap& bitmap) {
  if (bitmap.opaque) return {0, 0, bitmap.width, bitmap.height};
  int top = 0, bottom = bitmap.height, left = 0, right = bitmap.width;
  while (top < bottom && row_is_clear(bitmap, top)) ++top;
  while (bottom > top && row_is_clear(bitmap, bottom - 1)) --bottom;
  if (top == bottom) return {};
  while (column_is_clear(bitmap, left, top, bottom)) ++left;
  while (column_is_clear(bitmap, right - 1, top, bottom)) --right;
  return {left, top, right - left, bottom - top};
}

PixelView part_of(const Bitmap& bitmap, const Rect& part) {
  return {bitmap.pixels.data() + std::size_t(part.y) * bitmap.width + part.x, part.width, part.height,
          bitmap.width};
}

// Most of a needle's picture is clear.
Bitmap cut_out(Bitmap bitmap, const Rect& part) {
  if (part.width == bitmap.width && part.height == bitmap.height) return bitmap;
  Bitmap cut{part.width, part.height, bitmap.opaque, bitmap.empty, {}};
  for (int y = 0; y < part.height; ++y) {
    const std::uint32_t* row = bitmap.pixels.data() + std::size_t(part.y + y) * bitmap.width + part.x;
    cut.pixels.insert(cut.pixels.end(), row, row + part.width);
  }
  return cut;
}

void add_openings(std::span<const std::uint32_t> row, int x, int y, Openings& openings) {
  const auto is_open = [](std::uint32_t pixel) { return pixel >> 24 != 255; };
  const auto column = [&](auto at) { return x + static_cast<int>(at - row.begin()); };
  for (auto first = std::ranges::find_if(row, is_open); first != row.end();) {
    const auto end = std::find_if_not(first, row.end(), is_open);
    openings.parts.push_back({y, column(first), column(end)});
    openings.sharp &= std::all_of(first, end, [](std::uint32_t pixel) { return pixel >> 24 == 0; });
    first = std::find_if(end, row.end(), is_open);
  }
}

Bitmap with_clear_edges(const PixelView& source) {
  Bitmap padded{source.width + 2, source.height + 2, false, false, {}};
  padded.pixels.resize(std::size_t(padded.width) * padded.height);
  for (int y = 0; y < source.height; ++y)
    std::copy_n(source.at(0, y), source.width, &padded.pixels[std::size_t(y + 1) * padded.width + 1]);
  return padded;
}

}  // namespace

Rect around(const Openings& openings) {
  Rect box;
  for (const RowPart& part : openings.parts)
    box = around(box, {part.first, part.y, part.end - part.first, 1});
  return box;
}

int scaled_edge(double at, double scale) {
  return static_cast<int>(std::floor(std::clamp(at * scale, -farthest, farthest) + 0.5));
}

Rect scaled_place(PanelPoint position, PanelSize size, Scale scale) {
  const int left = scaled_edge(position.x, scale.x), top = scaled_edge(position.y, scale.y);
  const int right = scaled_edge(double(position.x) + size.width, scale.x);
  const int bottom = scaled_edge(double(position.y) + size.height, scale.y);
  return {left, top, std::max(1, right - left), std::max(1, bottom - top)};
}

PanelSize Pictures::size(std::int64_t id) const {
  return id < 0 ? PanelSize{0, 0} : bitmaps_.size(static_cast<std::uint32_t>(id));
}

// The smallest that need not be enlarged, else the largest there is; a coarser one where its file has gone.
std::shared_ptr<const Bitmap> Pictures::best(std::uint32_t id, BitmapUse use, double needed) const {
  std::vector<int> candidates;
  for (const int density : bitmaps_.densities()) {
    if (bitmaps_.has(id, density)) candidates.push_back(density);
    if (!candidates.empty() && density >= needed - 0.01) break;
  }
  for (; !candidates.empty(); candidates.pop_back())
    if (auto found = bitmaps_.find(id, use, candidates.back())) return found;
  return nullptr;
}

Picture Pictures::made(const Key& key) const {
  const auto [id, use, width, height, light] = key;
  const PanelSize own = size(id);
  const double needed = std::max(1.0 * width / own.width, 1.0 * height / own.height);
  std::shared_ptr<const Bitmap> bitmap = best(id, use, needed);
  if (!bitmap) return {};
  const bool own_size = bitmap->width == width && bitmap->height == height;
  if (own_size && light == Light::day) {
    const Rect visible = visible_part(*bitmap);
    return {visible, bitmap->opaque, part_of(*bitmap, visible), bitmap};
  }
  Bitmap changed = own_size ? *bitmap : resampled(*bitmap, width, height);
  if (light != Light::day) dim(changed, light == Light::night ? by_night : part_by_night);
  const Rect visible = visible_part(changed);
  const auto kept = std::make_shared<const Bitmap>(cut_out(std::move(changed), visible));
  return {visible, kept->opaque, part_of(*kept, {0, 0, visible.width, visible.height}), kept};
}

const Picture* Pictures::at_size(std::int64_t id, BitmapUse use, int width, int height, Light light) {
  const PanelSize own = size(id);
  if (own.width <= 0 || own.height <= 0) return nullptr;
  const Key key{static_cast<std::uint32_t>(id), use, std::clamp(width, 1, greatest_side),
                std::clamp(height, 1, greatest_side), light};
  auto kept = pictures_.find(key);
  if (kept == pictures_.end()) kept = pictures_.emplace(key, made(key)).first;
  return is_empty(kept->second.visible) ? nullptr : &kept->second;
}

std::optional<Openings> Pictures::openings(const Element& face) {
  if (face.kind != ELEMENT_STATIC_IMAGE) return {};
  const Rect place = scaled_place(face.position, size(face.resource_id), scale_);
  const Picture* picture = at_size(face.resource_id, BitmapUse::image, place.width, place.height);
  if (picture == nullptr || picture->visible != Rect{0, 0, place.width, place.height}) return {};
  Openings openings;
  for (int y = 0; y < place.height; ++y)
    add_openings({picture->pixels.at(0, y), static_cast<std::size_t>(place.width)}, place.x,
                 place.y + y, openings);
  return openings;
}

const TurningPicture* Pictures::turning(std::int64_t id) {
  const PanelSize own = size(id);
  if (own.width <= 0 || own.height <= 0) return nullptr;
  const auto kept = turning_.find(static_cast<std::uint32_t>(id));
  if (kept != turning_.end()) return &kept->second;
  const Rect place = scaled_place({0, 0}, own, scale_);
  const Picture picture =
      made({static_cast<std::uint32_t>(id), BitmapUse::image, std::min(place.width, greatest_side),
            std::min(place.height, greatest_side), Light::day});
  if (is_empty(picture.visible)) return nullptr;
  const Affine to_whole = shifted_by(picture.visible.x - 1, picture.visible.y - 1);
  const Affine to_image = scaled_by(1.0 * own.width / place.width, 1.0 * own.height / place.height);
  return &turning_
              .emplace(static_cast<std::uint32_t>(id), TurningPicture{with_clear_edges(picture.pixels),
                                                                      {place.width, place.height},
                                                                      to_whole,
                                                                      to_image * to_whole})
              .first->second;
}

}  // namespace host
