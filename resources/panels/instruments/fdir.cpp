/// Flight director switch.
#include "resources/art.h"

namespace artwork::panels::fdir {

constexpr Item items[] = {
    Legend{middle(5.6), "ON", 6.5},
    Legend{middle(53), "FLT DIR", 6},
};

constexpr Art art[] = {plate(58, items)};

constinit Unit unit{"Fdir", art};

}  // namespace artwork::panels::fdir
