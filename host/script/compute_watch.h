/// Watches how long a flow computes without calling the host.
#pragma once

#include <pthread.h>

#include <atomic>
#include <condition_variable>
#include <ctime>
#include <functional>
#include <mutex>
#include <thread>

namespace host {

/// Lua counts its own instructions, not what its library does in one of them: a pattern search can take
/// years. So a second thread keeps the time that the flow's thread has worked since the host last heard
/// of the flow.
class ComputeWatch {
 public:
  static constexpr double limit = 3;  ///< seconds of the processor's time
  static constexpr double patience = 2;

  /// Watches the calling thread. `on_stuck` is called, on another thread, when the flow has not ended
  /// `patience` after it expired: then nothing but the program's end stops it.
  explicit ComputeWatch(std::function<void()> on_stuck);
  ~ComputeWatch();
  ComputeWatch(const ComputeWatch&) = delete;
  ComputeWatch& operator=(const ComputeWatch&) = delete;

  /// The flow has called the host, or comes back from it: its time begins anew.
  void in_host() { set(host); }
  void in_flow() { set(flow); }

  /// Whether the flow has computed longer than `limit`.
  bool expired() const { return expired_; }

 private:
  enum Place { host, flow };

  void set(Place place) {
    place_ = place;
    turns_.fetch_add(1, std::memory_order_relaxed);
  }
  double processor_time() const;
  void watch();
  void check(double now);

  std::function<void()> on_stuck_;
  clockid_t clock_{};
  std::atomic<Place> place_ = host;
  std::atomic<unsigned> turns_ = 0;
  std::atomic<bool> expired_ = false;
  unsigned seen_turns_ = 0;
  double since_ = 0;
  std::mutex mutex_;
  std::condition_variable ends_;
  bool ending_ = false;
  std::thread thread_;
};

}  // namespace host
