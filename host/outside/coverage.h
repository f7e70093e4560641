/// How much of each pixel a polygon covers, exactly: what is thinner than a pixel fades and does not
/// crawl.
#pragma once

#include <span>
#include <vector>

#include "host/outside/camera.h"

namespace host::outside {

class Coverage {
 public:
  Coverage(int width, int height);

  /// Measures a convex polygon that lies within the picture. For every row of it calls
  /// `edge(y, x, shares)` for pixels that it covers in part, 0 to 1 each, from x on, and
  /// `inside(y, x, count)` for those that it covers altogether.
  template <typename Edge, typename Inside>
  void each_row(std::span<const PicturePoint> polygon, Edge edge, Inside inside) {
    add(polygon);
    for (int y = top_; y <= bottom_; ++y) {
      const Row row = take_row(y);
      if (!row.left.empty()) edge(y, row.left_x, row.left);
      if (row.inside > 0) inside(y, row.inside_x, row.inside);
      if (!row.right.empty()) edge(y, row.right_x, row.right);
    }
  }

 private:
  /// The pixels that the edges on one side touch.
  struct Zone {
    int first, last;
  };
  struct Row {
    int left_x = 0, inside_x = 0, inside = 0, right_x = 0;
    std::span<const float> left, right;
  };

  void add(std::span<const PicturePoint> polygon);
  void add_edge(PicturePoint a, PicturePoint b);
  void add_to_row(int y, double height, double left, double right);
  Row take_row(int y);
  std::span<const float> take_sums(int y, int first, int last, float& sum);

  int width_, height_;
  int top_ = 0, bottom_ = -1;
  std::vector<float> sums_;  ///< differences of coverage from pixel to pixel, all 0 between polygons
  std::vector<Zone> falling_, rising_;  ///< of each row: edges that go down, and up
  std::vector<float> shares_;
};

}  // namespace host::outside
