#include "tests/windows/library.h"

#include <cstdio>
#include <cstdlib>

#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace {

[[noreturn]] void give_up(const std::string& what) {
  std::fprintf(stderr, "%s\n", what.c_str());
  std::exit(1);
}

#ifdef _WIN32
void* open_library(const std::string& file) { return LoadLibraryA(file.c_str()); }

void* symbol(void* library, const char* name) {
  return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(library), name));
}
#else
void* open_library(const std::string& file) { return dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL); }

void* symbol(void* library, const char* name) { return dlsym(library, name); }
#endif

}  // namespace

Library::Library(const std::string& file) {
  void* library = open_library(file);
  if (library == nullptr) give_up(file + " cannot be loaded");
  handle = reinterpret_cast<uintptr_t>(library);
  imports = static_cast<ImportTableRecord*>(symbol(library, "ImportTable"));
  linkage = static_cast<const LinkageRecord*>(symbol(library, "Linkage"));
  if (imports == nullptr || linkage == nullptr) give_up(file + " lacks an export");
}

const GaugeHeader& Library::gauge(const std::string& name) const {
  for (const GaugeHeader* const* gauge = linkage->gauges; *gauge != nullptr; ++gauge)
    if (name == (*gauge)->name) return **gauge;
  give_up("no gauge " + name);
}

std::vector<Element*> chain_of(const GaugeHeader& gauge) {
  std::vector<Element*> chain;
  for (Element* e = gauge.element_list[0]; e != nullptr; e = e->next ? e->next[0] : nullptr)
    chain.push_back(e);
  return chain;
}

std::vector<const MouseArea*> click_areas_of(const GaugeHeader& gauge) {
  std::vector<const MouseArea*> areas;
  for (const MouseArea* area = gauge.mouse_areas; area->kind != MOUSE_END; ++area)
    if (area->kind == MOUSE_CLICK_AREA) areas.push_back(area);
  return areas;
}
