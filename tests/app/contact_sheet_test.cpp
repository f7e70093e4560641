#include "host/app/contact_sheet.h"

#include <gtest/gtest.h>

namespace {

using namespace host;

Canvas coloured(int width, int height, std::uint32_t color) {
  Canvas canvas(width, height);
  canvas.pixels.assign(canvas.pixels.size(), color);
  return canvas;
}

TEST(ContactSheet, ShowsEveryPictureWholeInItsOrderAboveItsCaption) {
  constexpr std::uint32_t colors[] = {0xFFFF0000, 0xFF00FF00, 0xFF0000FF, 0xFFFFFF00, 0xFF00FFFF};
  constexpr PanelSize sizes[] = {{1280, 360}, {300, 900}, {40, 20}, {480, 300}, {5000, 5}};
  ContactSheet sheet;
  for (std::size_t i = 0; i < 5; ++i)
    sheet.add(coloured(sizes[i].width, sizes[i].height, colors[i]), "Stage " + std::string(400, 'm'));
  const Canvas page = sheet.page();
  constexpr int across = ContactSheet::cell_width + ContactSheet::gap;
  constexpr int down = ContactSheet::picture_height + ContactSheet::caption_height + ContactSheet::gap;
  ASSERT_EQ(page.width, 2 * across + ContactSheet::gap);
  ASSERT_EQ(page.height, 3 * down + ContactSheet::gap);
  for (int i = 0; i < 5; ++i) {
    const int left = ContactSheet::gap + i % 2 * across, top = ContactSheet::gap + i / 2 * down;
    int pixels = 0, inked = 0;
    for (int y = 0; y < down; ++y) {
      for (int x = 0; x < across; ++x) {
        const std::uint32_t pixel = page.pixels[std::size_t(top + y) * page.width + left + x];
        pixels += pixel == colors[i];
        inked += y >= ContactSheet::picture_height && (pixel & 0xFF) > 0x80;
      }
    }
    const double shape = double(sizes[i].width) / sizes[i].height;
    const double width = std::min({480.0, 300 * shape, double(sizes[i].width)});
    EXPECT_NEAR(pixels, width * std::max(1.0, width / shape), 0.02 * pixels + 480) << i;
    EXPECT_GT(inked, 100) << "the caption of " << i;
  }
}

}  // namespace
