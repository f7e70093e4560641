/// A person's mouse in the views: works the controls, the captions and the scrolling.
#pragma once

#include <SDL.h>

#include <optional>

#include "host/inputs/cockpit_inputs.h"
#include "host/panel/hints.h"
#include "host/window/cursors.h"
#include "host/window/views.h"

namespace host {

class MouseHand {
 public:
  MouseHand(CockpitInputs& inputs, Views& views, double scale);

  /// One mouse event of the desktop. `now` is real seconds, for tooltips.
  void take(const SDL_Event& event, double now);

  /// Shows the hand: under the pointer is something to click that is no panel's.
  void show_arrow() { cursors_.show(CURSOR_ARROW); }

  void set_scale(double scale) { cursors_.set_scale(scale); }

  void show_hand() { cursors_.show(CURSOR_HAND); }

  /// Turns the wheel of an event into zoom, about the pointer.
  void zoom(const SDL_MouseWheelEvent& event);

  /// Whether controls are looked at and not worked.
  void look_only(bool only);

  /// Where the pointer is, if it is in that view.
  std::optional<PanelPoint> place_in(const View& view) const;

  /// Shows a tooltip when its time has come.
  void tick(double now);

  /// When tick() has something to do next; infinite if nothing.
  double next_tick() const;

  /// Lets go of what it holds and forgets where it is: its view may be gone.
  void reset();

  /// The panel under the pointer.
  std::optional<std::size_t> window_under() const;

 private:
  struct Held {
    CockpitGauge* gauge;
    std::size_t window;
    std::uint32_t button;
  };

  View* view_of(Uint32 id, int x, int y);
  std::optional<ViewHit> hit() const;
  void move(int dx, int dy, double now);
  void press(Uint8 button, int clicks);
  void press_control(const ViewHit& hit, std::uint32_t button);
  void release(Uint8 button);
  void let_go();
  void wheel(const SDL_MouseWheelEvent& event);
  void scroll(const SDL_MouseWheelEvent& event);
  void press_caption(const ViewHit& hit, int clicks);
  void look(double now);
  void hide_tooltip();
  void show_hint(const Hint& hint);

  CockpitInputs& inputs_;
  Views& views_;
  Cursors cursors_;
  std::optional<Held> held_;
  bool scrolling_ = false;
  bool look_only_ = false;
  Uint32 view_id_ = 0;  ///< 0: outside of every view
  int x_ = 0;           ///< pixels of that view
  int y_ = 0;
  Hint tooltip_;
  double tooltip_due_ = Pointer::never;
  bool tooltip_shown_ = false;
};

}  // namespace host
