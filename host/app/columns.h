/// Text in columns, for listings.
#pragma once

#include <string>
#include <vector>

namespace host {

/// The first row is the heading. Columns of numbers stand to the right.
class Columns {
 public:
  explicit Columns(std::vector<std::string> heading) : rows_{std::move(heading)} {}

  void add(std::vector<std::string> row) { rows_.push_back(std::move(row)); }

  /// All rows, each with a line end and without blanks before it.
  std::string text() const;

 private:
  bool is_numeric(std::size_t column) const;
  std::size_t width(std::size_t column) const;

  std::vector<std::vector<std::string>> rows_;
};

}  // namespace host
