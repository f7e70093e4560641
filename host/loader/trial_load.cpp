#include "host/loader/trial_load.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>

namespace host {
namespace {

constexpr unsigned longest_trial = 10;  // seconds

// The signals that a damaged library causes end the child quietly, whatever this program does with
// them, and what the loader says about it is not for the person.
void prepare_child() {
  for (const int signal : {SIGSEGV, SIGBUS, SIGILL, SIGFPE, SIGABRT, SIGALRM})
    std::signal(signal, SIG_DFL);
  const int nowhere = open("/dev/null", O_RDWR);
  dup2(nowhere, STDOUT_FILENO);
  dup2(nowhere, STDERR_FILENO);
  alarm(longest_trial);
}

[[noreturn]] void try_in_child(const char* library, std::initializer_list<const char*> symbols,
                               int answer) {
  prepare_child();
  if (void* loaded = dlopen(library, RTLD_NOW | RTLD_LOCAL)) {
    for (const char* symbol : symbols) static_cast<void>(dlsym(loaded, symbol));
    dlclose(loaded);
    _exit(0);
  }
  const char* reason = dlerror();
  if (reason == nullptr) reason = "no reason given";
  const ssize_t written = write(answer, reason, std::strlen(reason));
  _exit(written < 0 ? 2 : 1);
}

std::string read_all(int descriptor) {
  std::string text;
  std::array<char, 1024> part;
  for (;;) {
    const ssize_t count = read(descriptor, part.data(), part.size());
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return text;
    text.append(part.data(), static_cast<std::size_t>(count));
  }
}

int status_of(pid_t child) {
  int status = 0;
  while (waitpid(child, &status, 0) < 0 && errno == EINTR) continue;
  return status;
}

std::string outcome(int status, std::string reason) {
  if (WIFEXITED(status) && WEXITSTATUS(status) == 0) return {};
  if (!reason.empty()) return reason;
  if (WIFSIGNALED(status) && WTERMSIG(status) == SIGALRM) return "the system's loader does not end";
  return "the system's loader breaks down over it";
}

}  // namespace

std::string trial_load(const std::filesystem::path& library,
                       std::initializer_list<const char*> symbols) {
  std::array<int, 2> pipe{};
  if (pipe2(pipe.data(), O_CLOEXEC) != 0) return {};  // no trial: the loader itself decides
  const pid_t child = fork();
  if (child == 0) try_in_child(library.c_str(), symbols, pipe[1]);
  close(pipe[1]);
  std::string reason = child > 0 ? read_all(pipe[0]) : std::string();
  close(pipe[0]);
  return child > 0 ? outcome(status_of(child), std::move(reason)) : std::string();
}

}  // namespace host
