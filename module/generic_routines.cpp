#include "module/catalogue.h"
#include "module/host.h"

namespace tarnvale {
namespace {

const Element* first_root() { return msnd.header.element_list[0]; }

}  // namespace

void query_elements() { services().element_list_query(first_root()); }
void install_elements(uintptr_t argument) { services().element_list_install(first_root(), argument); }
void initialize_elements() { services().element_list_initialize(first_root()); }
void update_elements() { services().element_list_update(first_root()); }
void generate_elements(uintptr_t argument) { services().element_list_generate(first_root(), argument); }
void draw_elements() { services().element_list_plot(first_root()); }
void kill_elements() { services().element_list_kill(first_root()); }

}  // namespace tarnvale
