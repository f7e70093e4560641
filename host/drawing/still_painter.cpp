/// Static images, and icons that show one image out of several.
#include <algorithm>
#include <cmath>
#include <vector>

#include "host/drawing/element_painter.h"

namespace host {
namespace {

constexpr std::uint32_t most_images = 1000;

class StillPainter final : public ElementPainter {
 public:
  StillPainter(const Element& element, Pictures& pictures)
      : element_(element),
        pictures_(pictures) {
    const bool icon = element.kind == ELEMENT_ICON;
    images_.resize(icon ? std::clamp(element.icon.image_count, 1u, most_images) : 1);
  }

  Look look(const Moment& moment) override {
    const double index = element_.kind == ELEMENT_ICON ? std::trunc(moment.now.values[0]) : 0;
    if (!(index >= 0)) return {};
    const double last = static_cast<double>(images_.size() - 1);
    const int image = static_cast<int>(std::min(index, last));
    return {.shown = loaded(image).picture != nullptr, .a = image};
  }

  Rect bounds(const Look& look) const override {
    const Image& image = images_[look.a];
    const Rect& visible = image.picture->visible;
    return {image.place.x + visible.x, image.place.y + visible.y, visible.width, visible.height};
  }

  void paint(Surface target, const Rect& clip, const Look& look) const override {
    const Picture& picture = *images_[look.a].picture;
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

  const Image& loaded(int index) {
    Image& image = images_[index];
    if (image.loaded) return image;
    image.loaded = true;
    const auto use = element_.kind == ELEMENT_ICON ? BitmapUse::image : BitmapUse::background;
    const std::int64_t id = std::int64_t{element_.resource_id} + index;
    image.place = scaled_place(element_.position, pictures_.size(id, use), pictures_.scale());
    image.picture = pictures_.at_size(id, use, image.place.width, image.place.height);
    return image;
  }

  const Element& element_;
  Pictures& pictures_;
  std::vector<Image> images_;
};

}  // namespace

std::unique_ptr<ElementPainter> make_still_painter(const Element& element, Pictures& pictures) {
  return std::make_unique<StillPainter>(element, pictures);
}

}  // namespace host
