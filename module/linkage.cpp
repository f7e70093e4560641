/// The two records that the library exports: through them the host finds the gauges, and the gauges
/// their host.
#include "module/catalogue.h"
#include "module/host.h"

#if defined(_WIN32)
#define EXPORTED  // by the definition file, which gives the ordinals too
#else
#define EXPORTED __attribute__((visibility("default")))
#endif

namespace tarnvale {
namespace {

void nothing_to_do() {}

/// The host fills in the pointer.
constexpr ImportTableRecord empty_import_table() {
  ImportTableRecord table{};
  table.entries[0].identifier = IMPORT_PANEL_SERVICES;
  return table;
}

}  // namespace
}  // namespace tarnvale

extern "C" {

EXPORTED constinit ImportTableRecord ImportTable = tarnvale::empty_import_table();

extern EXPORTED const LinkageRecord Linkage;
constinit const LinkageRecord Linkage{
    LINKAGE_MODULE_ID,
    0,
    tarnvale::nothing_to_do,
    tarnvale::nothing_to_do,
    0,
    0,
    LINKAGE_VERSION,
    0,
    {
#define GAUGE(gauge) &tarnvale::gauge.header,
#include "module/catalogue.inc"
#undef GAUGE
        nullptr,
    },
};

}  // extern "C"
