/// Bitmaps, elements and gauges made by hand.
#pragma once

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "host/drawing/painter.h"
#include "host/panel/gauge_run.h"

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
    bitmaps_[{id, density}] = std::move(bitmap);
    if (std::ranges::find(densities_, density) == densities_.end()) densities_.push_back(density);
    std::ranges::sort(densities_);
  }

  void add(std::uint32_t id, int width, int height, std::uint32_t colour, int density = 1) {
    add(
        id, width, height, [colour](int, int) { return colour; }, density);
  }

  const Bitmap* find(std::uint32_t id, BitmapUse, int density = 1) const override {
    const auto found = bitmaps_.find({id, density});
    return found == bitmaps_.end() ? nullptr : &found->second;
  }

  std::vector<int> densities() const override { return densities_; }

 private:
  std::map<std::pair<std::uint32_t, int>, Bitmap> bitmaps_;
  std::vector<int> densities_{1};
};

/// A gauge of one chain; its elements stay where they are.
class MadeGauge {
 public:
  explicit MadeGauge(i32 background) { add(ELEMENT_STATIC_IMAGE, background, {0, 0}); }

  Element& add(u32 kind, i32 resource, PanelPoint position) {
    auto element = std::make_unique<Link>();
    element->element.kind = kind;
    element->element.resource_id = resource;
    element->element.position = position;
    element->element.gauge = &header;
    element->element.next = element->next;
    if (!links_.empty()) links_.back()->next[0] = &element->element;
    links_.push_back(std::move(element));
    header.element_list[0] = &links_.front()->element;
    return links_.back()->element;
  }

  Element& icon(i32 resource, PanelPoint position, u32 images, ValueRoutine value = nullptr) {
    Element& element = add(ELEMENT_ICON, resource, position);
    element.icon = {{}, value, 1, images, images - 1.0};
    return element;
  }

  Element& needle(i32 resource, PanelPoint position, PanelPoint pivot,
                  std::span<const NonlinearityPoint> table = {}) {
    Element& element = add(ELEMENT_NEEDLE, resource, position);
    element.needle = {
        pivot, {}, nullptr, table.empty() ? nullptr : table.data(), static_cast<u32>(table.size()),
        0,     0};
    return element;
  }

  Element& at(std::size_t index) { return links_[index]->element; }

  GaugeHeader header{};

 private:
  struct Link {
    Element element{};
    Element* next[2]{};
  };
  std::vector<std::unique_ptr<Link>> links_;
};

}  // namespace host
