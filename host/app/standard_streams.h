/// What the program was started with for its input, output and errors.
#pragma once

namespace host {

/// A stream that was closed stays closed for the program: otherwise the next file that it opens, a
/// recording perhaps, would get what is said there. A pipe that nobody reads any more is an error of
/// the write to it, not the program's end.
void prepare_standard_streams();

/// Whether everything printed has been written; says so on standard error if not.
bool standard_output_taken();

}  // namespace host
