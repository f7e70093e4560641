/// A desktop window with panels in it.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "host/outside/outside_view.h"
#include "host/pages/checklist_progress.h"
#include "host/panel/layout.h"
#include "host/panel/panel_picture.h"
#include "host/window/screen_window.h"
#include "host/window/ui_pictures.h"

namespace host {

/// What the program lays over the panels, from the lowest to the topmost.
enum class Layer { mark, page, badge, zoom, note, tooltip, controls, help, menu, count };

/// What a notch of the wheel, or a key, multiplies the zoom by.
inline constexpr double zoom_notch = 1.125;

/// The key that shows a panel; empty for none.
std::string panel_key(const WindowConfig& window);

/// What lies under a pixel of a view.
struct ViewHit {
  std::size_t window;  ///< of the cockpit
  CaptionPart caption = CaptionPart::none;
  bool on_caption = false;
  std::optional<PanelHit> gauge;
};

/// Shows some of a cockpit's windows: the main view those in work, side by side below a strip with a
/// tab for every one that is open; a torn-off view one, without a strip and as large as its window.
///
/// Whatever happens to it, what it shows changes in settle() alone: until then a pixel still hits what
/// is seen there.
class View {
 public:
  enum class Kind { main, torn };

  /// `scale` is the desktop's.
  View(const Cockpit& cockpit, Kind kind, const std::string& title, const WindowPlace& place,
       double scale);

  ScreenWindow& screen() { return screen_; }
  const ScreenWindow& screen() const { return screen_; }
  double scale() const { return scale_ * screen_.density(); }

  /// Shows these windows, in this order, and a tab for each of `tabs`.
  void show(std::vector<std::size_t> windows, std::vector<std::size_t> tabs = {});

  /// Whether one more window can stand beside these without making anything smaller.
  bool has_room_beside(std::vector<std::size_t> windows, std::size_t more) const;

  /// Screen pixels per panel pixel; empty: as large as fits.
  void set_zoom(std::optional<double> zoom);
  double zoom() const { return zoom_.value_or(layout_.zoom); }
  std::optional<double> chosen_zoom() const { return zoom_; }

  /// Changes the zoom and leaves what lies under a pixel where it is, as far as the window's edges let
  /// it.
  void zoom_by(double factor, std::optional<PanelPoint> at);

  /// Moves the panels under the window where they do not all fit.
  void scroll(int dx, int dy);

  /// Takes a new size of the desktop's window at the next settle().
  void take_size() { layout_old_ = true; }

  /// Takes on everything that was asked of it since the last call. Returns whether its size has
  /// changed.
  bool settle();

  /// Everything is drawn and presented again with the next refresh.
  void invalidate() { all_changed_ = true; }

  void mark_areas(bool marked);

  /// Outlines a control wherever this view shows it, and brings it into sight.
  void point_at(const std::optional<Target>& target);

  /// Keeps so many pixels at the right end free of panels.
  void keep_free(int width);

  void set_scale(double scale);

  /// A picture at the right end of the strip of tabs; what of it lies at a pixel; the strip's width.
  void set_strip_end(std::optional<Overlay> picture);
  std::optional<PanelPoint> on_strip_end(int x, int y) const;
  int strip_width() const { return screen_.size().width - kept_free_; }

  /// Lays a picture over the panels, or takes it away.
  void set_layer(Layer layer, std::optional<Overlay> overlay);

  /// Whether a gauge in it has moved in the last frame.
  bool moving() const;

  /// Whether the view out of the window is wanted above the captain's panel, and whether it stands
  /// there: it does where that panel is shown and there is room.
  void want_outside(bool wanted);
  bool wants_outside() const { return outside_wanted_; }
  bool shows_outside() const { return outside_.height > 0; }
  /// Whether the last refresh() found it changed.
  bool outside_moves() const { return outside_moves_; }

  /// Draws and presents what has changed. `sight` is what the captain sees now; empty: as before.
  /// Returns whether anything had changed.
  bool refresh(double blend, const std::optional<outside::Sight>& sight);

  /// What it shows, without what the program lays over it.
  Canvas picture() const;

  std::optional<ViewHit> hit(int x, int y) const;

  /// Whether a note, a badge, the menu, or the page of help or of controls lies over the pixel.
  bool is_covered(int x, int y) const;

  /// A pixel of the view as a point of a gauge of one of its windows.
  PanelPoint point_on(std::size_t window, const CockpitGauge& gauge, int x, int y) const;

 private:
  struct Panel {
    PanelPicture picture;
    Rect place;  ///< in the layout
  };
  struct Tab {
    std::size_t window;
    Overlay picture;
  };
  struct Anchor {
    std::size_t window;
    double right, down;  ///< of the panel's width and height
    PanelPoint at;       ///< of the view
  };

  void relayout();
  Rect strip() const;
  void place_tabs();
  void keep_anchor();
  LayoutArea area() const;
  void make_room_outside(const std::vector<PanelSize>& sizes, LayoutArea& area);
  void draw_outside(const std::optional<outside::Sight>& sight);
  void limit_scroll();
  std::optional<Rect> place_of(const Target& target) const;
  void place_mark();
  Rect on_screen(const Rect& rect) const;
  void draw_panels(double blend);
  void change(const Rect& rect);
  void compose(Canvas& canvas, const Rect& rect) const;

  const Cockpit& cockpit_;
  Kind kind_;
  double scale_;
  ScreenWindow screen_;
  std::vector<std::size_t> windows_;      ///< to show from the next settle() on
  std::vector<std::size_t> tab_windows_;  ///< likewise
  std::optional<double> zoom_;
  Layout layout_;
  PanelPoint scroll_{};
  std::vector<Panel> panels_;
  std::vector<Tab> tabs_;
  std::optional<Overlay> strip_end_;
  std::optional<Anchor> anchor_;  ///< of a change of zoom
  bool outside_wanted_ = false;
  Rect outside_;  ///< of the screen; empty where the view does not stand
  Canvas outside_picture_;
  outside::Sight sight_;  ///< that was drawn last
  bool outside_moves_ = false;
  outside::OutsideView outside_view_;
  std::array<std::optional<Overlay>, static_cast<std::size_t>(Layer::count)> layers_;
  std::optional<Target> target_;
  Rect marked_{};  ///< of the screen; empty: nothing
  int kept_free_ = 0;
  std::vector<Rect> changed_;
  bool layout_old_ = true;
  bool strip_old_ = false;
  bool all_changed_ = true;
  bool areas_marked_ = false;
};

}  // namespace host
