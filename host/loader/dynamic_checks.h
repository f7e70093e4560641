/// Looks over the tables that tell the system's loader what to do with a library.
#pragma once

#include <string>

#include "host/loader/byte_view.h"

namespace host {

/// What is wrong with the dynamic tables of a library whose headers are sound, "its symbol table lies
/// outside of the library" for example; empty where nothing is. It looks at where the tables lie and at
/// what relocations are for, not at every entry.
std::string fault_of_dynamic_tables(Bytes library);

}  // namespace host
