/// What panels have in common: the plate's part of shared switches, and the words beside them.
#pragma once

#include <string_view>

#include "resources/kit/canvas.h"

namespace artwork {

/// The room that a part's picture takes on its plate.
Box part_box(std::string_view gauge, int id, int nth = 0);

/// A painted plate with screws in its corners, with the fixed half of all shared parts of `gauge`:
/// washers under levers, seats under knobs, wells under guards.
void plate_of(const Canvas& canvas, std::string_view gauge);

/// The fixed half of the shared parts alone.
void fit_parts(const Canvas& canvas, std::string_view gauge);

/// Where the part's lever or knob turns, on the plate.
Point hub_of(std::string_view gauge, int id, int nth = 0);

/// The words beside a lever: on its left for a negative `aside`, else on its right.
struct LeverWords {
  std::string_view up = "ON";
  std::string_view down = "OFF";
  std::string_view centre = "";
  double aside = 11;
  double reach = 13;  ///< from the hub up and down to the words
};
void lever_words(const Canvas& canvas, Point hub, const LeverWords& words = {});

}  // namespace artwork
