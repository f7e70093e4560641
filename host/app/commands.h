/// The commands of the program. Each returns its exit code; what goes wrong is an exception whose
/// text is fit for a person.
#pragma once

#include "host/app/options.h"

namespace host {

inline constexpr int exit_fine = 0;
inline constexpr int exit_failed = 1;  ///< bad input, a failed expectation, findings of a check
inline constexpr int exit_usage = 2;

int fly(const FlyOptions& options);
int run_flow(const RunOptions& options);
int replay(const ReplayOptions& options);
int show(const ShowOptions& options);
int list(const ListOptions& options);
int check(const CheckOptions& options);
int bench(const CockpitOptions& options);

/// Reads the command line, runs the command and reports errors on standard error.
int run_command_line(int argc, char** argv);

}  // namespace host
