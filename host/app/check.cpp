#include "host/loader/check.h"

#include <cstdio>

#include "host/app/commands.h"
#include "host/app/installation.h"

namespace host {

int check(const CockpitOptions& options) {
  const std::filesystem::path module = located(options).module;
  const std::vector<Finding> findings = check_module(module);
  for (const Finding& finding : findings)
    std::printf("%s: %s\n", finding.severity == Finding::Severity::error ? "error" : "warning",
                finding.message.c_str());
  if (findings.empty()) std::printf("%s: every record is sound\n", module.c_str());
  return has_errors(findings) ? exit_failed : exit_fine;
}

}  // namespace host
