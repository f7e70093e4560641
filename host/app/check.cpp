#include "host/loader/check.h"

#include <algorithm>
#include <cstdio>

#include "host/app/commands.h"
#include "host/app/installation.h"

namespace host {
namespace {

const char* word_for(Finding::Severity severity) {
  switch (severity) {
    case Finding::Severity::detail: return "detail";
    case Finding::Severity::warning: return "warning";
    default: return "error";
  }
}

}  // namespace

int check(const CheckOptions& options) {
  const std::filesystem::path module = located(options.cockpit).module;
  std::vector<Finding> findings = check_module(module);
  const auto details = options.details ? 0 : std::erase_if(findings, [](const Finding& finding) {
    return finding.severity == Finding::Severity::detail;
  });
  for (const Finding& finding : findings)
    std::printf("%s: %s%s\n", word_for(finding.severity), finding.message.c_str(),
                details > 0 ? "; --details tells what it is" : "");
  if (findings.empty()) std::printf("%s: every record is sound\n", module.c_str());
  return has_errors(findings) ? exit_failed : exit_fine;
}

}  // namespace host
