/// Static images, and icons that show one image out of several.
#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "host/drawing/element_painter.h"

namespace host {
namespace {

constexpr std::uint32_t most_images = 1000;

class StillPainter final : public ElementPainter {
 public:
  StillPainter(const Element& element, Pictures& pictures, BitmapUse use, Light at_night)
      : element_(element), pictures_(pictures), use_(use), at_night_(at_night) {
    const bool icon = element.kind == ELEMENT_ICON;
    const std::size_t count = icon ? std::clamp(element.icon.image_count, 1u, most_images) : 1;
    for (std::vector<Image>& images : images_) images.resize(count);
  }

  Look look(const Moment& moment) override {
    const double index = element_.kind == ELEMENT_ICON ? std::trunc(moment.now.values[0]) : 0;
    if (!(index >= 0)) return {};
    const double last = static_cast<double>(images_[0].size() - 1);
    const int image = static_cast<int>(std::min(index, last));
    const Light light = moment.light == Light::night ? at_night_ : moment.light;
    return {.shown = loaded(image, light).picture != nullptr, .a = image, .light = light};
  }

  Rect bounds(const Look& look) const override {
    const Image& image = image_of(look);
    const Rect& visible = image.picture->visible;
    return {image.place.x + visible.x, image.place.y + visible.y, visible.width, visible.height};
  }

  void paint(Surface target, const Rect& clip, const Look& look) const override {
    const Picture& picture = *image_of(look).picture;
    const Rect at = bounds(look);
    (picture.opaque ? copy_pixels : blend_pixels)(target, clip, picture.pixels, at.x, at.y);
  }

  bool moves() const override { return false; }

 private:
  struct Image {
    bool loaded = false;
    const Picture* picture = nullptr;  // null: nothing to see
    Rect place;
  };

  const Image& image_of(const Look& look) const {
    return images_[static_cast<std::size_t>(look.light)][look.a];
  }

  const Image& loaded(int index, Light light) {
    Image& image = images_[static_cast<std::size_t>(light)][index];
    if (image.loaded) return image;
    image.loaded = true;
    const std::int64_t id = std::int64_t{element_.resource_id} + index;
    image.place = scaled_place(element_.position, pictures_.size(id), pictures_.scale());
    image.picture = pictures_.at_size(id, use_, image.place.width, image.place.height, light);
    return image;
  }

  const Element& element_;
  Pictures& pictures_;
  BitmapUse use_;
  Light at_night_;
  std::array<std::vector<Image>, kinds_of_light> images_;  // by light
};

}  // namespace

std::unique_ptr<ElementPainter> make_still_painter(const Element& element, Pictures& pictures,
                                                   BitmapUse use, Light at_night) {
  return std::make_unique<StillPainter>(element, pictures, use, at_night);
}

}  // namespace host
