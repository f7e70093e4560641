#include "host/app/contact_sheet.h"

#include <algorithm>
#include <cmath>

#include "host/drawing/resample.h"
#include "host/window/compose.h"
#include "host/window/palette.h"

namespace host {
namespace {

constexpr int caption_size = 20;
constexpr std::uint32_t paper_color = 0xFF15171A;

// As large as the cell allows, never enlarged.
Canvas fitted(const Canvas& picture) {
  const double scale = std::min({1.0, double(ContactSheet::cell_width) / picture.width,
                                 double(ContactSheet::picture_height) / picture.height});
  const auto scaled = [&](int length) { return std::max(1, int(std::lround(length * scale))); };
  Bitmap whole{picture.width, picture.height, true, false, picture.pixels};
  Bitmap small = resampled(whole, scaled(picture.width), scaled(picture.height));
  Canvas canvas(small.width, small.height);
  canvas.pixels = std::move(small.pixels);
  return canvas;
}

// Cut to the cell's width.
std::string fitted(std::string caption) {
  while (!caption.empty() &&
         Sketch::text_width(caption, caption_size, false) > ContactSheet::cell_width)
    caption.pop_back();
  return caption;
}

}  // namespace

void ContactSheet::add(const Canvas& picture, const std::string& caption) {
  cells_.push_back({fitted(picture), fitted(caption)});
}

Canvas ContactSheet::page() const {
  constexpr int across = cell_width + gap, down = picture_height + caption_height + gap;
  const int count = static_cast<int>(cells_.size());
  const int columns =
      std::max(1, static_cast<int>(std::lround(std::sqrt(double(count) * down / across))));
  const int rows = (count + columns - 1) / columns;
  Canvas page(columns * across + gap, rows * down + gap);
  const Rect whole{0, 0, page.width, page.height};
  fill(page, whole, paper_color);
  Sketch captions(page.width, page.height);
  for (int i = 0; i < count; ++i) {
    const auto& [picture, caption] = cells_[static_cast<std::size_t>(i)];
    const int x = gap + i % columns * across, y = gap + i / columns * down;
    copy_within(page, picture, x + (cell_width - picture.width) / 2,
                y + picture_height - picture.height, whole);
    captions.text(caption, x, y + picture_height + 4, caption_size, false, palette::ink);
  }
  blend_within(page, captions.finish(), 0, 0, whole);
  return page;
}

}  // namespace host
