/// Pictures with at most 256 colours, each with its opacity.
#pragma once

#include <cstdint>
#include <vector>

#include "resources/kit/canvas.h"

namespace artwork {

/// One palette entry, not premultiplied. Opacity 0 is the colour that is not drawn: pure black.
struct PaletteEntry {
  std::uint8_t blue, green, red, opacity;

  friend bool operator==(const PaletteEntry&, const PaletteEntry&) = default;
};

struct Indexed {
  int width = 0;
  int height = 0;
  std::vector<PaletteEntry> palette;
  std::vector<std::uint8_t> pixels;  ///< top row first
};

/// A background's palette says nothing about opacity; for showing, all of it is opaque.
void make_opaque(Indexed& picture);

/// The picture in its best 256 colours. A background is opaque; in every other picture what is
/// transparent becomes pure black, and no drawn pixel does.
Indexed indexed(const Canvas& canvas, bool background);

}  // namespace artwork
