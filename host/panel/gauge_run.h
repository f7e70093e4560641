/// One shown gauge: the calls of its frame, and what its elements show afterwards.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "interface/panel_interface.h"

namespace host {

/// Where the values of host token variables come from. Numbers nobody knows read 0.
class TokenSource {
 public:
  virtual ~TokenSource() = default;
  virtual double token(std::uint32_t number) const = 0;
  /// Whether the system behind a failure key has failed.
  virtual bool failed(std::uint32_t key) const = 0;
};

/// What one element shows after a frame.
struct ElementState {
  const Element* element = nullptr;
  bool evaluated = false;          ///< neither hidden nor covered by a later copy
  bool drawn = false;              ///< evaluated and its picture not hidden
  std::array<double, 3> values{};  ///< one per value routine of its kind, failures applied
  std::string text;                ///< strings only; printable ASCII
  std::optional<double> reached;   ///< needles with a speed limit: how far the needle has come
  bool operator==(const ElementState&) const = default;
};

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

 private:
  // What the records of one element say, read once.
  struct Slot {
    Element* element;
    std::size_t chain_end;   // the first slot that does not hang below this one
    std::size_t later_copy;  // the nearest exact copy further on, or the number of slots
    std::size_t group;       // the last of its exact copies: all of them show the same thing
    std::array<TokenVariable*, 3> sources{};
    std::array<ValueRoutine, 3> routines{};
    std::size_t source_count = 0;
    std::size_t value_count = 0;
  };

  static Slot slot_of(Element& element);
  static bool exact_copies(const Slot& a, const Slot& b);
  void link_copies();
  void hide_chain(std::size_t index);
  void take(std::size_t index, const TokenSource& tokens);
  void evaluate(const Slot& slot, const TokenSource& tokens, ElementState& state) const;
  void fail(const Slot& slot, std::uint32_t action, ElementState& state) const;
  void limit_speed(const Slot& slot, ElementState& state) const;
  void settle();

  const GaugeHeader* gauge_;
  double frame_seconds_ = 1.0 / 18;
  std::vector<Slot> slots_;
  std::vector<char> hidden_;         // by slot
  std::vector<ElementState> shown_;  // by group: what it last showed
  std::vector<ElementState> now_;
  std::vector<ElementState> before_;
};

}  // namespace host
