/// Looks a gauge module over before any of it is run.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace host {

/// Something about a module that is not as it should be.
struct Finding {
  enum class Severity {
    detail,   ///< for those who want to know more about what is wrong
    warning,  ///< the cockpit runs, but shows or does something less
    error,    ///< running the module would be unsafe or impossible
  };
  Severity severity = Severity::error;
  std::string message;  ///< names the file and the record
};

/// Opens a module, looks at its file, at every record it publishes and at its bitmaps, and closes
/// it again. Never throws for a broken module; nothing found means a sound one. Gauges are numbered
/// from 1, the elements of a gauge from 0, which is the background.
std::vector<Finding> check_module(const std::filesystem::path& file);

bool has_errors(const std::vector<Finding>& findings);

}  // namespace host
