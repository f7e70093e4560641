/// What the host does for a module, as the table of C routines that the module calls.
#pragma once

#include <cstdint>

#include "interface/panel_interface.h"

namespace host {

/// Where the module's calls arrive.
class ServiceTarget {
 public:
  virtual ~ServiceTarget() = default;
  virtual double lookup(std::uint32_t token) = 0;
  virtual void key_event(std::uint32_t event, std::uint32_t value) = 0;
  virtual void open_window(std::uint32_t ident) = 0;
  virtual void close_window(std::uint32_t ident) = 0;
  virtual void toggle_window(std::uint32_t ident) = 0;
};

/// The one table. Its routines carry no context, so they reach the target set last; without one
/// they do nothing and every token reads 0. The element-list routines have nothing to do: this
/// host walks the element records itself.
const PanelServices& panel_services();

/// Makes `target` the running cockpit; null when it ends.
void set_service_target(ServiceTarget* target);

}  // namespace host
