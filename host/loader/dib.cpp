#include "host/loader/dib.h"

#include <algorithm>
#include <array>
#include <string>

namespace host {
namespace {

struct InfoHeader {
  std::uint32_t size;
  std::int32_t width;
  std::int32_t height;
  std::uint16_t planes;
  std::uint16_t bits;
  std::uint32_t compression;
  std::uint32_t image_size;
  std::int32_t x_per_metre;
  std::int32_t y_per_metre;
  std::uint32_t colours_used;
  std::uint32_t colours_important;
};
static_assert(sizeof(InfoHeader) == 40);

constexpr std::uint32_t opaque_black = 0xFF000000u;

InfoHeader header_of(Bytes bytes) {
  const auto header = read<InfoHeader>(bytes, 0);
  if (!header || header->size != sizeof(InfoHeader)) throw DibError("no bitmap header");
  if (header->compression != 0 || header->planes != 1) throw DibError("compressed or in planes");
  if (header->bits != 4 && header->bits != 8 && header->bits != 24)
    throw DibError(std::to_string(header->bits) + " bits a pixel");
  const auto sensible = [](int side) { return side > 0 && side <= Dib::greatest_side; };
  if (!sensible(header->width) || !sensible(header->height))
    throw DibError("a size of " + std::to_string(header->width) + " x " +
                   std::to_string(header->height));
  return *header;
}

std::uint32_t palette_colours(const InfoHeader& header) {
  if (header.bits == 24) return header.colours_used;
  const std::uint32_t full = 1u << header.bits;
  if (header.colours_used > full) throw DibError("a palette that is too large");
  return header.colours_used == 0 ? full : header.colours_used;
}

std::uint32_t premultiplied(std::uint32_t blue, std::uint32_t green, std::uint32_t red,
                            std::uint32_t opacity) {
  const auto scaled = [opacity](std::uint32_t part) { return (part * opacity + 127) / 255; };
  return opacity << 24 | scaled(red) << 16 | scaled(green) << 8 | scaled(blue);
}

// `stated` 0 is the classic rule: everything is opaque except pure black.
std::uint32_t pixel(std::byte b, std::byte g, std::byte r, std::uint32_t stated, BitmapUse use) {
  const auto blue = std::to_integer<std::uint32_t>(b), green = std::to_integer<std::uint32_t>(g),
             red = std::to_integer<std::uint32_t>(r);
  if (use == BitmapUse::background) return premultiplied(blue, green, red, 255);
  const std::uint32_t classic = (blue | green | red) == 0 ? 0 : 255;
  return premultiplied(blue, green, red, stated == 0 ? classic : stated);
}

using Palette = std::array<std::uint32_t, 256>;

// Indices past the palette's end are black.
Palette colours(const Dib& dib, BitmapUse use) {
  Palette palette;
  palette.fill(use == BitmapUse::background ? opaque_black : 0);
  const std::size_t count = std::min(palette.size(), dib.palette.size() / 4);
  for (std::size_t i = 0; i < count; ++i) {
    const std::byte* entry = dib.palette.data() + i * 4;
    palette[i] = pixel(entry[0], entry[1], entry[2], std::to_integer<std::uint32_t>(entry[3]), use);
  }
  return palette;
}

void decode_row(const Dib& dib, const std::byte* row, const Palette& palette, BitmapUse use,
                std::uint32_t* out) {
  for (int x = 0; x < dib.width; ++x) {
    if (dib.bits == 24) {
      out[x] = pixel(row[x * 3], row[x * 3 + 1], row[x * 3 + 2], 0, use);
    } else if (dib.bits == 8) {
      out[x] = palette[std::to_integer<unsigned>(row[x])];
    } else {
      const unsigned pair = std::to_integer<unsigned>(row[x / 2]);
      out[x] = palette[x % 2 == 0 ? pair >> 4 : pair & 15];
    }
  }
}

}  // namespace

Dib parse_dib(Bytes bytes) {
  const InfoHeader header = header_of(bytes);
  Dib dib{header.width, header.height, header.bits, {}, {}};
  const std::uint64_t palette_bytes = std::uint64_t{palette_colours(header)} * 4;
  const auto palette = slice(bytes, sizeof(InfoHeader), palette_bytes);
  const auto rows = slice(bytes, sizeof(InfoHeader) + palette_bytes, dib.row_bytes() * dib.height);
  if (!palette || !rows) throw DibError("fewer bytes than its size asks for");
  dib.palette = *palette;
  dib.rows = *rows;
  return dib;
}

Bitmap decode(const Dib& dib, BitmapUse use) {
  Bitmap bitmap{dib.width, dib.height, true, true, {}};
  bitmap.pixels.resize(std::size_t(dib.width) * dib.height);
  const Palette palette = colours(dib, use);
  for (int y = 0; y < dib.height; ++y) {
    const std::byte* row = dib.rows.data() + dib.row_bytes() * (dib.height - 1 - y);
    decode_row(dib, row, palette, use, bitmap.pixels.data() + std::size_t(y) * dib.width);
  }
  bitmap.opaque = std::ranges::all_of(bitmap.pixels, [](auto p) { return p >> 24 == 255; });
  bitmap.empty = std::ranges::all_of(bitmap.pixels, [](auto p) { return p >> 24 == 0; });
  return bitmap;
}

}  // namespace host
