/// Plates whose art is still to come: painted metal of their final size, so that panels can be laid out
/// around them. A gauge that gets a unit in `panels/` leaves this table.
#pragma once

#include <span>
#include <string_view>

namespace artwork {

struct PlainPlate {
  std::string_view gauge;
  int height;  ///< as its controls will need it; its width is the gauge's
};

std::span<const PlainPlate> plain_plates();

}  // namespace artwork
