#include "host/window/journal.h"

#include <cstdio>
#include <stdexcept>

namespace host {
namespace {

constexpr double click_time = 0.3;  // a button held no longer is a click

// Waits end with the first frame at or after their time: a millisecond less never costs a frame.
std::string waiting(double seconds) {
  char text[40];
  std::snprintf(text, sizeof text, "%.3f", seconds - 0.001);
  return text;
}

std::string pair(PanelPoint point) { return std::to_string(point.x) + ", " + std::to_string(point.y); }

}  // namespace

Journal::Journal(const std::filesystem::path& file, double frame) : out_(file), frame_(frame) {
  if (!out_) throw std::runtime_error(file.string() + ": cannot write the record");
  out_ << "-- Recorded in the cockpit; fly it again with: tarnvale run FILE\n" << std::flush;
  flow_time_ = frame;  // a run lets one frame pass before its flow begins
}

void Journal::press(const std::string& gauge, PanelPoint point, std::uint32_t button, bool drags,
                    double now) {
  gesture_ = {gauge, point, point, button, drags, now};
}

void Journal::move(PanelPoint point) { gesture_.to = point; }

void Journal::release(double now) {
  const Gesture& done = gesture_;
  const double lasting = now - done.start;
  const std::string side = done.button == MOUSE_RIGHT ? "right_" : "";
  const bool moved = done.from.x != done.to.x || done.from.y != done.to.y;
  if (done.drags && moved)
    write(done.start, "drag(" + spot() + ", " + pair(done.to) + ", " + waiting(lasting + 0.001) + ")",
          lasting);
  else if (lasting <= click_time)
    write(done.start, side + "click(" + spot() + ")", frame_);
  else
    write(done.start, side + "hold(" + spot() + ", " + waiting(lasting) + ")", lasting);
}

void Journal::wheel(const std::string& gauge, PanelPoint point, int notches, double now) {
  gesture_.gauge = gauge;
  gesture_.from = point;
  write(now, "wheel(" + spot() + ", " + std::to_string(notches) + ")", frame_ * std::abs(notches));
}

void Journal::call(const std::string& text, double now) { write(now, text, 0); }

std::string Journal::spot() const { return "\"" + gesture_.gauge + "\", " + pair(gesture_.from); }

void Journal::write(double start, const std::string& text, double lasting) {
  if (!out_.is_open()) return;
  if (start - flow_time_ > frame_ / 2) {
    out_ << "wait(" << waiting(start - flow_time_) << ")\n";
    flow_time_ = start;
  }
  out_ << text << "\n" << std::flush;
  flow_time_ += lasting;
}

}  // namespace host
