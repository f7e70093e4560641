#include "host/panel/services.h"

namespace host {
namespace {

ServiceTarget* running = nullptr;

void ignore_list(const Element*) {}
void ignore_list_argument(const Element*, std::uintptr_t) {}

void toggle_window(u32 ident) {
  if (running) running->toggle_window(ident);
}
void open_window(u32 ident) {
  if (running) running->open_window(ident);
}
void close_window(u32 ident) {
  if (running) running->close_window(ident);
}
void trigger_key_event(u32 event, u32 value) {
  if (running) running->key_event(event, value);
}
void lookup_var(TokenVariable* variable) {
  if (variable) variable->value = running ? running->lookup(variable->token) : 0.0;
}

constexpr PanelServices table{
    .element_list_query = ignore_list,
    .element_list_install = ignore_list_argument,
    .element_list_initialize = ignore_list,
    .element_list_update = ignore_list,
    .element_list_generate = ignore_list_argument,
    .element_list_plot = ignore_list,
    .element_list_kill = ignore_list,
    .panel_window_toggle = toggle_window,
    .trigger_key_event = trigger_key_event,
    .lookup_var = lookup_var,
    .panel_window_close_ident = close_window,
    .panel_window_open_ident = open_window,
};

}  // namespace

const PanelServices& panel_services() { return table; }

void set_service_target(ServiceTarget* target) { running = target; }

}  // namespace host
