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

/// What lies behind a picture.
enum class Ground {
  none,     ///< a background: every pixel is opaque, and opacity says nothing
  sprites,  ///< a background with openings: a pixel is opaque, or pure black and not drawn
  plate,    ///< any other picture: each colour has its opacity; pure black is not drawn
};

struct Indexed {
  int width = 0;
  int height = 0;
  std::vector<PaletteEntry> palette;
  std::vector<std::uint8_t> pixels;  ///< top row first
  Ground ground = Ground::plate;
};

/// A background's palette says nothing about opacity; for showing, all that is drawn of it is opaque.
void make_opaque(Indexed& picture);

/// The picture in its best 256 colours, or fewer. Where black is not drawn, no drawn pixel is pure
/// black.
Indexed indexed(const Canvas& canvas, Ground ground, std::size_t most_colours = 256);

/// The picture in its own colours, for a bitmap without a palette: each pixel is opaque, or pure black
/// where that is not drawn.
Canvas full_colour(const Canvas& canvas, Ground ground);

}  // namespace artwork
