/// Packed device-independent bitmaps: a 40-byte header, a palette, rows bottom-up and padded to
/// four.
#pragma once

#include <stdexcept>

#include "host/loader/bitmap.h"
#include "host/loader/byte_view.h"

namespace host {

/// The bytes are not a bitmap of a kind that modules carry; what() says why.
struct DibError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// A checked bitmap in place; the bytes must outlive it.
struct Dib {
  static constexpr int greatest_side = 16384;  ///< pixels

  int width = 0;
  int height = 0;
  int bits = 0;   ///< a pixel: 4, 8 or 24
  Bytes palette;  ///< four bytes a colour: blue, green, red, opacity
  Bytes rows;

  std::size_t row_bytes() const { return (std::size_t(width) * bits + 31) / 32 * 4; }
};

/// Throws DibError.
Dib parse_dib(Bytes bytes);

/// The picture that the bitmap shows when it is used as `use`.
Bitmap decode(const Dib& dib, BitmapUse use);

}  // namespace host
