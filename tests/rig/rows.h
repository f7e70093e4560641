/// Tests' tables that are text files: a row a line, with " | " between its columns, \n for the end of a line,
/// and # before a comment.
#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <vector>

using Row = std::vector<std::string>;

inline std::string column(std::string text) {
  text.erase(text.find_last_not_of(' ') + 1);
  for (std::size_t at; (at = text.find("\\n")) != text.npos;) text.replace(at, 2, "\n");
  return text;
}

/// All rows of a table below tests/. Fails the test if one has not so many columns, or there is none.
inline std::vector<Row> rows_of(const std::string& table, std::size_t columns) {
  std::ifstream file(SOURCE_DIR "/tests/" + table);
  std::vector<Row> rows;
  for (std::string line; std::getline(file, line);) {
    if (line.empty() || line.starts_with('#')) continue;
    Row row;
    for (std::size_t bar; (bar = line.find(" | ")) != line.npos; line.erase(0, bar + 3))
      row.push_back(column(line.substr(0, bar)));
    row.push_back(column(line));
    EXPECT_EQ(row.size(), columns) << table << ": " << line;
    if (row.size() == columns) rows.push_back(row);
  }
  EXPECT_FALSE(rows.empty()) << table;
  return rows;
}
