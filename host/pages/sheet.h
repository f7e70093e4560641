/// The sheet that a page is drawn on: its colours by day and by night, its title, its texts and
/// buttons.
#pragma once

#include <string>

#include "host/pages/page.h"

namespace host {

struct SheetColors {
  Color paper, ink, soft, line, accent, done, face;
};

/// Dark letters on pale paper by day; by night the paper is dark, so that the eyes stay used to it.
const SheetColors& sheet_colors(bool night);

/// Lengths are units of the sheet: 420 wide, at least 760 high.
class Sheet {
 public:
  static constexpr double width = 420, margin = 18, top = 62;

  Sheet(PageKind kind, const PageView& view);

  double height() const { return height_; }
  static constexpr double right() { return width - margin; }
  const SheetColors& colors() const { return colors_; }

  void text(const std::string& words, double x, double y, double size, Color color, bool bold = false);
  void text_right(const std::string& words, double x, double y, double size, Color color,
                  bool bold = false);
  void text_middle(const std::string& words, double x, double y, double size, Color color,
                   bool bold = false);

  /// Breaks the text into lines. Returns where the next one would stand.
  double paragraph(const std::string& words, double x, double y, double wide, double size, Color color);

  void heading(const std::string& words, double y);
  void line(double x0, double y0, double x1, double y1, double thick, Color color);
  void box(double x, double y, double wide, double high, double radius, Color color);
  void outline(double x, double y, double wide, double high, double radius, Color color);
  void circle(double x, double y, double radius, double thick, Color color);
  void polyline(std::vector<SketchPoint> points, double thick, Color color);
  void polygon(std::vector<SketchPoint> corners, Color color);
  void begin_clip(double x, double y, double wide, double high);
  void end_clip() { sketch_.end_clip(); }

  /// A tick, or an empty box where nothing is done yet.
  void tick_box(double x, double y, double size, bool ticked);

  void button(const std::string& words, double x, double y, double wide, bool chosen, PageClick click);
  void spot(double x, double y, double wide, double high, PageClick click);

  DrawnPage finish();

 private:
  void scale_points(std::vector<SketchPoint>& points) const;

  const SheetColors& colors_;
  double unit_;
  double height_;
  Sketch sketch_;
  std::vector<PageSpot> spots_;
};

}  // namespace host
