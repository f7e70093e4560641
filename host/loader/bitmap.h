/// Pictures as the drawing code takes them, and the store that hands them out.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "interface/panel_interface.h"

namespace host {

/// A picture in memory: premultiplied ARGB32 in native byte order, top row first, no row padding.
struct Bitmap {
  int width = 0;
  int height = 0;
  bool opaque = false;  ///< every pixel has full opacity
  bool empty = false;   ///< no pixel shows anything
  std::vector<std::uint32_t> pixels;
};

/// How a bitmap is used decides what its black pixels mean.
enum class BitmapUse {
  background,  ///< a static image: every pixel is drawn
  image,       ///< any other: pure black is not drawn, palette opacities count
};

/// The bitmaps of one module and of the denser artwork that lies beside it.
class BitmapStore {
 public:
  virtual ~BitmapStore() = default;

  /// The module's own size of the bitmap `id`; {0, 0} if there is none.
  virtual PanelSize size(std::uint32_t id) const = 0;

  /// Whether there is one at `density` times the module's own pixels (1, 2 or 3).
  virtual bool has(std::uint32_t id, int density) const = 0;

  /// That one; null if there is none. It is made anew when nobody holds it any more: a cockpit has far
  /// more pixels than a screen.
  virtual std::shared_ptr<const Bitmap> find(std::uint32_t id, BitmapUse use,
                                             int density = 1) const = 0;

  /// The densities for which there are bitmaps, ascending; the first is always 1.
  virtual std::vector<int> densities() const = 0;
};

}  // namespace host
