/// A gauge's elements in the order in which the host takes and draws them.
#pragma once

#include <vector>

#include "interface/panel_interface.h"

namespace host {

/// One element and how far its own chain reaches.
struct ChainLink {
  Element* element;
  std::size_t end;  ///< the first link that does not hang below this one
};

/// The most elements that one gauge may have.
inline constexpr std::size_t longest_chain = 4096;

/// Every element once, each before those that are drawn over it. Lists must have been checked;
/// elements past longest_chain are left out.
std::vector<ChainLink> element_chain(const GaugeHeader& gauge);

}  // namespace host
