#include "host/loader/gauge_module.h"

#include <strings.h>

#include <algorithm>

#include "host/loader/open_module.h"

namespace host {
namespace {

constexpr std::size_t most_lines = 20;

// Errors only, a line each; what comes after the first screenful is counted.
std::string error_lines(const std::vector<Finding>& findings) {
  std::string lines;
  std::size_t count = 0;
  for (const Finding& finding : findings) {
    if (finding.severity != Finding::Severity::error || ++count > most_lines) continue;
    lines += (lines.empty() ? "" : "\n") + finding.message;
  }
  if (count > most_lines) lines += "\nand " + std::to_string(count - most_lines) + " more";
  return lines;
}

}  // namespace

struct GaugeModule::Library : OpenModule {
  using OpenModule::OpenModule;
};

GaugeModule::GaugeModule(const std::filesystem::path& file)
    : library_(std::make_unique<Library>(file)) {
  if (has_errors(library_->findings())) throw LoadError(error_lines(library_->findings()));
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
  if (none) notes.push_back(file().filename().string() + ".2x and .3x: no dense artwork");
  for (std::string& note : notes) note += outcome;
  return notes;
}

const std::vector<Finding>& GaugeModule::warnings() const { return library_->findings(); }

void GaugeModule::connect(const PanelServices& services) { library_->connect(services); }

std::uintptr_t GaugeModule::handle() const { return library_->handle(); }

}  // namespace host
