/// Writes what a person does in the cockpit as a flow that does the same again.
#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

#include "interface/panel_interface.h"

namespace host {

/// Without a file it records nothing. Times are simulated seconds; `frame` is the length of a frame,
/// the least that a gesture of a flow lasts.
class Journal {
 public:
  explicit Journal(double frame) : frame_(frame) {}

  /// Throws std::runtime_error when the file cannot be written.
  Journal(const std::filesystem::path& file, double frame);

  void press(const std::string& gauge, PanelPoint point, std::uint32_t button, bool drags, double now);
  void move(PanelPoint point);
  void release(double now);
  void wheel(const std::string& gauge, PanelPoint point, int notches, double now);

  /// Any other call, such as open_window(502).
  void call(const std::string& text, double now);

 private:
  void write(double start, const std::string& text, double lasting);
  std::string spot() const;

  struct Gesture {
    std::string gauge;
    PanelPoint from{};
    PanelPoint to{};
    std::uint32_t button = 0;
    bool drags = false;
    double start = 0;
  };

  std::ofstream out_;
  double frame_;
  double flow_time_ = 0;  ///< simulated time at the end of the last line
  Gesture gesture_;
};

}  // namespace host
