#include "host/journal/flow_writer.h"

#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <stdexcept>

#include "host/panel/text.h"

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

std::string spot(const std::string& gauge, PanelPoint point) {
  return "\"" + gauge + "\", " + pair(point);
}

struct LuaValue {
  std::string operator()(std::monostate) const { return "nil"; }
  std::string operator()(bool value) const { return value ? "true" : "false"; }
  std::string operator()(double value) const { return exact_number(value); }
  std::string operator()(const std::string& value) const { return "\"" + value + "\""; }
  std::string operator()(const std::vector<double>& values) const {
    std::string text;
    for (double value : values) text += (text.empty() ? "{" : ", ") + exact_number(value);
    return text + "}";
  }
};

// What stands between a call's name and the next line.
std::string arguments() { return "()"; }
std::string arguments(std::uint32_t key) { return "(" + std::to_string(key) + ")"; }
std::string arguments(double value) { return "(" + exact_number(value) + ")"; }
std::string arguments(const std::string& name) { return "(\"" + name + "\")"; }
std::string arguments(std::uint32_t token, double value) {
  return "(" + std::to_string(token) + ", " + exact_number(value) + ")";
}
std::string arguments(const NamedValues& values) {
  std::string text;
  for (const NamedValue& each : values)
    text += (text.empty() ? "" : ", ") + each.name + " = " + std::visit(LuaValue{}, each.value);
  return "{" + text + "}";
}
std::string arguments(std::uint32_t event, std::uint32_t value) {
  const TableRow* row = find_row(AircraftModel::events(), event);
  const std::string name = row ? "\"" + std::string(row->name) + "\"" : std::to_string(event);
  return "(" + name + (value ? ", " + std::to_string(value) : "") + ")";
}

bool drags(const Cockpit& cockpit, const input::Press& press) {
  const CockpitGauge* gauge = cockpit.find(press.gauge);
  const HotArea* area =
      gauge ? gauge->areas.at(press.point, static_cast<std::uint32_t>(press.button)) : nullptr;
  return area && (area->flags & MOUSE_DRAG);
}

}  // namespace

FlowWriter::FlowWriter(const std::filesystem::path& file, Cockpit& cockpit)
    : path_(file.string()),
      out_(file),
      cockpit_(cockpit),
      frame_(1.0 / cockpit.rate()),
      flow_time_(frame_) {
  if (!out_) throw std::runtime_error(file.string() + ": cannot write the record");
  put("-- Recorded in the cockpit; fly it again with: tarnvale run FILE\n");
}

void FlowWriter::put(const std::string& text) {
  if (!fault_.empty()) return;
  errno = 0;
  if (out_ << text << std::flush) return;
  fault_ = path_ + ": cannot write the flow any more" +
           (errno ? std::string(": ") + std::strerror(errno) : "");
}

void FlowWriter::taken(std::uint64_t frames, const Input& input) {
  now_ = static_cast<double>(frames) * frame_;
  std::visit([this](const auto& each) { write(each); }, input);
}

void FlowWriter::write(const input::Press& press) { gesture_ = {press, press.point, now_}; }

void FlowWriter::write(const input::Move& move) {
  if (gesture_) gesture_->to = move.point;
}

void FlowWriter::write(const input::Release&) {
  if (!gesture_) return;
  const auto& [press, to, start] = *gesture_;
  const double lasting = now_ - start;
  const std::string side = press.button == input::Button::right ? "right_" : "";
  const std::string place = spot(press.gauge, press.point);
  const bool moved = press.point.x != to.x || press.point.y != to.y;
  if (moved && drags(cockpit_, press))
    line(start, "drag(" + place + ", " + pair(to) + ", " + waiting(lasting + 0.001) + ")", lasting);
  else if (lasting <= click_time)
    line(start, side + "click(" + place + ")", frame_);
  else
    line(start, side + "hold(" + place + ", " + waiting(lasting) + ")", lasting);
  gesture_.reset();
}

void FlowWriter::write(const input::Wheel& wheel) {
  line(now_, "wheel(" + spot(wheel.gauge, wheel.point) + ", " + std::to_string(wheel.notches) + ")",
       frame_ * std::abs(wheel.notches));
}

// Everything else a flow calls as a journal does.
template <typename Other>
void FlowWriter::write(const Other& other) {
  const std::string text =
      std::apply([](const auto&... parts) { return arguments(parts...); }, Other::parts(other));
  line(now_, std::string(Other::word) + text, 0);
}

void FlowWriter::line(double start, const std::string& text, double lasting) {
  if (start - flow_time_ > frame_ / 2) {
    put("wait(" + waiting(start - flow_time_) + ")\n");
    flow_time_ = start;
  }
  put(text + "\n");
  flow_time_ += lasting;
}

}  // namespace host
