#include "module/controls.h"

namespace tarnvale {

void mirror(u32 token, u32& flag) { flag = whole_u32(read(token)) == 1; }

}  // namespace tarnvale
