// What the program takes until its first picture stands on a screen of several sizes, and of memory then:
//     build/test/bench/first_picture build/release/cockpit/tarnvale
// Each line is the best of some runs, so that other work on the machine matters little.
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

namespace {

struct Use {
  double cpu_ms = 1e9;
  double memory_mib = 1e9;
};

// An X server without a monitor.
class Screen {
 public:
  explicit Screen(const char* size) {
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0) return;
    pid_ = fork();
    if (pid_ == 0) {
      dup2(ends[1], 3);
      dup2(open("/dev/null", O_WRONLY), 2);
      execlp("Xvfb", "Xvfb", "-displayfd", "3", "-nolisten", "tcp", "-screen", "0", size, nullptr);
      _exit(127);
    }
    close(ends[1]);
    std::string number;
    for (char digit = 0; read(ends[0], &digit, 1) == 1 && digit != '\n';) number += digit;
    close(ends[0]);
    setenv("DISPLAY", (":" + number).c_str(), 1);
    answers_ = !number.empty();
  }
  ~Screen() {
    if (pid_ <= 0) return;
    kill(pid_, SIGTERM);
    waitpid(pid_, nullptr, 0);
  }
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;

  bool answers() const { return answers_; }

 private:
  pid_t pid_ = -1;
  bool answers_ = false;
};

Use run_once(const std::string& command) {
  const pid_t child = fork();
  if (child == 0) {
    execl("/bin/sh", "sh", "-c", ("exec " + command).c_str(), nullptr);
    _exit(127);
  }
  int status = 0;
  rusage used{};
  wait4(child, &status, 0, &used);
  if (status != 0) {
    std::fprintf(stderr, "%s has failed\n", command.c_str());
    std::exit(1);
  }
  const auto ms = [](const timeval& time) {
    return 1e3 * static_cast<double>(time.tv_sec) + 1e-3 * static_cast<double>(time.tv_usec);
  };
  return {ms(used.ru_utime) + ms(used.ru_stime), static_cast<double>(used.ru_maxrss) / 1024};
}

void measure(const std::string& command, const char* what) {
  Use best;
  for (int i = 0; i < 5; ++i) {
    const Use use = run_once(command);
    best = {std::min(best.cpu_ms, use.cpu_ms), std::min(best.memory_mib, use.memory_mib)};
  }
  std::printf("  %-36s %5.0f ms  %5.0f MiB\n", what, best.cpu_ms, best.memory_mib);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return std::fprintf(stderr, "usage: first_picture TARNVALE\n"), 2;
  const std::string program = argv[1];
  const std::filesystem::path folder =
      std::filesystem::temp_directory_path() / ("first_picture." + std::to_string(getpid()));
  setenv("XDG_CONFIG_HOME", folder.c_str(), 1);
  setenv("XDG_STATE_HOME", folder.c_str(), 1);
  unsetenv("WAYLAND_DISPLAY");
  unsetenv("SDL_VIDEODRIVER");
  for (const char* size : {"1366x768x24", "1920x1080x24", "3840x2160x24"}) {
    const Screen screen(size);
    if (!screen.answers()) return std::fprintf(stderr, "needs Xvfb\n"), 1;
    std::printf("%s\n", size);
    measure(program + " fly --mute --fresh --exit-after 0", "the start page");
    measure(program + " fly --mute --fresh --at final --exit-after 0", "on final, with the view");
    measure(program + " fly --mute --fresh --open 500 502 503 504 --exit-after 0", "four panels");
    measure(program + " show 502 --exit-after 0", "show 502");
  }
  std::filesystem::remove_all(folder);
  return 0;
}
