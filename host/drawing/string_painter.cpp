/// Text read-outs.
#include <algorithm>
#include <string>

#include "host/drawing/element_painter.h"
#include "host/drawing/text.h"

namespace host {
namespace {

constexpr int greatest_side = 16384;  // canvas pixels

class StringPainter final : public ElementPainter {
 public:
  StringPainter(const Element& element, Rect box)
      : box_(box), setter_(element.string, {box.width, box.height}) {}

  // Every text that is set gets a number of its own.
  Look look(const Moment& moment) override {
    if (number_ == 0 || text_ != moment.now.text) {
      text_ = moment.now.text;
      visible_ = setter_.set(text_);
      ++number_;
    }
    return {.shown = visible_, .a = visible_ ? number_ : 0};
  }

  Rect bounds(const Look&) const override { return box_; }

  void paint(Surface target, const Rect& clip, const Look&) const override {
    blend_pixels(target, intersection(clip, box_), setter_.pixels(), box_.x, box_.y);
  }

  bool moves() const override { return true; }

 private:
  Rect box_;
  TextSetter setter_;
  std::string text_;
  bool visible_ = false;
  int number_ = 0;
};

}  // namespace

std::unique_ptr<ElementPainter> make_string_painter(const Element& element, Scale scale) {
  const PanelSize size = element.string.size;
  if (size.width <= 0 || size.height <= 0) return nullptr;
  Rect box = scaled_place(element.position, size, scale);
  box.width = std::min(box.width, greatest_side);
  box.height = std::min(box.height, greatest_side);
  return std::make_unique<StringPainter>(element, box);
}

}  // namespace host
