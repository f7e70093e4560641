#include "host/app/end_signals.h"

#include <pthread.h>
#include <unistd.h>

#include <csignal>
#include <utility>

namespace host {
namespace {

sigset_t end_signals() {
  sigset_t signals;
  sigemptyset(&signals);
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) sigaddset(&signals, signal);
  return signals;
}

}  // namespace

EndSignals::EndSignals(std::function<void()> on_first) : on_first_(std::move(on_first)) {
  const sigset_t signals = end_signals();
  pthread_sigmask(SIG_BLOCK, &signals, nullptr);
  thread_ = std::thread([this] { wait(); });
}

EndSignals::~EndSignals() {
  over_ = true;
  pthread_kill(thread_.native_handle(), SIGHUP);  // which it waits for
  thread_.join();
  const sigset_t signals = end_signals();
  pthread_sigmask(SIG_UNBLOCK, &signals, nullptr);
}

void EndSignals::wait() {
  const sigset_t signals = end_signals();
  for (bool first = true;; first = false) {
    int signal = 0;
    sigwait(&signals, &signal);
    if (over_) return;
    if (!first) _exit(128 + signal);
    on_first_();
  }
}

}  // namespace host
