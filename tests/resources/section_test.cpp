/// The section's bytes: made by hand, in the module, and in the files for dense displays.
#include <gtest/gtest.h>

#include "host/loader/elf_file.h"
#include "host/loader/mapped_file.h"
#include "host/loader/resource_section.h"
#include "resources/tool/section.h"
#include "resources/tool/windows_resources.h"
#include "tests/resources/picture.h"

namespace artwork_test {
namespace {

/// Opacity in the palette: backgrounds have none, other pictures are clear only where black. Without a palette
/// nothing is clear.
void expect_only_black_is_clear(const host::Dib& dib, const Bitmap& bitmap) {
  if (dib.bits == 24 && !bitmap.background) {
    EXPECT_TRUE(host::decode(dib, host::BitmapUse::image).opaque) << subject(bitmap);
  }
  for (std::size_t i = 0; i < dib.palette.size(); i += 4) {
    const auto part = [&](std::size_t k) { return std::to_integer<int>(dib.palette[i + k]); };
    const bool black = part(0) + part(1) + part(2) == 0;
    if (bitmap.background) {
      EXPECT_EQ(part(3), 0) << subject(bitmap);
    } else {
      EXPECT_EQ(black, part(3) == 0) << subject(bitmap);
    }
  }
}

/// The loader's reading of bytes that are only in memory.
host::Bytes view(const Bytes& bytes) { return std::as_bytes(std::span(bytes)); }

Indexed tiny() { return {3, 2, {{0, 0, 0, 0}, {30, 20, 10, 255}, {3, 2, 1, 128}}, {0, 1, 2, 2, 1, 0}}; }

TEST(PackedBitmap, HasHeaderPaletteAndRowsFromTheBottomUp) {
  const Bytes bytes = packed(tiny());
  const Bytes palette(bytes.begin() + 40, bytes.begin() + 52);
  EXPECT_EQ(palette, (Bytes{0, 0, 0, 0, 30, 20, 10, 255, 3, 2, 1, 128}));
  const Bytes rows(bytes.begin() + 52, bytes.end());
  EXPECT_EQ(rows, (Bytes{2, 1, 0, 0, 0, 1, 2, 0})) << "each row padded to four bytes";
}

/// Two rows in each depth, as a host reads them.
TEST(PackedBitmap, IsTheSamePictureInEveryDepth) {
  const Canvas canvas({3, 2}, 1, 1);
  fill(canvas, rounded({0, 0, 2, 1}, 0), rgb(0x0A141E));
  fill(canvas, rounded({1, 1, 2, 1}, 0), rgb(0xFF8000));
  const Bytes depths[] = {packed(indexed(canvas, Ground::plate, 16), 4),
                          packed(indexed(canvas, Ground::plate)),
                          packed(full_colour(canvas, Ground::plate))};
  for (const Bytes& bytes : depths) {
    const host::Dib dib = host::parse_dib(view(bytes));
    EXPECT_EQ(host::decode(dib, host::BitmapUse::image).pixels,
              (std::vector<std::uint32_t>{0xFF0A141E, 0xFF0A141E, 0, 0, 0xFFFF8000, 0xFFFF8000}))
        << dib.bits;
  }
}

TEST(Section, ListsNumberedBitmapsThenNamedOnes) {
  const Bytes bitmap = packed(tiny());
  const Bytes bytes = section({{7, "", bitmap}, {90, "", bitmap}, {~0u, "IDB_X", bitmap}});
  ASSERT_GE(bytes.size(), 16u + 3 * 64);
  EXPECT_EQ(std::string(bytes.begin(), bytes.begin() + 8), "PANELRES");
  EXPECT_EQ(bytes[8], 1) << "version";
  EXPECT_EQ(bytes[12], 3) << "count";
  const std::size_t named = 16 + 2 * 64;
  EXPECT_EQ(std::string(reinterpret_cast<const char*>(&bytes[named + 16])), "IDB_X");
  const host::ResourceSection read(view(bytes));
  EXPECT_TRUE(read.notes().empty());
  ASSERT_EQ(read.numbered().size(), 2u);
  EXPECT_EQ(host::decode(*read.find(90), host::BitmapUse::image).pixels[1], 0xFF0A141Eu);
}

TEST(Section, BecomesResourcesForWindowsByNumberAndByName) {
  const Bytes bitmap = packed(tiny());
  const Bytes bytes = windows_resources(section({{0x1234, "", bitmap}, {~0u, "IDB", bitmap}}));
  const auto part = [&](std::size_t at, std::size_t size) {
    return Bytes(bytes.begin() + std::ptrdiff_t(at), bytes.begin() + std::ptrdiff_t(at + size));
  };
  const auto low = static_cast<std::uint8_t>(bitmap.size());
  const std::size_t numbered = 32, named = numbered + 32 + bitmap.size();
  EXPECT_EQ(part(0, 8), (Bytes{0, 0, 0, 0, 32, 0, 0, 0})) << "every file's first";
  EXPECT_EQ(part(numbered, 16),
            (Bytes{low, 0, 0, 0, 32, 0, 0, 0, 255, 255, 2, 0, 255, 255, 0x34, 0x12}));
  EXPECT_EQ(part(numbered + 32, bitmap.size()), bitmap);
  EXPECT_EQ(part(named, 20),
            (Bytes{low, 0, 0, 0, 36, 0, 0, 0, 255, 255, 2, 0, 'I', 0, 'D', 0, 'B', 0, 0, 0}));
  EXPECT_EQ(part(named + 36, bitmap.size()), bitmap);
  EXPECT_EQ(bytes.size(), named + 36 + bitmap.size()) << "a multiple of four";
}

/// The files as the build has left them beside one another, at one, two and three times the pixels.
TEST(Files, HoldEveryBitmapOfTheTable) {
  const std::string module = std::string(COCKPIT_DIR) + "/Tarnvale.GAU";
  const host::MappedFile file(module), twice(module + ".2x"), thrice(module + ".3x");
  const host::Bytes sections[] = {host::ElfFile(file.bytes()).section(".panelres").value(),
                                  twice.bytes(), thrice.bytes()};
  for (int times = 1; times <= 3; ++times) {
    const host::ResourceSection read(sections[times - 1]);
    EXPECT_TRUE(read.notes().empty());
    EXPECT_EQ(read.numbered().size() + read.named().size(), bitmap_table().size()) << times;
    for (const Bitmap& bitmap : bitmap_table()) {
      const host::Dib* found = bitmap.id == Bitmap::named
                                   ? read.find(bitmap.art->of.name)
                                   : read.find(static_cast<std::uint32_t>(bitmap.id));
      ASSERT_NE(found, nullptr) << subject(bitmap);
      EXPECT_EQ(found->width, times * bitmap.size.width) << subject(bitmap);
      EXPECT_EQ(found->height, times * bitmap.size.height) << subject(bitmap);
      EXPECT_EQ(found->bits, bitmap.bits()) << subject(bitmap);
      expect_only_black_is_clear(*found, bitmap);
    }
  }
}

}  // namespace
}  // namespace artwork_test
