/// Buttons that open and close panel windows and windows of the host. They are not part of the
/// aircraft: none of them clicks.
#pragma once

#include "module/body.h"
#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {

template <u32 ident>
void open_panel() {
  open_window(ident);
}

template <u32 ident>
void close_panel() {
  close_window(ident);
}

template <u32 ident>
void toggle_panel() {
  toggle_window(ident);
}

/// From one pilot's panel to the other's, whichever of them is open.
template <u32 taken, u32 left>
void change_seat() {
  open_window(taken);
  close_window(left);
}

/// Opens and closes by the button's own memory: a window that was closed in another way is closed once
/// more before it opens again.
template <u32 ident, auto opened>
void open_or_close() {
  u32& is_open = variable<opened>();
  flip(is_open);
  is_open != 0 ? open_window(ident) : close_window(ident);
}

/// A button with a tooltip.
constexpr Area window_button(const char* tooltip, Box box, MouseRoutine routine) {
  return labelled(click(tooltip, box, routine));
}

}  // namespace tarnvale
