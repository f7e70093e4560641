/// All pictures of a flight on one page.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "host/drawing/painter.h"

namespace host {

/// Keeps small copies of pictures and sets them in a grid, row by row, each with its caption below.
class ContactSheet {
 public:
  void add(const Canvas& picture, const std::string& caption);
  bool empty() const { return cells_.empty(); }

  /// As many columns as make the page about as wide as it is high, each row as high as its pictures
  /// need. At least one picture must be there.
  Canvas page() const;

  // A cell, pixels: the picture's part, and the caption's below it.
  static constexpr int cell_width = 480, picture_height = 300, caption_height = 30, gap = 12;

 private:
  struct Cell {
    Canvas picture;  // fits into its part
    std::string caption;
  };
  using Row = std::span<const Cell>;
  std::vector<Row> rows() const;
  static int pictures_height(const Row& row);  // of the highest

  std::vector<Cell> cells_;
};

}  // namespace host
