#include "resources/panels/panels.h"

namespace artwork {

std::vector<std::span<const Art>> all_art() {
  return {
#define ART(unit) unit,
#include "resources/panels/panels.inc"
#undef ART
  };
}

}  // namespace artwork
