/// Bitmaps made by hand.
#pragma once

#include <algorithm>
#include <functional>
#include <map>
#include <vector>

#include "host/loader/bitmap.h"

namespace host {

/// Bitmaps whose pixels a function gives; the same picture serves every use.
class MadeBitmaps : public BitmapStore {
 public:
  using Pixel = std::function<std::uint32_t(int x, int y)>;

  void add(std::uint32_t id, int width, int height, const Pixel& pixel, int density = 1) {
    Bitmap bitmap{width * density, height * density, true, true, {}};
    for (int y = 0; y < bitmap.height; ++y)
      for (int x = 0; x < bitmap.width; ++x) bitmap.pixels.push_back(pixel(x, y));
    bitmap.opaque = std::ranges::all_of(bitmap.pixels, [](auto p) { return p >> 24 == 255; });
    bitmap.empty = std::ranges::all_of(bitmap.pixels, [](auto p) { return p >> 24 == 0; });
    bitmaps_[{id, density}] = std::make_shared<const Bitmap>(std::move(bitmap));
    if (std::ranges::find(densities_, density) == densities_.end()) densities_.push_back(density);
    std::ranges::sort(densities_);
  }

  void add(std::uint32_t id, int width, int height, std::uint32_t colour, int density = 1) {
    add(
        id, width, height, [colour](int, int) { return colour; }, density);
  }

  PanelSize size(std::uint32_t id) const override {
    const auto found = find(id, BitmapUse::image);
    return found ? PanelSize{found->width, found->height} : PanelSize{0, 0};
  }

  bool has(std::uint32_t id, int density) const override { return bitmaps_.contains({id, density}); }

  std::shared_ptr<const Bitmap> find(std::uint32_t id, BitmapUse, int density = 1) const override {
    const auto found = bitmaps_.find({id, density});
    return found == bitmaps_.end() ? nullptr : found->second;
  }

  std::vector<int> densities() const override { return densities_; }

 private:
  std::map<std::pair<std::uint32_t, int>, std::shared_ptr<const Bitmap>> bitmaps_;
  std::vector<int> densities_{1};
};

}  // namespace host
