/// A gauge module as a host finds it: through its two exports and nothing else.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "interface/panel_interface.h"

/// The file opened by the system's own loader. It stays open to the end of the program.
struct Library {
  explicit Library(const std::string& file);  ///< ends the program if it cannot be loaded

  uintptr_t handle;  ///< what goes into the extra data of SERVICE_BEGIN
  ImportTableRecord* imports;
  const LinkageRecord* linkage;

  const GaugeHeader& gauge(const std::string& name) const;
};

/// A gauge's elements from the background on.
std::vector<Element*> chain_of(const GaugeHeader& gauge);

/// A gauge's click areas, in the order of its table.
std::vector<const MouseArea*> click_areas_of(const GaugeHeader& gauge);
