#include "host/loader/record_checks.h"

#include <cctype>
#include <set>

namespace host {
namespace {

constexpr std::size_t longest_name = 63;

void check_imports(const ImportTableRecord& imports, const Inspector& place) {
  if (!place.writable(&imports, "the record")) return;
  const ImportEntry& services = imports.entries[0];
  if (services.identifier != IMPORT_PANEL_SERVICES)
    place.error("the first entry has identifier " + hex(services.identifier) + ", not " +
                hex(IMPORT_PANEL_SERVICES));
  const ImportEntry& end = imports.entries[1];
  if (end.identifier != 0 || end.pointer != nullptr) place.error("the table has no end");
  place.zero(services.reserved, "the first entry's reserved word");
}

void check_linkage(const LinkageRecord& linkage, const Inspector& place) {
  if (linkage.module_id != LINKAGE_MODULE_ID)
    place.error("the module identifier is " + hex(linkage.module_id) + ", not " +
                hex(LINKAGE_MODULE_ID));
  if (linkage.version != LINKAGE_VERSION)
    place.error("version " + hex(linkage.version) + " is not known; this host reads " +
                hex(LINKAGE_VERSION));
  place.callable_or_null(linkage.init, "the init routine");
  place.callable_or_null(linkage.deinit, "the deinit routine");
  place.zero(linkage.flags, "flags");
  place.zero(linkage.priority, "priority");
  place.zero(linkage.reserved, "the first reserved word");
  place.zero(linkage.reserved2, "the second reserved word");
}

void check_header_routines(const GaugeHeader& gauge, const Inspector& place) {
  place.callable(gauge.query, "the query routine");
  place.callable(gauge.install, "the install routine");
  place.callable(gauge.initialize, "the initialize routine");
  place.callable(gauge.update, "the update routine");
  place.callable(gauge.generate, "the generate routine");
  place.callable(gauge.draw, "the draw routine");
  place.callable(gauge.kill, "the kill routine");
  place.callable_or_null(gauge.service, "the service routine");
}

void check_header(const GaugeHeader& gauge, const Inspector& place) {
  check_header_routines(gauge, place);
  place.zero(gauge.reserved, "the first reserved word");
  place.zero(gauge.reserved2, "the second reserved word");
  place.zero(gauge.reserved3, "the third reserved word");
  place.zero(gauge.user_data, "the user data");
  if (gauge.width_mm == 0 || gauge.width_mm > 10000)
    place.warning("a width of " + std::to_string(gauge.width_mm) + " mm");
}

// A header of another version may be laid out differently: nothing more of it is read.
bool known_version(const GaugeHeader& gauge, const Inspector& place) {
  if (gauge.header_version == GAUGE_HEADER_VERSION) return true;
  place.error("header version " + hex(gauge.header_version) + " is not known; this host reads " +
              hex(GAUGE_HEADER_VERSION));
  return false;
}

std::string lower_case(std::string_view text) {
  std::string lower;
  for (const char c : text) lower += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return lower;
}

void check_gauge(const GaugeHeader* header, std::size_t index, std::set<std::string>& names,
                 const Inspector& file) {
  const Inspector unnamed = file.first(gauge_place(index, nullptr));
  if (!unnamed.readable(header, "the header")) return;
  const GaugeHeader& gauge = *header;
  if (!known_version(gauge, unnamed)) return;
  const bool named = unnamed.text(gauge.name, longest_name, "the name");
  const Inspector place = file.first(gauge_place(index, named ? gauge.name : nullptr));
  if (named && !names.insert(lower_case(gauge.name)).second)
    place.warning("an earlier gauge has the same name");
  check_header(gauge, place);
  check_elements(gauge, place);
  check_mouse_areas(gauge.mouse_areas, place);
}

}  // namespace

std::string gauge_place(std::size_t index, const char* name) {
  const std::string number = "gauge " + std::to_string(index + 1);
  return name == nullptr ? number : number + " (" + name + ")";
}

void check_records(const LinkageRecord& linkage, const ImportTableRecord& imports,
                   const Inspector& file) {
  check_imports(imports, file.first("ImportTable"));
  const Inspector place = file.first("Linkage");
  if (!place.readable(&linkage, "the record")) return;
  check_linkage(linkage, place);
  if (linkage.version != LINKAGE_VERSION) return;
  if (linkage.gauges[0] == nullptr) place.error("it lists no gauge");
  if (linkage.gauges[LINKAGE_GAUGE_COUNT] != nullptr) place.error("the gauge table has no end");
  std::set<std::string> names;
  for (std::size_t i = 0; i < LINKAGE_GAUGE_COUNT && linkage.gauges[i] != nullptr; ++i)
    check_gauge(linkage.gauges[i], i, names, file);
}

}  // namespace host
