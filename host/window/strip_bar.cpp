#include "host/window/strip_bar.h"

#include <algorithm>
#include <cmath>

#include "host/files/shortened.h"
#include "host/panel/panel_picture.h"
#include "host/sketch/palette.h"
#include "host/window/ui_pictures.h"

namespace host {
namespace {

using namespace palette;

struct Piece {
  std::string words;
  Color color;
  bool bold = false;
  bool button = false;
  std::optional<StripAct> act{};
};

// Pieces in a row, with a gap between any two.
class Row {
 public:
  explicit Row(double scale) : height_(caption_height(scale)), scale_(scale) {}

  double letter() const { return 0.72 * height_; }
  double width(const Piece& piece) const {
    return Sketch::text_width(piece.words, letter(), piece.bold) + (piece.button ? 14 : 8) * scale_;
  }
  double width(const std::vector<Piece>& pieces) const {
    double sum = 4 * scale_;
    for (const Piece& piece : pieces) sum += width(piece) + 3 * scale_;
    return sum;
  }

  StripBar draw(const std::vector<Piece>& pieces) const {
    StripBar bar;
    Sketch sketch(static_cast<int>(std::ceil(width(pieces))), height_);
    double x = 0;
    for (const Piece& piece : pieces) {
      const double wide = width(piece);
      if (piece.button)
        sketch.rounded_box(x, 2 * scale_, wide, height_ - 4 * scale_, 4 * scale_, key_face);
      sketch.text(piece.words, x + (piece.button ? 7 : 4) * scale_, 0.06 * height_, letter(),
                  piece.bold, piece.color);
      if (piece.act)
        bar.spots.push_back(
            {{static_cast<int>(x), 0, static_cast<int>(std::ceil(wide)), height_}, *piece.act});
      x += wide + 3 * scale_;
    }
    bar.picture = sketch.finish();
    return bar;
  }

 private:
  int height_;
  double scale_;
};

}  // namespace

std::optional<StripAct> StripBar::at(int x, int y) const {
  for (const Spot& spot : spots)
    if (overlap(spot.place, {x, y, 1, 1})) return spot.act;
  return std::nullopt;
}

StripBar draw_help_hint(double scale) {
  return Row(scale).draw({{"H", ink, true, true, StripAct::help},
                          {"help", soft_ink, false, false, StripAct::help},
                          {"F10", ink, true, true, StripAct::menu},
                          {"or right click: menu", soft_ink, false, false, StripAct::menu}});
}

StripBar draw_flow_bar(const FlowState& flow, int width, double scale) {
  const Row row(scale);
  std::vector<Piece> pieces{{flow.name, accent, true},
                            {"", soft_ink},
                            {"−", ink, true, true, StripAct::slower},
                            {std::to_string(flow.speed) + "×", ink},
                            {"+", ink, true, true, StripAct::faster},
                            {flow.paused ? "P  go on" : "P  pause", ink, false, true, StripAct::pause},
                            {"Esc  take over", ink, false, true, StripAct::take_over}};
  Piece& stage = pieces[1];
  for (std::size_t length = flow.stage.size(); length > 0; length -= std::min<std::size_t>(length, 4)) {
    stage.words = shortened(flow.stage, length);
    if (row.width(pieces) <= width) return row.draw(pieces);
  }
  stage.words.clear();
  return row.draw(pieces);
}

}  // namespace host
