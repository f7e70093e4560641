/// The checks of every record that a loaded module publishes. They read only, and call nothing.
#pragma once

#include "host/loader/inspector.h"
#include "host/loader/module_bitmaps.h"
#include "interface/panel_interface.h"

namespace host {

/// The two exported records and all gauges. `file` is bound to the module's file.
void check_records(const LinkageRecord& linkage, const ImportTableRecord& imports,
                   const Inspector& file);

/// One gauge's elements, from the root on.
void check_elements(const GaugeHeader& gauge, const Inspector& place);

/// One element without those below it.
void check_element(const Element& element, const GaugeHeader& gauge, const Inspector& place);

/// One gauge's mouse areas: the table's form, and what its entries point to.
void check_mouse_areas(const MouseArea* areas, const Inspector& place);

/// Images that elements ask for and the module lacks, and click boxes outside their background. The
/// records must be free of errors.
void check_artwork(const GaugeHeader& gauge, const ModuleBitmaps& bitmaps, const Inspector& place);

/// How findings name a gauge: "gauge 12 (Acdc)".
std::string gauge_place(std::size_t index, const char* name);

}  // namespace host
