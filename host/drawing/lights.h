/// Which parts of a gauge shine by night.
#pragma once

#include <vector>

#include "host/drawing/pictures.h"
#include "host/loader/element_chain.h"

namespace host {

/// Under what light the still picture of each element of a gauge is seen by night. A lit copy says of all its
/// elements that they shine. The first set knows better which are lamps: of the others, what a hand works is
/// as dark as the plate that it stands on, while figures and flags are behind lit glass.
std::vector<Light> lights_at_night(const GaugeHeader& gauge, const std::vector<ChainLink>& chain,
                                   const Pictures& pictures);

}  // namespace host
