/// Navigation receiver 2: the twin of receiver 1's head.
#include "resources/panels/radios/pedestal_nav.h"

namespace artwork::panels::vhf2nav {

constexpr auto items = radios::pedestal_nav("NAV 2");
constexpr Art art[] = {plate(110, items)};
constinit Unit unit{"Vhf2nav", art};

}  // namespace artwork::panels::vhf2nav
