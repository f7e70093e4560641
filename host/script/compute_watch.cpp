#include "host/script/compute_watch.h"

#include <chrono>
#include <utility>

namespace host {

ComputeWatch::ComputeWatch(std::function<void()> on_stuck) : on_stuck_(std::move(on_stuck)) {
  pthread_getcpuclockid(pthread_self(), &clock_);
  thread_ = std::thread([this] { watch(); });
}

ComputeWatch::~ComputeWatch() {
  {
    const std::lock_guard lock(mutex_);
    ending_ = true;
  }
  ends_.notify_one();
  thread_.join();
}

double ComputeWatch::processor_time() const {
  timespec time{};
  clock_gettime(clock_, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

void ComputeWatch::watch() {
  std::unique_lock lock(mutex_);
  while (!ends_.wait_for(lock, std::chrono::milliseconds(200), [this] { return ending_; }))
    check(processor_time());
}

void ComputeWatch::check(double now) {
  const unsigned turns = turns_;
  if (place_ == host || turns != seen_turns_) {
    seen_turns_ = turns;
    since_ = now;
    expired_ = false;
    return;
  }
  if (now - since_ > limit) expired_ = true;
  if (now - since_ > limit + patience) on_stuck_();
}

}  // namespace host
