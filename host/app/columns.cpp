#include "host/app/columns.h"

#include <algorithm>

namespace host {

bool Columns::is_numeric(std::size_t column) const {
  return std::all_of(rows_.begin() + 1, rows_.end(), [&](const auto& row) {
    return row[column].find_first_not_of("0123456789.-+") == std::string::npos;
  });
}

std::size_t Columns::width(std::size_t column) const {
  std::size_t widest = 0;
  for (const auto& row : rows_) widest = std::max(widest, row[column].size());
  return widest;
}

std::string Columns::text() const {
  std::vector<std::string> lines(rows_.size());
  for (std::size_t column = 0; column < rows_.front().size(); ++column) {
    const std::size_t wide = width(column);
    const bool right = is_numeric(column);
    for (std::size_t i = 0; i < rows_.size(); ++i) {
      const std::string& cell = rows_[i][column];
      const std::string blanks(wide - cell.size(), ' ');
      lines[i] += (column ? "  " : "") + (right ? blanks + cell : cell + blanks);
    }
  }
  std::string all;
  for (std::string& line : lines) {
    line.erase(line.find_last_not_of(' ') + 1);
    all += line + "\n";
  }
  return all;
}

}  // namespace host
