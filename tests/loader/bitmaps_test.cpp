#include <gtest/gtest.h>

#include "host/loader/module_bitmaps.h"
#include "tests/loader/resource_bytes.h"
#include "tests/rig/temp_folder.h"

namespace host {
namespace {

constexpr std::uint32_t red = 0xFFFF0000, green = 0xFF00FF00, blue = 0xFF0000FF;

/// A module's own bitmaps 10 (2 x 2), 20 (4 x 1) and 30, red; dense files are added by the tests.
class Bitmaps : public testing::Test {
 protected:
  ModuleBitmaps store() { return ModuleBitmaps(own_, file_); }

  static std::uint32_t colour(const ModuleBitmaps& store, std::uint32_t id, int density) {
    const auto bitmap = store.find(id, BitmapUse::image, density);
    return bitmap == nullptr ? 0 : bitmap->pixels.front();
  }

  void write_dense(const char* ending, const ByteList& bytes) {
    folder_.write("made.GAU" + std::string(ending), text_of(bytes));
  }

  TempFolder folder_;
  std::string file_ = folder_ / "made.GAU";
  ByteList own_ = section_bytes({{10, plain_dib(2, 2, 0xFF0000)},
                                 {20, plain_dib(4, 1, 0xFF0000)},
                                 {30, plain_dib(1, 1, 0xFF0000)}});
};

TEST_F(Bitmaps, WithoutDenseFilesThereIsOneDensity) {
  const ModuleBitmaps bitmaps = store();
  EXPECT_EQ(bitmaps.densities(), std::vector<int>{1});
  EXPECT_TRUE(bitmaps.dense_faults().empty());
  EXPECT_EQ(colour(bitmaps, 10, 1), red);
  EXPECT_EQ(bitmaps.find(10, BitmapUse::image, 2), nullptr);
  EXPECT_EQ(bitmaps.find(11, BitmapUse::image), nullptr);
  const auto held = bitmaps.find(10, BitmapUse::image);
  EXPECT_EQ(bitmaps.find(10, BitmapUse::image), held);
  EXPECT_NE(bitmaps.find(10, BitmapUse::image), bitmaps.find(10, BitmapUse::background));
}

TEST_F(Bitmaps, DenseOnesCountOnlyAtTheRightSize) {
  write_dense(".2x", section_bytes({{10, plain_dib(4, 4, 0x00FF00)},
                                    {20, plain_dib(8, 1, 0x00FF00)},
                                    {99, plain_dib(2, 2, 0x00FF00)}}));
  write_dense(".3x", section_bytes({{20, plain_dib(12, 3, 0x0000FF)}}));
  const ModuleBitmaps bitmaps = store();
  EXPECT_EQ(bitmaps.densities(), (std::vector<int>{1, 2, 3}));
  EXPECT_EQ(colour(bitmaps, 10, 2), green);
  EXPECT_EQ(colour(bitmaps, 20, 2), 0u);  // 8 x 1 is not twice 4 x 1
  EXPECT_EQ(colour(bitmaps, 20, 3), blue);
  EXPECT_EQ(colour(bitmaps, 30, 2), 0u);
  EXPECT_EQ(colour(bitmaps, 99, 2), 0u);  // no bitmap of the module's own
  EXPECT_EQ(bitmaps.dense_faults(),
            std::vector<std::string>{file_ + ".2x: bitmap 20 has 8 x 1 pixels, not 8 x 2"});
}

TEST_F(Bitmaps, DamagedDenseOnesAreLeftOutAndToldOnceAFile) {
  ByteList dense = section_bytes({{10, plain_dib(4, 4, 0x00FF00)},
                                  {20, plain_dib(9, 2, 0x00FF00)},
                                  {30, plain_dib(2, 2, 0x00FF00)}});
  dense.resize(dense.size() - 16);  // the last bitmap is cut off
  write_dense(".2x", dense);
  write_dense(".3x", ByteList(40, std::byte{'x'}));
  const ModuleBitmaps bitmaps = store();
  EXPECT_EQ(colour(bitmaps, 10, 2), green);
  EXPECT_EQ(colour(bitmaps, 30, 2), 0u);
  EXPECT_EQ(bitmaps.densities(), (std::vector<int>{1, 2}));
  EXPECT_EQ(
      bitmaps.dense_faults(),
      (std::vector<std::string>{file_ + ".2x: bitmap 30 is damaged: it lies past the end, and 1 more",
                                file_ + ".3x: holds no bitmap directory"}));
}

TEST_F(Bitmaps, DirectoryMustLieInside) {
  for (const std::size_t size : {0, 16, 79}) {
    ByteList cut(own_.begin(), own_.begin() + static_cast<std::ptrdiff_t>(size));
    EXPECT_THROW(ModuleBitmaps(cut, file_), ResourceError) << size;
  }
  own_[8] = std::byte{2};
  EXPECT_THROW(store(), ResourceError);
}

}  // namespace
}  // namespace host
