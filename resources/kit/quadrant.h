/// The levers of the throttle pedestal as a pilot behind them sees them: each rises from its slot
/// toward the eye, so that its grip stands above its foot, the higher the further it is pushed.
#pragma once

#include <string_view>

#include "resources/kit/paint.h"

namespace artwork {

/// A lever's way in pixels of the picture or plate it is drawn in: foot and grip, pulled and pushed.
struct LeverTravel {
  double x;
  double foot_pulled, foot_pushed;
  double grip_pulled, grip_pushed;

  /// At 0 pulled, at 1 pushed.
  constexpr Point foot(double at) const { return {x, foot_pulled + at * (foot_pushed - foot_pulled)}; }
  constexpr Point grip(double at) const { return {x, grip_pulled + at * (grip_pushed - grip_pulled)}; }
  /// The same in a picture whose corner stands there on the plate.
  constexpr LeverTravel within(Point corner) const {
    return {x - corner.x, foot_pulled - corner.y, foot_pushed - corner.y, grip_pulled - corner.y,
            grip_pushed - corner.y};
  }
};

/// A dark slot between brushes in a steel frame, as long as the lever's foot needs.
void lever_slot(const Canvas& canvas, const LeverTravel& travel, double width);

/// Polished steel from its foot to its grip. Half widths.
void lever_arm(const Canvas& canvas, Point foot, Point grip, double at_foot, double at_grip);

/// The throttle of an engine: arm, index, ball, and the number let into its top.
void throttle_lever(const Canvas& canvas, const LeverTravel& travel, double at,
                    std::string_view number);

/// What of a throttle stays on the plate: a sunk field, the slot, and the scale that the index points
/// at.
void throttle_quadrant(const Canvas& canvas, const LeverTravel& travel);

/// A sunk field about a slot, so far to its left and right.
void slot_field(const Canvas& canvas, const LeverTravel& travel, double left, double right);

/// A black label riveted to the plate: a heading, and lines below it. Lines are parted by '\n'.
void placard(const Canvas& canvas, Box box, std::string_view heading, std::string_view lines);

}  // namespace artwork
