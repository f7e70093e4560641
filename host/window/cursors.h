/// The shapes of the pointer.
#pragma once

#include <SDL.h>

#include <map>
#include <memory>

namespace host {

/// Shows the cursor that a click area asks for. Only while the desktop is open.
class Cursors {
 public:
  explicit Cursors(double scale) : scale_(scale) {}

  /// One of enum MouseCursor; anything else shows the arrow.
  void show(int cursor);

  void set_scale(double scale);

 private:
  struct Free {
    void operator()(SDL_Cursor* cursor) const { SDL_FreeCursor(cursor); }
  };
  using Handle = std::unique_ptr<SDL_Cursor, Free>;

  Handle make(int cursor) const;

  double scale_;
  int shown_ = 0;
  std::map<int, Handle> made_;
};

}  // namespace host
