/// Draws gauges into a picture in memory. The window, the PNG files and the tests use this code
/// alone.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "host/gauge/element_state.h"
#include "host/loader/bitmap.h"
#include "interface/panel_interface.h"

namespace host {

/// A rectangle of whole target pixels.
struct Rect {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
  bool operator==(const Rect&) const = default;
};

/// A picture that is drawn on: opaque 0xFFRRGGBB pixels, top row first.
struct Canvas {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> pixels;
  Canvas() = default;
  Canvas(int columns, int rows)
      : width(columns), height(rows), pixels(std::size_t(columns) * rows, 0xFF000000u) {}
};

/// Draws one gauge at one place of a canvas, again only when something it shows has changed.
class GaugePainter {
 public:
  /// `place` is where the whole background goes, in canvas pixels; the gauge is scaled to it.
  GaugePainter(const GaugeHeader& gauge, const BitmapStore& bitmaps, Rect place);
  ~GaugePainter();
  GaugePainter(GaugePainter&&) noexcept;
  GaugePainter& operator=(GaugePainter&&) noexcept;

  Rect place() const;

  /// Draws what the gauge shows between two frames: `blend` 0 is `before`, 1 is `now`. Only moving
  /// parts are blended; icons and texts always show `now`. Returns false, with the canvas
  /// untouched, when the picture would be the same as at the last call.
  bool draw(Canvas& canvas, std::span<const ElementState> before, std::span<const ElementState> now,
            double blend);

  /// Whether the cockpit is seen by night from the next draw() on: what does not shine by itself dims.
  void set_night(bool night);

  /// Makes the next draw() draw in any case.
  void invalidate();

 private:
  struct Layers;
  std::unique_ptr<Layers> layers_;
};

/// The size of a gauge in pixels of its own background; {0, 0} if the background is missing.
PanelSize gauge_size(const GaugeHeader& gauge, const BitmapStore& bitmaps);

/// Writes a canvas as a PNG file; if that fails, what stood there stays. Throws std::runtime_error that names the file.
void write_png(const Canvas& canvas, const std::string& file);

}  // namespace host
