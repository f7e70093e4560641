/// One shown gauge: the calls of its frame, and what its elements show afterwards.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "host/gauge/lit_copies.h"

namespace host {

/// Runs one gauge of a module.
class GaugeRun {
 public:
  /// The chain is walked once; the element records must outlive the run.
  explicit GaugeRun(const GaugeHeader& gauge);

  const GaugeHeader& gauge() const { return *gauge_; }

  /// Simulated time between two frames, for needles with a speed limit; 1/18 s unless told
  /// otherwise.
  void set_frame_seconds(double seconds) { frame_seconds_ = seconds; }

  /// The services before the first frame.
  void start(std::uintptr_t module_handle);

  /// One frame: tick, element values, after values, before draw.
  void frame(const TokenSource& tokens);

  /// The service when the gauge's window is destroyed for good.
  void end();

  /// The elements in chain order after the last frame, and after the one before it.
  std::span<const ElementState> now() const { return now_; }
  std::span<const ElementState> before() const { return before_; }

  /// Whether the last frame has changed anything that shows.
  bool changed() const;

  /// What the element with that number shows, or the copy that stands in for it now; null while they
  /// are hidden, and for a number that the chain does not have.
  const ElementState* showing(std::size_t index) const;

 private:
  struct Slot {
    std::size_t chain_end;  // the first slot that does not hang below this one
    Covers covers;
    std::size_t group;  // the last of its copies: all of them show the same thing
  };

  void find_groups();
  bool covered(const Slot& slot) const;
  void hide_chain(std::size_t index);
  void take(std::size_t index, const TokenSource& tokens);
  void fail(std::size_t index, std::uint32_t action, ElementState& state) const;
  void limit_speed(std::size_t index, ElementState& state) const;
  void settle();

  const GaugeHeader* gauge_;
  double frame_seconds_ = 1.0 / 18;
  bool failing_ = false;  // in this frame some system has failed
  std::vector<ElementInputs> inputs_;
  std::vector<Slot> slots_;
  std::vector<char> hidden_;         // by slot
  std::vector<ElementState> shown_;  // by group: what it last showed
  std::vector<ElementState> now_;
  std::vector<ElementState> before_;
};

}  // namespace host
