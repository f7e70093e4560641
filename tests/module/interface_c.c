/* The interface header stands alone in C11; its layout checks run while this compiles. */
#include "interface/panel_interface.h"

u32 interface_c_version(void) { return GAUGE_HEADER_VERSION; }
