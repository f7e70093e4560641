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

}  // namespace
}  // namespace tarnvale

extern "C" {

EXPORTED constinit ImportTableRecord ImportTable{{{IMPORT_PANEL_SERVICES, 0, nullptr}, {}}};

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
#define GAUGE(gauge, elements, click_areas) &tarnvale::gauge.header,
#include "module/catalogue.inc"
#undef GAUGE
        nullptr,
    },
};

}  // extern "C"
