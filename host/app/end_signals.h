/// The signals by which a terminal or the system asks the program to end.
#pragma once

#include <atomic>
#include <functional>
#include <thread>

namespace host {

/// While it exists, Ctrl-C, SIGTERM and SIGHUP no longer end the program: the first of them calls
/// `on_first` on a thread of its own, and the second ends the program where it is. To be made before
/// other threads, which would otherwise be interrupted.
class EndSignals {
 public:
  explicit EndSignals(std::function<void()> on_first);
  ~EndSignals();
  EndSignals(const EndSignals&) = delete;
  EndSignals& operator=(const EndSignals&) = delete;

 private:
  void wait();

  std::function<void()> on_first_;
  std::atomic<bool> over_ = false;
  std::thread thread_;
};

}  // namespace host
