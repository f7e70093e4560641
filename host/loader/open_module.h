/// A module on its way from a file to something that can be run.
#pragma once

#include <memory>
#include <vector>

#include "host/loader/check.h"
#include "host/loader/foreign_records.h"
#include "host/loader/inspector.h"
#include "host/loader/library_file.h"
#include "host/loader/module_bitmaps.h"
#include "interface/panel_interface.h"

namespace host {

/// Opens and checks step by step, and stops at the first step that finds an error, so that nothing is
/// loaded from a broken file and nothing is run of a broken library. A library for Windows is checked
/// like any other, but not loaded.
class OpenModule {
 public:
  explicit OpenModule(const std::filesystem::path& file);
  ~OpenModule();
  OpenModule(const OpenModule&) = delete;
  OpenModule& operator=(const OpenModule&) = delete;

  const std::filesystem::path& file() const { return file_; }

  /// Everything found; with an error among it, the members below must not be used.
  const std::vector<Finding>& findings() const { return findings_; }

  const LinkageRecord& linkage() const { return *linkage_; }
  const ModuleBitmaps& bitmaps() const { return *bitmaps_; }
  std::uintptr_t handle() const { return reinterpret_cast<std::uintptr_t>(library_); }

  /// Whether the system has loaded it: else it can be looked at, but not connected and run.
  bool loaded() const { return library_ != nullptr; }

  void connect(const PanelServices& services);

 private:
  void open();
  void read_file();
  void check_exports();
  void check_export(const char* name, std::size_t size, unsigned ordinal);
  void read_bitmaps();
  void find_records();
  void load_library();
  MemoryMap memory() const;
  void look_at_records();
  void look_at_artwork();
  void note(Finding::Severity severity, const std::string& text);

  std::filesystem::path file_;
  std::vector<Finding> findings_;
  std::unique_ptr<MappedFile> mapped_;
  std::unique_ptr<LibraryFile> library_file_;
  std::unique_ptr<ModuleBitmaps> bitmaps_;
  std::unique_ptr<ForeignRecords> foreign_;
  void* library_ = nullptr;
  LinkageRecord* linkage_ = nullptr;
  ImportTableRecord* imports_ = nullptr;
  bool connected_ = false;
};

}  // namespace host
