#include "host/app/progress.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <utility>

namespace host {
namespace {

constexpr const char* clear_line = "\r\033[K";
constexpr auto refresh = std::chrono::milliseconds(100);

}  // namespace

Progress::Progress(std::string doing)
    : terminal_(isatty(STDERR_FILENO) == 1), doing_(std::move(doing)) {}

Progress::~Progress() {
  if (terminal_) std::fputs(clear_line, stderr);
}

double Progress::speed(double simulated) const {
  const std::chrono::duration<double> real = Clock::now() - start_;
  return simulated / std::max(real.count(), 1e-3);
}

void Progress::write_line(double simulated, const char* end) const {
  std::fprintf(stderr, "%8.1f s %6.1fx  %s%s", simulated, speed(simulated), doing_.c_str(), end);
  std::fflush(stderr);
}

void Progress::say(const std::string& text, double simulated) {
  doing_ = text;
  if (!terminal_) return write_line(simulated, "\n");
  shown_ = {};
  tick(simulated);
}

void Progress::tick(double simulated) {
  if (!terminal_ || Clock::now() - shown_ < refresh) return;
  shown_ = Clock::now();
  std::fputs(clear_line, stderr);
  write_line(simulated, "");
}

void Progress::note(const std::string& text) {
  std::fprintf(stderr, "%s%s\n", terminal_ ? clear_line : "", text.c_str());
}

}  // namespace host
