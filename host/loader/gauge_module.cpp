#include "host/loader/gauge_module.h"

#include <strings.h>

#include <algorithm>

#include "host/loader/open_module.h"

namespace host {
namespace {

// The first error; a check of the module lists the others.
std::string first_error(const std::vector<Finding>& findings) {
  std::string first;
  std::size_t more = 0;
  for (const Finding& finding : findings) {
    if (finding.severity != Finding::Severity::error) continue;
    first.empty() ? void(first = finding.message) : void(++more);
  }
  return more == 0 ? first : first + ", and " + std::to_string(more) + " more; see: tarnvale check";
}

}  // namespace

struct GaugeModule::Library : OpenModule {
  using OpenModule::OpenModule;
};

GaugeModule::GaugeModule(const std::filesystem::path& file)
    : library_(std::make_unique<Library>(file)) {
  if (has_errors(library_->findings())) throw LoadError(first_error(library_->findings()));
  if (!library_->loaded())
    throw LoadError(file.string() +
                    ": is a library for Windows, which can be checked here, but not run");
}

GaugeModule::~GaugeModule() = default;

const std::filesystem::path& GaugeModule::file() const { return library_->file(); }

std::span<const GaugeHeader* const> GaugeModule::gauges() const {
  const auto* gauges = library_->linkage().gauges;
  return {gauges,
          static_cast<std::size_t>(std::find(gauges, gauges + LINKAGE_GAUGE_COUNT, nullptr) - gauges)};
}

const GaugeHeader* GaugeModule::find(std::string_view name) const {
  const std::string wanted(name);
  for (const GaugeHeader* gauge : gauges())
    if (::strcasecmp(gauge->name, wanted.c_str()) == 0) return gauge;
  return nullptr;
}

const BitmapStore& GaugeModule::bitmaps() const { return library_->bitmaps(); }

std::vector<std::string> GaugeModule::artwork_notes() const {
  constexpr const char* outcome = "; pictures are coarser at a zoom above 1";
  std::vector<std::string> notes = library_->bitmaps().dense_faults();
  const bool none = notes.empty() && bitmaps().densities().size() == 1;
  if (none) notes.push_back(file().string() + ".2x and .3x: no dense artwork");
  for (std::string& note : notes) note += outcome;
  return notes;
}

const std::vector<Finding>& GaugeModule::warnings() const { return library_->findings(); }

void GaugeModule::connect(const PanelServices& services) { library_->connect(services); }

std::uintptr_t GaugeModule::handle() const { return library_->handle(); }

}  // namespace host
