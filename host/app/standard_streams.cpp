#include "host/app/standard_streams.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <initializer_list>

namespace host {

// Opened for reading, so that writing there goes on failing.
void prepare_standard_streams() {
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
    if (fcntl(stream, F_GETFD) < 0 && errno == EBADF) static_cast<void>(open("/dev/null", O_RDONLY));
  // What cannot be written is told where it is written.
  for (const int signal : {SIGPIPE, SIGXFSZ}) std::signal(signal, SIG_IGN);
}

// Somebody who reads only the first lines of a list has lost nothing.
bool standard_output_taken() {
  const bool failed_before = std::ferror(stdout) != 0;
  errno = 0;
  if (std::fflush(stdout) == 0 && !failed_before) return true;
  if (errno != EPIPE)
    std::fprintf(stderr, "tarnvale: standard output cannot be written%s%s\n", errno ? ": " : "",
                 errno ? std::strerror(errno) : "");
  return false;
}

}  // namespace host
