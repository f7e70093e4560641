#include <algorithm>
#include <cstdio>

#include "host/sketch/palette.h"
#include "host/window/ui_pictures.h"

namespace host {
namespace {

using namespace palette;

// In units of the page's own: columns of rows, each a name, a bar or a lamp, and what it does.
constexpr double column_width = 400, row_height = 20, top = 60, bottom = 18, side = 22;
constexpr double bar_left = 168, bar_width = 70;
constexpr std::size_t rows_a_column = 30;

struct Row {
  std::string name, does;
  double from = 0, to = 0;  ///< what of the bar is filled, 0 to 1
  enum { heading, bar, lamp, text } kind = text;
};

void add_controls(std::vector<Row>& rows, const simulation::FlightControls& controls) {
  rows.push_back({"Aircraft", "", 0, 0, Row::heading});
  for (std::size_t i = 0; i < control_count; ++i) {
    const ControlRow& control = row_of(static_cast<Control>(i));
    const double at = position_of(controls, control.control);
    const double ratio = (at - control.least) / (control.most - control.least);
    const double zero = control.least < 0 ? 0.5 : 0.0;
    char number[16];
    std::snprintf(number, sizeof number, "%.2f", at);
    rows.push_back(
        {std::string(control.words), number, std::min(zero, ratio), std::max(zero, ratio), Row::bar});
  }
}

void add_stick(std::vector<Row>& rows, const StickState& stick) {
  rows.push_back({stick.name, "", 0, 0, Row::heading});
  for (const StickPart& part : stick.parts) {
    const double ratio = part.is_axis ? std::clamp(0.5 + 0.5 * part.position, 0.0, 1.0) : part.position;
    const double middle = part.is_axis ? 0.5 : 0.0;
    rows.push_back({part.name, part.does, std::min(middle, ratio), std::max(middle, ratio),
                    part.is_axis ? Row::bar : Row::lamp});
  }
}

std::string keys_of(const ControlMap& map, std::size_t action) {
  std::string keys;
  for (const KeyBinding& binding : map.keys)
    if (binding.action == action) keys += (keys.empty() ? "" : ", ") + words_of(binding);
  return keys;
}

void add_keys(std::vector<Row>& rows, const ControlMap& map, const Hands& hands) {
  rows.push_back({"Keys", "", 0, 0, Row::heading});
  for (std::size_t i = 0; i < action_table().size(); ++i)
    if (const std::string keys = keys_of(map, i); !keys.empty())
      rows.push_back(
          {std::string(action_table()[i].words), keys, 0, hands.is_held(i) ? 1.0 : 0.0, Row::lamp});
}

void draw_row(Sketch& sketch, const Row& row, double x, double y, double unit) {
  if (row.kind == Row::heading) {
    sketch.text(row.name.substr(0, 34), x, y, 16 * unit, true, accent);
    sketch.line(x, y + 18 * unit, x + (column_width - side) * unit, y + 18 * unit, unit, edge);
    return;
  }
  sketch.text(row.name, x, y + unit, 15 * unit, false, soft_ink);
  const double left = x + bar_left * unit, width = bar_width * unit;
  if (row.kind == Row::bar) {
    sketch.rounded_box(left, y + 5 * unit, width, 9 * unit, 2 * unit, key_face);
    const double filled = std::max((row.to - row.from) * width, 2 * unit);
    sketch.rounded_box(left + row.from * (width - 2 * unit), y + 5 * unit, filled, 9 * unit, unit,
                       accent);
  } else if (row.kind == Row::lamp) {
    sketch.rounded_box(left, y + 4 * unit, 11 * unit, 11 * unit, 5.5 * unit,
                       row.to > 0 ? accent : key_face);
  }
  const double does = row.kind == Row::lamp ? left + 20 * unit : left + width + 10 * unit;
  sketch.text(row.does, row.kind == Row::text ? x : does, y + unit, 15 * unit, false, ink);
}

}  // namespace

Overlay draw_controls_page(const ControlsState& state, int width, int height, double scale) {
  std::vector<Row> rows;
  add_controls(rows, state.controls);
  if (state.sticks.empty()) {
    rows.push_back({"Joysticks", "", 0, 0, Row::heading});
    rows.push_back({"", "None is plugged in."});
  }
  for (const StickState& stick : state.sticks) add_stick(rows, stick);
  add_keys(rows, state.map, state.hands);
  const std::size_t columns =
      std::max<std::size_t>(2, (rows.size() + rows_a_column - 1) / rows_a_column);
  const std::size_t a_column =
      std::max<std::size_t>(control_count + 1, (rows.size() + columns - 1) / columns);
  const double page_width = 2 * side + column_width * static_cast<double>(columns);
  const double page_height = top + bottom + row_height * static_cast<double>(a_column);
  const double fitting = std::min(width * 0.96 / page_width, height * 0.96 / page_height);
  const double unit = std::max(0.4, std::min(scale, fitting));
  Sketch sketch(static_cast<int>(page_width * unit), static_cast<int>(page_height * unit));
  sketch.rounded_box(0, 0, page_width * unit, page_height * unit, 10 * unit, paper);
  sketch.box_outline(0, 0, page_width * unit, page_height * unit, 10 * unit, unit, edge);
  sketch.text("Controls", side * unit, 16 * unit, 28 * unit, true, ink);
  for (std::size_t i = 0; i < rows.size(); ++i)
    draw_row(sketch, rows[i], (side + column_width * static_cast<double>(i / a_column)) * unit,
             (top + row_height * static_cast<double>(i % a_column)) * unit, unit);
  return sketch.finish();
}

}  // namespace host
