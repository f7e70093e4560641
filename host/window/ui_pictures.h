/// What the program itself shows beside the panels. `scale` is 1 at 96 dots an inch.
#pragma once

#include <string>
#include <vector>

#include "host/drawing/painter.h"
#include "host/hands/sticks.h"
#include "host/panel/hints.h"
#include "host/sketch/sketch.h"

namespace host {

/// The height of a caption in pixels.
int caption_height(double scale);

/// What a point of a caption does.
enum class CaptionPart { none, tear, close };

/// A panel's tab: its title, the key that opens it, and two buttons at the right end. `in_work`: it is
/// one of those that are shown.
Overlay draw_caption(const std::string& title, const std::string& key, int width, double scale,
                     bool in_work);

/// The width that a tab likes to have.
double caption_width(const std::string& title, const std::string& key, double scale);

/// The button under a point of a caption of that width.
CaptionPart caption_part(int x, int width, double scale);

/// A hint beside the pointer: what stands before a colon is its heading. A refusal is in amber.
Overlay draw_tooltip(const Hint& hint, double scale);

/// Messages, one a line, wrapped to at most `width` pixels; a badge is larger and stands alone.
Overlay draw_note(const std::string& text, int width, double scale);
Overlay draw_badge(const std::string& text, double scale);

/// The page with all keys; smaller where `width` and `height` leave less room.
Overlay draw_help(int width, int height, double scale);

/// What the page of controls shows.
struct ControlsState {
  const ControlMap& map;
  const Hands& hands;
  const std::vector<StickState>& sticks;
  const simulation::FlightControls& controls;
};

/// The page that shows live where the aircraft's controls stand, and what keys and joysticks do.
Overlay draw_controls_page(const ControlsState& state, int width, int height, double scale);

/// The frame around a control that is pointed at, which stands at `place`.
Overlay draw_mark(const Rect& place, double scale);

/// A pointer with a plus or a minus, for areas that turn a value up or down. Square.
Overlay draw_turn_cursor(bool increase, double scale);

/// The program's icon: a small dial.
Overlay draw_icon(int size);

}  // namespace host
