/// The sound gauges have no face: the plate that both name is bare.
#include "resources/art.h"

namespace artwork::panels::msnd {

constexpr Art art[] = {plate(20, {})};

constinit Unit unit{"Msnd", art};

}  // namespace artwork::panels::msnd
