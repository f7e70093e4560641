#include "host/app/contact_sheet.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using namespace host;

TEST(ContactSheet, ShowsEveryPictureWholeInItsOrderAboveItsCaption) {
  struct Case {
    PanelSize size, shown;
    std::uint32_t color;
    int x, y;  // the shown picture's place on the page
  };
  constexpr Case cases[] = {
      {{1280, 400}, {480, 150}, 0xFFFF0000, 12, 87}, {{300, 900}, {100, 300}, 0xFF00FF00, 694, 12},
      {{40, 20}, {40, 20}, 0xFF0000FF, 232, 369},    {{960, 100}, {480, 50}, 0xFFFFFF00, 504, 354},
      {{4800, 5}, {480, 1}, 0xFF00FFFF, 12, 446},
  };
  ContactSheet sheet;
  for (const Case& c : cases) {
    Canvas picture(c.size.width, c.size.height);
    picture.pixels.assign(picture.pixels.size(), c.color);
    sheet.add(picture, "Stage " + std::string(400, 'm'));
  }
  const Canvas page = sheet.page();
  ASSERT_EQ(page.width, 996);
  const auto pixel = [&](int x, int y) { return page.pixels[std::size_t(y) * page.width + x]; };
  for (const Case& c : cases) {
    const int right = c.x + c.shown.width - 1, bottom = c.y + c.shown.height - 1;
    EXPECT_EQ(pixel(c.x, c.y), c.color);
    EXPECT_EQ(pixel(right, bottom), c.color);
    EXPECT_EQ(std::ranges::count(page.pixels, c.color), c.shown.width * c.shown.height);
  }
  int inked = 0;
  for (int x = 504; x < 996; ++x) inked += (pixel(x, 312 + 14) & 0xFF) > 0x80;
  EXPECT_GT(inked, 50) << "the caption below the second picture";
}

}  // namespace
