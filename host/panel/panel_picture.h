/// The picture of one panel window at any zoom, drawn again only where something has changed.
#pragma once

#include <optional>
#include <vector>

#include "host/drawing/painter.h"
#include "host/panel/cockpit.h"
#include "host/panel/dusk.h"

namespace host {

/// What lies under a pixel of a panel's picture.
struct PanelHit {
  CockpitGauge* gauge;
  PanelPoint point;  ///< in pixels of the gauge's background
};

/// Draws one window of a cockpit. The cockpit must outlive the picture.
class PanelPicture {
 public:
  /// `zoom` is canvas pixels per panel pixel; limited so that the canvas has a sensible size.
  PanelPicture(const Cockpit& cockpit, std::size_t window, double zoom);

  std::size_t window() const { return window_; }
  double zoom() const { return zoom_; }
  const Canvas& canvas() const { return day_ == full_day ? canvas_ : dark_; }

  /// Draws what the gauges show, `blend` 0 to 1 between their last two frames, and adds the places
  /// that changed to `changed`. Throws ConfigError when the window's background cannot be read.
  void draw(double blend, std::vector<Rect>& changed);

  /// Makes the next draw() draw every gauge.
  void invalidate();

  /// Outlines the click areas from the next draw() on.
  void mark_areas(bool marked);

  /// Whether any of its gauges has moved in the last frame, so that blending is worth while.
  bool moving() const;

  /// The gauge under a canvas pixel, the topmost one.
  std::optional<PanelHit> hit(int x, int y) const;

  /// A canvas pixel as a point of one gauge of this window, also outside the gauge.
  PanelPoint point_on(const CockpitGauge& gauge, int x, int y) const;

  /// The place of a gauge on the canvas; empty if the window does not have it.
  Rect place_of(const CockpitGauge& gauge) const;

 private:
  struct Item {
    CockpitGauge* gauge;
    Rect place;
    GaugePainter painter;
    std::optional<std::uint64_t> changes;  // of the gauge when it was last drawn at rest
    std::optional<SelfLit> lit;            // known from the first dusk on
  };
  struct Look {
    Face face;
    bool lit;
    bool operator==(const Look&) const = default;
  };

  const WindowConfig& config() const { return cockpit_.config().windows[window_]; }
  Look look() const;
  void draw_background(std::vector<Rect>& changed);
  static void invalidate(Item& item);
  void draw_item(std::size_t index, double blend, std::vector<Rect>& changed);
  void follow_the_day(std::vector<Rect>& changed);
  void darken_part(const Rect& part);
  void light(Item& item, const Rect& part);

  const Cockpit& cockpit_;
  std::size_t window_;
  double zoom_;
  Canvas canvas_;  ///< as it is seen by day, or with the panel lights on
  Canvas dark_;    ///< as it is seen in less of the day
  int day_ = full_day;
  std::optional<Look> look_;  ///< of the last drawing
  std::vector<Item> items_;
  bool areas_marked_ = false;
};

/// The point of a gauge's background that lies under a pixel of the place where it is drawn.
PanelPoint gauge_point(const Rect& place, PanelSize size, int x, int y);

/// Whether two rectangles share a pixel.
bool overlap(const Rect& a, const Rect& b);

}  // namespace host
