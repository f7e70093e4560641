/// Toggle levers: a washer and nut on the plate, a bat-shaped handle in the nut.
#pragma once

#include "resources/kit/paint.h"
#include "resources/kit/styles.h"

namespace artwork {

/// On the plate, behind a lever: the lock washer in its polished ring.
void lever_mount(const Canvas& canvas, Point hub, double radius = 8.6);

/// The hexagon nut with its bushing. Part of every lever image, so that each stands for itself.
void lever_nut(const Canvas& canvas, Point hub, double radius);

/// A handle of `reach` gauge pixels from the hub to the middle of its ball, thrown up or down, or
/// seen from its end when centred.
void lever_handle(const Canvas& canvas, Point hub, double reach, Throw thrown, double ball = 3.3);

}  // namespace artwork
