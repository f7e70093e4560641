/// Every bitmap of the module: its number, what it shows, its size and how it is drawn.
#pragma once

#include <vector>

#include "resources/art.h"

namespace artwork {

struct Bitmap {
  int id;
  Size size;
  bool background;  ///< opaque; all others have transparent parts
  DrawRoutine draw;
  int image;  ///< of its run
  std::string_view shows;
};

/// All bitmaps, ascending by id. Plates whose art is still to come are plain.
std::vector<Bitmap> bitmap_table();

/// The picture of one bitmap at `density` device pixels to a gauge pixel.
Canvas drawn(const Bitmap& bitmap, int density);

}  // namespace artwork
