/// What the gauges ask of the host. Every call goes through the table that the host stores in
/// ImportTable when it loads the module; no call reports anything back.
#pragma once

#include "module/tokens.h"

/// Exported: the host stores the address of its services here. Called before that, the module may
/// only be read.
extern "C" ImportTableRecord ImportTable;

namespace tarnvale {

inline const PanelServices& services() {
  return *static_cast<const PanelServices*>(ImportTable.entries[0].pointer);
}

/// The current value of a host token variable; any double.
inline f64 read(u32 token) {
  TokenVariable variable{token, 0, 0.0};
  services().lookup_var(&variable);
  return variable.value;
}

/// Sends a host key event. The host applies it at once.
inline void send(u32 event, u32 value = 0) { services().trigger_key_event(event, value); }

inline void open_window(u32 ident) { services().panel_window_open_ident(ident); }
inline void close_window(u32 ident) { services().panel_window_close_ident(ident); }
inline void toggle_window(u32 ident) { services().panel_window_toggle(ident); }

}  // namespace tarnvale
