/// Every bitmap of the module: its number, its size, and the row that draws it.
#pragma once

#include <limits>
#include <string>
#include <vector>

#include "resources/art.h"
#include "resources/kit/canvas.h"
#include "resources/units.h"

namespace artwork {

struct Bitmap {
  /// Of those that have a name: greater than any number.
  static constexpr int named = std::numeric_limits<int>::max();

  int id;
  int image;  ///< of its run
  Size size;
  const Unit* unit;
  const Art* art;
  bool background;       ///< all others have transparent parts
  bool overlay = false;  ///< of the plate's instrument lighting

  int bits() const { return overlay ? 8 : art->bits; }  ///< a pixel
};

/// All bitmaps, ascending by number, then those with names. Ends the program where rows and records do
/// not agree.
const std::vector<Bitmap>& bitmap_table();

/// The bitmap of that number; null if there is none.
const Bitmap* find_bitmap(int id);

/// What it shows, for lists and messages.
std::string subject(const Bitmap& bitmap);

/// Whether sprites show through a background.
bool has_openings(const Bitmap& bitmap);

/// The gauge to which a unit's rows belong; null for what gauges share.
const GaugeHeader* gauge_of(const Unit& unit);

/// The picture of one bitmap at `density` device pixels to a gauge pixel.
Canvas drawn(const Bitmap& bitmap, int density);

}  // namespace artwork
