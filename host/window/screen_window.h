/// A window of the desktop with a picture in memory: only what changed goes to the screen.
#pragma once

#include <SDL.h>

#include <memory>
#include <string>
#include <vector>

#include "host/drawing/painter.h"
#include "host/window/desk.h"

namespace host {

/// Opens the desktop's window system and closes it again. Throws std::runtime_error when there is
/// no display.
class Desktop {
 public:
  Desktop();
  ~Desktop();
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;

  /// Windows that close from now on stay in sight until others of the same titles take their place:
  /// between two flights nothing flickers. clear() closes those that none has taken.
  void keep_windows() { keeping_ = true; }
  void clear();

  /// What texts and borders are scaled by on this desktop, pixel density of its windows aside.
  static double scale();

  /// The room for a window on the first screen, in the desktop's units.
  static PanelSize usable_size();

 private:
  friend class ScreenWindow;
  bool keeping_ = false;
  std::vector<SDL_Window*> kept_;
};

/// One window. All sizes and places are pixels.
class ScreenWindow {
 public:
  /// Opens it there, moved and made smaller where no screen has room for it; or takes a kept one of
  /// that title as it stands. Only while the desktop is open.
  ScreenWindow(const std::string& title, const WindowPlace& place);

  Uint32 id() const { return SDL_GetWindowID(window_.get()); }
  PanelSize size() const { return {canvas_.width, canvas_.height}; }

  /// Pixels per unit of the desktop: above 1 on dense displays of systems that count in points.
  double density() const;

  /// The pixel at a place that an event tells in the desktop's units; outside of the window, too.
  PanelPoint pixel_at(int x, int y) const;

  /// Takes the window's present size. Returns whether it has changed.
  bool take_size();

  void set_full_screen(bool full);
  bool is_full_screen() const;

  /// Where it stands, or would stand if it did not fill the screen.
  WindowPlace place() const;

  /// Brings it to the front and gives it the keyboard.
  void raise();

  /// What the window shows; present() brings the changed parts to the screen.
  Canvas& canvas() { return canvas_; }
  const Canvas& canvas() const { return canvas_; }
  void present(const std::vector<Rect>& changed);

 private:
  struct Close {
    void operator()(SDL_Window* window) const;
  };

  void fill_screen(bool full);

  std::unique_ptr<SDL_Window, Close> window_;
  WindowPlace before_full_;
  Canvas canvas_;
};

}  // namespace host
