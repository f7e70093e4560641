/// What a headless run tells on standard error while it flies.
#pragma once

#include <chrono>
#include <string>

namespace host {

/// On a terminal one line that is written over, else one line for each note of the flow.
class Progress {
 public:
  explicit Progress(std::string doing = "starting");
  /// Leaves the terminal's line.
  ~Progress();

  /// The flow says what it does.
  void say(const std::string& text, double simulated);

  /// Time has moved on to `simulated` seconds.
  void tick(double simulated);

  /// A line that stays, above the progress line.
  void note(const std::string& text);

  /// Simulated seconds per second of real time.
  double speed(double simulated) const;

 private:
  using Clock = std::chrono::steady_clock;

  void write_line(double simulated, const char* end) const;

  bool terminal_;
  Clock::time_point start_ = Clock::now();
  Clock::time_point shown_ = start_;
  std::string doing_;
};

}  // namespace host
