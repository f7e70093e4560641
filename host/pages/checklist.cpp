#include "host/pages/checklist.h"

#include "host/files/read_file.h"
#include "host/files/shortened.h"
#include "host/panel/config_values.h"
#include "host/panel/text.h"

namespace host {
namespace {

ChecklistItem read_item(std::string_view line) {
  const std::vector<std::string_view> columns = split(line, '|');
  if (columns.size() != 4)
    throw LineError("an item is: what | how it should be | where it is worked | when it is done");
  ChecklistItem item;
  item.what = trimmed(columns[0]);
  item.wanted = trimmed(columns[1]);
  if (item.what.empty() || item.wanted.empty()) throw LineError("the item has no words");
  const std::vector<std::string> where = words_in(columns[2]);
  if (where.empty() || where.size() > 2)
    throw LineError("an item is worked at a gauge and one of its controls");
  item.gauge = where[0];
  if (where.size() == 2) item.control = where[1];
  item.done = read_condition(columns[3]);
  return item;
}

Checklist read_title(std::string_view line) {
  if (line.back() != ']') throw LineError("the list's title has no end: " + std::string(line));
  Checklist list;
  list.title = trimmed(line.substr(1, line.size() - 2));
  if (list.title.empty()) throw LineError("the list has no title");
  return list;
}

void take_line(std::vector<Checklist>& lists, std::string_view line, int number) {
  if (line.front() == '[') {
    if (lists.size() == most_checklists) throw LineError("there is no room for another list");
    lists.push_back(read_title(line));
    lists.back().line = number;
    return;
  }
  if (lists.empty()) throw LineError("expected a list's title such as [Before start] first");
  Checklist& list = lists.back();
  if (line.starts_with("when ")) {
    list.when = read_condition(line.substr(5));
    return;
  }
  if (list.items.size() == most_items) throw LineError("there is no room for another item");
  list.items.push_back(read_item(line));
  list.items.back().line = number;
}

}  // namespace

std::vector<Checklist> parse_checklists(std::string_view text, const std::filesystem::path& file) {
  std::vector<Checklist> lists;
  int number = 0;
  for (const std::string_view raw : split(text, '\n')) {
    ++number;
    const std::string_view line = trimmed(raw);
    if (line.empty() || line.front() == '#') continue;
    try {
      take_line(lists, line, number);
    } catch (const LineError& error) {
      throw ConfigError(at_line(file, number, shortened(error.what(), 150)));
    }
  }
  return lists;
}

std::vector<Checklist> read_checklists(const std::filesystem::path& file) {
  try {
    return parse_checklists(read_file(file, mebibyte), file);
  } catch (const FileFault& fault) {
    throw ConfigError(fault.what());
  }
}

}  // namespace host
