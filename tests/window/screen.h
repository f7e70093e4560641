/// A screen of one's own, the program on it, and a person's hands.
#pragma once

#include <cairo.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <csignal>

#include <chrono>
#include <functional>
#include <memory>
#include <thread>

#include "tests/app/program.h"

/// A child process that ends with its owner.
class Child {
 public:
  Child(const std::string& command, int output) {
    pid_ = fork();
    if (pid_ != 0) return;
    prctl(PR_SET_PDEATHSIG, SIGTERM);  // also when the test is killed
    if (output >= 0) dup2(output, 3);
    execl("/bin/sh", "sh", "-c", ("exec " + command).c_str(), nullptr);
    _exit(127);
  }
  ~Child() { end(SIGTERM); }

  void tell(int signal) const {
    if (pid_ > 0) kill(pid_, signal);
  }

  /// At once, and without a word.
  void die() { end(SIGKILL); }

  Child(const Child&) = delete;
  Child& operator=(const Child&) = delete;

  /// The exit code; waits for the end.
  int wait() {
    int status = 0;
    if (pid_ > 0) waitpid(pid_, &status, 0);
    pid_ = -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
  }

 private:
  void end(int signal) {
    if (pid_ > 0) kill(pid_, signal);
    wait();
  }

  pid_t pid_ = -1;
};

/// An X server without a monitor, on a display that nobody else uses.
class Screen {
 public:
  static bool available() {
    return run_command("command -v Xvfb && command -v xdotool").exit_code == 0;
  }

  explicit Screen(const std::string& size) {
    int ends[2];
    if (pipe(ends) != 0) return;
    server_ = std::make_unique<Child>(
        "Xvfb -displayfd 3 -nolisten tcp -noreset -screen 0 " + size + " 2>/dev/null", ends[1]);
    close(ends[1]);
    char number[16] = {};
    for (std::size_t at = 0; at < sizeof number - 1 && read(ends[0], number + at, 1) == 1; ++at)
      if (number[at] == '\n') break;
    close(ends[0]);
    display_.append(":").append(std::to_string(std::atoi(number)));
  }

  std::string environment() const {
    return "env -u WAYLAND_DISPLAY -u SDL_VIDEODRIVER DISPLAY=" + display_ +
           " XDG_STATE_HOME=" + state_.path().string() + " XDG_CONFIG_HOME=" + (state_ / "config") +
           " ";
  }

  const std::string& display() const { return display_; }

  /// Where the program keeps the journals of its sessions, and its settings.
  std::filesystem::path sessions() const { return state_.path() / "tarnvale"; }
  std::filesystem::path settings() const { return state_.path() / "config"; }

  /// The server ends under everyone who is there.
  void die() { server_->die(); }

  /// Works mouse and keyboard, in xdotool's words.
  Outcome hands(const std::string& what) const {
    return run_command(environment() + "xdotool " + what);
  }

 private:
  TempFolder state_;
  std::unique_ptr<Child> server_;
  std::string display_;
};

/// Asks until it is so, for at most ten seconds.
inline bool eventually(const std::function<bool()>& question) {
  for (int i = 0; i < 200; ++i) {
    if (question()) return true;
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
  }
  return false;
}

/// The colour of a pixel of a PNG file, 0xRRGGBB; black outside and for a file that is no picture.
inline unsigned pixel(const std::string& file, int x, int y) {
  cairo_surface_t* picture = cairo_image_surface_create_from_png(file.c_str());
  unsigned color = 0;
  if (x >= 0 && y >= 0 && x < cairo_image_surface_get_width(picture) &&
      y < cairo_image_surface_get_height(picture)) {
    const unsigned char* row =
        cairo_image_surface_get_data(picture) + y * cairo_image_surface_get_stride(picture);
    color = reinterpret_cast<const unsigned*>(row)[x] & 0xFFFFFF;
  }
  cairo_surface_destroy(picture);
  return color;
}
