#include <gtest/gtest.h>

#include "host/loader/dib.h"
#include "tests/loader/resource_bytes.h"

namespace host {
namespace {

using Pixels = std::vector<std::uint32_t>;

Pixels decoded(const DibBytes& dib, BitmapUse use = BitmapUse::image) {
  const ByteList bytes = dib.bytes();
  return decode(parse_dib(bytes), use).pixels;
}

// Palette 0: black, 1: red by the classic rule, 2: half red, 3: black of full opacity.
const std::vector<std::uint32_t> palette{0x00000000, 0x00FF0000, 0x80FF0000, 0xFF000000};
constexpr std::uint32_t black = 0xFF000000, red = 0xFFFF0000, half_red = 0x80800000, nothing = 0;

TEST(Dib, BlackIsClearInImagesOnly) {
  const DibBytes eight{.width = 5, .palette = palette, .rows = {0, 1, 2, 3, 200, 0, 0, 0}};
  EXPECT_EQ(decoded(eight), (Pixels{nothing, red, half_red, black, nothing}));
  EXPECT_EQ(decoded(eight, BitmapUse::background), (Pixels{black, red, red, black, black}));

  const DibBytes four{.width = 4, .bits = 4, .palette = palette, .rows = {0x01, 0x23, 0, 0}};
  EXPECT_EQ(decoded(four), (Pixels{nothing, red, half_red, black}));

  const DibBytes full{.width = 2, .bits = 24, .rows = {0, 0, 0, 0, 0, 255, 0, 0}};
  EXPECT_EQ(decoded(full), (Pixels{nothing, red}));
  EXPECT_EQ(decoded(full, BitmapUse::background), (Pixels{black, red}));
}

TEST(Dib, RowsAreBottomUpAndPadded) {
  const DibBytes dib{.width = 1, .height = 2, .palette = palette, .rows = {1, 9, 9, 9, 2, 9, 9, 9}};
  EXPECT_EQ(decoded(dib), (Pixels{half_red, red}));
}

TEST(Dib, KnowsWhetherAnythingOrEverythingShows) {
  for (const std::uint8_t first : {0, 1})
    for (const std::uint8_t second : {0, 3}) {
      const ByteList bytes = DibBytes{.palette = palette, .rows = {first, second, 0, 0}}.bytes();
      const Bitmap bitmap = decode(parse_dib(bytes), BitmapUse::image);
      EXPECT_EQ(bitmap.opaque, first && second);
      EXPECT_EQ(bitmap.empty, !first && !second);
    }
}

TEST(Dib, DamageIsRefused) {
  const std::vector<std::uint8_t> row{0, 1, 0, 0};
  const DibBytes cases[] = {
      {.width = 0, .palette = palette, .rows = row},
      {.width = 1 << 30, .palette = palette, .rows = row},
      {.height = -1, .palette = palette, .rows = row},
      {.height = 2, .palette = palette, .rows = row},
      {.bits = 16, .palette = palette, .rows = row},
      {.palette = palette, .rows = row, .colours_used = 257},
      {.palette = palette, .rows = row, .colours_used = 200},
      {.palette = palette, .rows = row, .compression = 1},
      {.palette = palette, .rows = row, .header_size = 12},
      {.bits = 24, .rows = row, .colours_used = 0xFFFFFFFF},
  };
  for (const DibBytes& dib : cases) {
    const ByteList bytes = dib.bytes();
    EXPECT_THROW(parse_dib(bytes), DibError) << "case " << &dib - cases;
  }
  EXPECT_THROW(parse_dib({}), DibError);
}

}  // namespace
}  // namespace host
