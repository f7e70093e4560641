#include "host/app/contact_sheet.h"

#include <algorithm>
#include <cmath>

#include "host/drawing/resample.h"
#include "host/sketch/palette.h"
#include "host/window/compose.h"

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

std::vector<ContactSheet::Row> ContactSheet::rows() const {
  constexpr double across = cell_width + gap, down = picture_height + caption_height + gap;
  const auto count = static_cast<double>(cells_.size());
  const auto columns = static_cast<std::size_t>(std::ceil(std::sqrt(count * down / across)));
  std::vector<Row> rows;
  for (Row left = cells_; !left.empty(); left = left.subspan(rows.back().size()))
    rows.push_back(left.first(std::min(columns, left.size())));
  return rows;
}

int ContactSheet::pictures_height(const Row& row) {
  return std::ranges::max(row, {}, [](const Cell& cell) { return cell.picture.height; }).picture.height;
}

Canvas ContactSheet::page() const {
  const std::vector<Row> all = rows();
  int height = gap;
  for (const Row& row : all) height += pictures_height(row) + caption_height + gap;
  Canvas page(static_cast<int>(all.front().size()) * (cell_width + gap) + gap, height);
  const Rect whole{0, 0, page.width, page.height};
  fill(page, whole, paper_color);
  Sketch captions(page.width, page.height);
  int y = gap;
  for (const Row& row : all) {
    const int pictures = pictures_height(row);
    int x = gap;
    for (const auto& [picture, caption] : row) {
      copy_within(page, picture, x + (cell_width - picture.width) / 2,
                  y + (pictures - picture.height) / 2, whole);
      captions.text(caption, x, y + pictures + 4, caption_size, false, palette::ink);
      x += cell_width + gap;
    }
    y += pictures + caption_height + gap;
  }
  blend_within(page, captions.finish(), 0, 0, whole);
  return page;
}

}  // namespace host
