#include "host/loader/open_module.h"

#include <dlfcn.h>

#include <algorithm>
#include <cstdint>
#include <system_error>

#include "host/loader/dynamic_checks.h"
#include "host/loader/record_checks.h"
#include "host/loader/trial_load.h"

namespace host {
namespace {

constexpr const char* linkage_name = "Linkage";
constexpr const char* imports_name = "ImportTable";
constexpr unsigned imports_ordinal = 1, linkage_ordinal = 2;  // on systems that have them

/// Whether a record can lie there: a damaged symbol points anywhere.
template <typename Record>
bool is_record(const MemoryMap& memory, const Record* at) {
  return reinterpret_cast<std::uintptr_t>(at) % alignof(Record) == 0 && memory.readable(at, sizeof *at);
}

}  // namespace

OpenModule::OpenModule(const std::filesystem::path& file) : file_(file) { open(); }

OpenModule::~OpenModule() {
  if (connected_ && linkage_->deinit != nullptr) linkage_->deinit();
  if (library_ != nullptr) ::dlclose(library_);
}

void OpenModule::note(Finding::Severity severity, const std::string& text) {
  findings_.push_back({severity, file_.string() + ": " + text});
}

void OpenModule::open() {
  using Step = void (OpenModule::*)();
  for (const Step step : {&OpenModule::read_file, &OpenModule::find_records,
                          &OpenModule::look_at_records, &OpenModule::look_at_artwork}) {
    (this->*step)();
    if (has_errors(findings_)) return;
  }
  mapped_->forget();
}

void OpenModule::read_file() {
  try {
    mapped_ = std::make_unique<MappedFile>(file_);
    library_file_ = read_library(mapped_->bytes());
    const std::string fault = library_file_->fault();
    if (!fault.empty()) note(Finding::Severity::error, "is damaged: " + fault);
    check_exports();
    if (!has_errors(findings_)) read_bitmaps();
  } catch (const LibraryError& error) {
    note(Finding::Severity::error, error.what());
  } catch (const std::system_error& error) {
    note(Finding::Severity::error, MappedFile::fault(error.code()));
  }
}

void OpenModule::check_exports() {
  const auto& exports = library_file_->exports();
  if (exports.empty()) {
    note(Finding::Severity::error, "has no symbols; a module exports Linkage and ImportTable");
    return;
  }
  const auto lacks = [&](const char* name) {
    return std::ranges::find(exports, name, &ExportedSymbol::name) == exports.end();
  };
  if (lacks(linkage_name) && lacks(imports_name)) {
    note(Finding::Severity::error, "is no gauge module: it exports neither Linkage nor ImportTable");
    for (const ExportedSymbol& symbol : exports)
      note(Finding::Severity::detail, "exports " + symbol.name);
    return;
  }
  check_export(linkage_name, sizeof(LinkageRecord), linkage_ordinal);
  check_export(imports_name, sizeof(ImportTableRecord), imports_ordinal);
  for (const ExportedSymbol& symbol : exports)
    if (symbol.name != linkage_name && symbol.name != imports_name)
      note(Finding::Severity::warning, "exports " + symbol.name + " beside Linkage and ImportTable");
}

void OpenModule::check_export(const char* name, std::size_t size, unsigned ordinal) {
  const auto symbol = std::ranges::find(library_file_->exports(), name, &ExportedSymbol::name);
  if (symbol == library_file_->exports().end()) {
    note(Finding::Severity::error, std::string("does not export ") + name);
  } else if (symbol->size != 0 && symbol->size < size) {
    note(Finding::Severity::error, std::string(name) + " has " + std::to_string(symbol->size) +
                                       " bytes, not " + std::to_string(size));
  } else if (symbol->ordinal != 0 && symbol->ordinal != ordinal) {
    note(Finding::Severity::error, std::string(name) + " has the ordinal " +
                                       std::to_string(symbol->ordinal) + ", not " +
                                       std::to_string(ordinal));
  }
}

void OpenModule::read_bitmaps() {
  try {
    const auto listed = library_file_->bitmaps();
    if (!listed)
      return note(Finding::Severity::error,
                  "has no " + library_file_->bitmap_place() + " and so no bitmaps");
    bitmaps_ = std::make_unique<ModuleBitmaps>(*listed, file_);
    for (const std::string& line : bitmaps_->notes()) note(Finding::Severity::warning, line);
    for (const std::string& line : bitmaps_->dense_faults())
      findings_.push_back({Finding::Severity::warning, line});
  } catch (const ResourceError& error) {
    note(Finding::Severity::error, library_file_->bitmap_place() + " " + error.what());
  }
}

void OpenModule::find_records() {
  foreign_ = library_file_->foreign_records();
  if (foreign_ == nullptr) return load_library();
  linkage_ = foreign_->linkage();
  imports_ = foreign_->imports();
  if (linkage_ == nullptr || imports_ == nullptr)
    note(Finding::Severity::error, "is damaged: its symbols lie outside of it");
}

void OpenModule::load_library() {
  // A bare name would be looked for along the system's library path.
  const std::filesystem::path file = std::filesystem::absolute(file_);
  if (const std::string fault = trial_load(file, {linkage_name, imports_name}); !fault.empty())
    return note(Finding::Severity::error, "cannot be loaded: " + fault);
  library_ = ::dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (library_ == nullptr) {
    const char* reason = ::dlerror();
    note(Finding::Severity::error,
         std::string("cannot be loaded: ") + (reason ? reason : "no reason given"));
    return;
  }
  linkage_ = static_cast<LinkageRecord*>(::dlsym(library_, linkage_name));
  imports_ = static_cast<ImportTableRecord*>(::dlsym(library_, imports_name));
  if (linkage_ == nullptr || imports_ == nullptr)
    return note(Finding::Severity::error, "cannot be loaded: its symbols are not found");
  const MemoryMap memory;
  if (!is_record(memory, linkage_) || !is_record(memory, imports_))
    note(Finding::Severity::error, "is damaged: its symbols lie outside of it");
}

MemoryMap OpenModule::memory() const { return foreign_ ? foreign_->memory() : MemoryMap(); }

void OpenModule::look_at_records() {
  const MemoryMap memory = this->memory();
  check_records(*linkage_, *imports_, Inspector(memory, findings_, file_.string()));
}

void OpenModule::look_at_artwork() {
  const MemoryMap memory = this->memory();
  const Inspector file(memory, findings_, file_.string());
  for (std::size_t i = 0; linkage_->gauges[i] != nullptr; ++i) {
    const GaugeHeader& gauge = *linkage_->gauges[i];
    check_artwork(gauge, *bitmaps_, file.first(gauge_place(i, gauge.name)));
  }
}

void OpenModule::connect(const PanelServices& services) {
  imports_->entries[0].pointer = &services;
  if (!connected_ && linkage_->init != nullptr) linkage_->init();
  connected_ = true;
}

bool has_errors(const std::vector<Finding>& findings) {
  return std::ranges::any_of(
      findings, [](const Finding& finding) { return finding.severity == Finding::Severity::error; });
}

std::vector<Finding> check_module(const std::filesystem::path& file) {
  return OpenModule(file).findings();
}

}  // namespace host
