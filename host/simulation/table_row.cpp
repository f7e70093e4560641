#include "host/simulation/table_row.h"

#include <algorithm>

namespace host {
namespace {

template <typename Key>
const TableRow* find(std::span<const TableRow> rows, Key TableRow::*member, Key wanted) {
  const auto row = std::ranges::find(rows, wanted, member);
  return row == rows.end() ? nullptr : &*row;
}

}  // namespace

const TableRow* find_row(std::span<const TableRow> rows, std::uint32_t number) {
  return find(rows, &TableRow::number, number);
}

const TableRow* find_row(std::span<const TableRow> rows, std::string_view name) {
  return find(rows, &TableRow::name, name);
}

}  // namespace host
