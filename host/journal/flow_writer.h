/// Writes what a person does in the cockpit as a flow that does the same again.
#pragma once

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>

#include "host/inputs/cockpit_inputs.h"

namespace host {

/// A gesture is written when it ends, and a flow does one thing at a time: where a person flies with
/// one hand and clicks with the other, the flow is near to what was done, not the same to the bit.
class FlowWriter : public InputListener {
 public:
  /// Throws std::runtime_error when the file cannot be written.
  FlowWriter(const std::filesystem::path& file, Cockpit& cockpit);

  void taken(std::uint64_t frames, const Input& input) override;

  /// What went wrong while writing; empty while all is well.
  const std::string& fault() const { return fault_; }

 private:
  void write(const input::Press& press);
  void write(const input::Move& move);
  void write(const input::Release& release);
  void write(const input::Wheel& wheel);
  template <typename Other>
  void write(const Other& other);
  void put(const std::string& text);
  void line(double start, const std::string& text, double lasting);

  struct Gesture {
    input::Press press;
    PanelPoint to;
    double start;
  };

  std::string path_;
  std::string fault_;
  std::ofstream out_;
  Cockpit& cockpit_;
  double frame_;      ///< seconds: the least that a gesture of a flow lasts
  double flow_time_;  ///< simulated time at the end of the last line
  double now_ = 0;
  std::optional<Gesture> gesture_;
};

}  // namespace host
