#include "resources/units.h"

// The build lists the files of `panels/`.
#define UNIT(name)                  \
  namespace artwork::panels::name { \
  extern Unit unit;                 \
  }
#include "units.inc"
#undef UNIT

namespace artwork {

std::span<const NamedUnit> units() {
  static const NamedUnit all[] = {
#define UNIT(name) {#name, panels::name::unit},
#include "units.inc"
#undef UNIT
  };
  return all;
}

}  // namespace artwork
