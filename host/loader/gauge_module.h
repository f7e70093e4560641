/// Opens a gauge module and makes its records and bitmaps available.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "host/loader/bitmap.h"
#include "host/loader/check.h"
#include "interface/panel_interface.h"

namespace host {

/// A module that cannot be used; what() names the file and what is wrong with it.
struct LoadError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// A loaded, checked gauge module. When destroyed it runs the module's deinit routine, if init has
/// run, and closes the library.
class GaugeModule {
 public:
  /// Opens the library, checks every record and reads the bitmaps. Throws LoadError.
  explicit GaugeModule(const std::filesystem::path& file);
  ~GaugeModule();
  GaugeModule(const GaugeModule&) = delete;
  GaugeModule& operator=(const GaugeModule&) = delete;

  const std::filesystem::path& file() const;

  /// The gauges in the module's own order.
  std::span<const GaugeHeader* const> gauges() const;

  /// The gauge of that name, letter case aside; null if there is none.
  const GaugeHeader* find(std::string_view name) const;

  const BitmapStore& bitmaps() const;

  /// What a person should know of the artwork for dense displays beside the module, a line for each
  /// file that is damaged, or one if there is none at all. Pictures are then coarser at a zoom above 1.
  std::vector<std::string> artwork_notes() const;

  /// What is not as it should be, but does not keep the module from running.
  const std::vector<Finding>& warnings() const;

  /// Hands the module the host's services, then runs its init routine; they must outlive the
  /// module.
  void connect(const PanelServices& services);

  /// What goes into the extra data of SERVICE_BEGIN.
  std::uintptr_t handle() const;

 private:
  struct Library;
  std::unique_ptr<Library> library_;
};

}  // namespace host
