/// Drawing many bitmaps at once, and what an artist looks at: single pictures and whole gauges.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "interface/panel_interface.h"
#include "resources/bitmap_table.h"
#include "resources/tool/section.h"

namespace artwork {

/// The section of all bitmaps at one density, drawn on all processors.
Bytes drawn_section(const std::vector<Bitmap>& table, int density);

/// A host's view of an indexed picture.
Canvas shown(const Indexed& picture, int density);

/// Writes a canvas to `path`.
void write_png(const Canvas& canvas, const std::string& path);

/// How a composed gauge stands.
struct Pose {
  int image = 0;          ///< every icon shows this image, or its last
  double fraction = 0.5;  ///< of their scales that needles show
  bool boxes = false;     ///< outline the click boxes
};

/// A gauge put together from its records as a host would draw it by day.
Canvas composed(const std::vector<Bitmap>& table, const GaugeHeader& gauge, const Pose& pose,
                int density);

}  // namespace artwork
