/// The section's bytes: made by hand, in the module, and in the files for dense displays.
#include <gtest/gtest.h>

#include <algorithm>

#include "resources/bitmap_table.h"
#include "resources/tool/section.h"
#include "tests/resources/section_reader.h"

namespace artwork_test {
namespace {

using artwork::Bytes;
using artwork::Indexed;

Indexed tiny() { return {3, 2, {{0, 0, 0, 0}, {30, 20, 10, 255}, {3, 2, 1, 128}}, {0, 1, 2, 2, 1, 0}}; }

TEST(PackedBitmap, HasHeaderPaletteAndRowsFromTheBottomUp) {
  const Bytes bytes = artwork::packed(tiny());
  const Bytes palette(bytes.begin() + 40, bytes.begin() + 52);
  EXPECT_EQ(palette, (Bytes{0, 0, 0, 0, 30, 20, 10, 255, 3, 2, 1, 128}));
  const Bytes rows(bytes.begin() + 52, bytes.end());
  EXPECT_EQ(rows, (Bytes{2, 1, 0, 0, 0, 1, 2, 0})) << "each row padded to four bytes";
}

TEST(Section, ListsNumberedBitmapsThenNamedOnes) {
  const Bytes bitmap = artwork::packed(tiny());
  const Bytes bytes = artwork::section({{7, "", bitmap}, {90, "", bitmap}, {~0u, "IDB_X", bitmap}});
  ASSERT_GE(bytes.size(), 16u + 3 * 64);
  EXPECT_EQ(std::string(bytes.begin(), bytes.begin() + 8), "PANELRES");
  EXPECT_EQ(bytes[8], 1) << "version";
  EXPECT_EQ(bytes[12], 3) << "count";
  const std::size_t named = 16 + 2 * 64;
  EXPECT_EQ(std::string(reinterpret_cast<const char*>(&bytes[named + 16])), "IDB_X");
  const auto read = read_section(bytes);
  ASSERT_EQ(read.size(), 2u);
  EXPECT_EQ(read.at(90).pixels, tiny().pixels);
  EXPECT_EQ(read.at(7).palette[2], 0x80010203u);
}

/// The files as the build has left them beside one another.
class Files : public ::testing::Test {
 protected:
  const std::string module = std::string(COCKPIT_DIR) + "/Tarnvale.GAU";
};

TEST_F(Files, ModuleHoldsEveryBitmapOfTheTable) {
  const auto read = read_section(elf_section(module, ".panelres"));
  for (const artwork::Bitmap& bitmap : artwork::bitmap_table()) {
    const auto found = read.find(static_cast<std::uint32_t>(bitmap.id));
    ASSERT_NE(found, read.end()) << bitmap.id;
    EXPECT_EQ(found->second.width, bitmap.size.width) << bitmap.id;
    EXPECT_EQ(found->second.height, bitmap.size.height) << bitmap.id;
  }
}

TEST_F(Files, DenseFilesHoldTheSameBitmapsAtTwoAndThreeTimesTheSize) {
  const auto base = read_section(elf_section(module, ".panelres"));
  ASSERT_FALSE(base.empty());
  for (const int times : {2, 3}) {
    const auto dense = read_section(file_bytes(module + "." + std::to_string(times) + "x"));
    ASSERT_EQ(dense.size(), base.size()) << times;
    for (const auto& [id, bitmap] : base) {
      ASSERT_TRUE(dense.contains(id)) << id;
      EXPECT_EQ(dense.at(id).width, bitmap.width * times) << id;
      EXPECT_EQ(dense.at(id).height, bitmap.height * times) << id;
    }
  }
}

/// Opacity in the palette: backgrounds ignore it, other pictures are clear only where black.
TEST_F(Files, OnlyPureBlackIsClear) {
  const auto read = read_section(elf_section(module, ".panelres"));
  for (const artwork::Bitmap& bitmap : artwork::bitmap_table()) {
    for (const std::uint32_t colour : read.at(static_cast<std::uint32_t>(bitmap.id)).palette) {
      if (bitmap.background) {
        EXPECT_EQ(colour >> 24, 0u) << bitmap.id;
      } else {
        EXPECT_EQ((colour & 0xFFFFFF) == 0, colour >> 24 == 0) << bitmap.id;
      }
    }
  }
}

}  // namespace
}  // namespace artwork_test
